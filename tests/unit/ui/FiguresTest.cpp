#include "ui/Figures.h"

#include "ui/Style.h"
#include "UiFixture.h"

#include <QLocale>

namespace zpsg::ui::test {
namespace {

class FiguresTest : public UiTest {};

TEST_F(FiguresTest, AreAsWideWhateverTheDigits) {
    const FigureFont font(style::font(40.0));
    EXPECT_DOUBLE_EQ(font.width(QStringLiteral("11.11")), font.width(QStringLiteral("48.06")));
    EXPECT_GT(font.width(QStringLiteral("100")), font.width(QStringLiteral("99")));
}

TEST_F(FiguresTest, FollowTheUsersNumberFormat) {
    EXPECT_EQ(formatFigure(1234.56, 1), QStringLiteral("1234.6"));
    EXPECT_EQ(formatFigure(-0.04, 1), QStringLiteral("0.0")) << "no negative zero";
    EXPECT_EQ(formatFigure(-0.06, 1), QStringLiteral("-0.1"));
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(formatFigure(1234.56, 1), QStringLiteral("1234,6"));
}

TEST_F(FiguresTest, LongTextsGetASmallerFaceNotACut) {
    const QString text = QStringLiteral("A rather long word for a small place");
    const QFont fitting = fittingFont(style::font(30.0), text, 260.0);
    EXPECT_LE(QFontMetricsF(fitting).horizontalAdvance(text), 260.0);
    EXPECT_LT(fitting.pixelSize(), 30);
    EXPECT_EQ(fittingFont(style::font(12.0), text, 1000.0).pixelSize(), 12);
}

} // namespace
} // namespace zpsg::ui::test
