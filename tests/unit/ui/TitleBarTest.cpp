#include "ui/TitleBar.h"

#include "UiFixture.h"

#include <QAbstractButton>
#include <QSignalSpy>
#include <QTest>

#include <array>

namespace zpsg::ui::test {
namespace {

class TitleBarTest : public UiTest {
protected:
    TitleBarTest() {
        bar_.resize(900, 44);
        bar_.show();
        settle();
    }
    [[nodiscard]] QAbstractButton *button(const char *name) const {
        return bar_.findChild<QAbstractButton *>(QString::fromLatin1(name));
    }

    TitleBar bar_;
};

TEST_F(TitleBarTest, ButtonsActWhenLetGoAndNotBefore) {
    QSignalSpy minimise(&bar_, &TitleBar::minimiseReleased);
    QSignalSpy close(&bar_, &TitleBar::closeReleased);
    const std::array buttons{std::pair{"Min_Window", &minimise}, std::pair{"Close_Window", &close}};
    for (const auto &[name, spy] : buttons) {
        QAbstractButton *pressed = button(name);
        ASSERT_NE(pressed, nullptr) << name;
        QTest::mousePress(pressed, Qt::LeftButton);
        EXPECT_EQ(spy->count(), 0) << name;
        QTest::mouseRelease(pressed, Qt::LeftButton);
        EXPECT_EQ(spy->count(), 1) << name;

        QTest::mousePress(pressed, Qt::LeftButton);
        QTest::mouseRelease(pressed, Qt::LeftButton, {}, QPoint(-30, 5));
        EXPECT_EQ(spy->count(), 1) << "letting go beside " << name << " takes the press back";

        QTest::keyClick(pressed, Qt::Key_Space);
        QTest::keyClick(pressed, Qt::Key_Return);
        EXPECT_EQ(spy->count(), 3) << name;
        EXPECT_FALSE(pressed->accessibleName().isEmpty()) << name;
        EXPECT_FALSE(pressed->toolTip().isEmpty()) << name;
    }
    EXPECT_EQ(minimise.count(), close.count());
}

TEST_F(TitleBarTest, ADoubleClickChangesNothing) {
    const QRect before = bar_.window()->geometry();
    QTest::mouseDClick(&bar_, Qt::LeftButton, {}, QPoint(300, 20));
    settle();
    EXPECT_EQ(bar_.window()->geometry(), before);
    EXPECT_FALSE(bar_.window()->isMaximized());
}

} // namespace
} // namespace zpsg::ui::test
