#include "ui/Style.h"
#include "ui/ArcGauge.h"
#include "ui/DashboardPage.h"
#include "ui/Temperature.h"
#include "UiFixture.h"

#include "psu/SupplyMonitor.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <cmath>

namespace zpsg::ui::test {
namespace {

namespace colour = style::colour;

/// Relative luminance by the accessibility guidelines for web content.
double luminance(const QColor &ink) {
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(ink.redF()) + 0.7152 * linear(ink.greenF()) + 0.0722 * linear(ink.blueF());
}

double contrast(QRgb text, const QColor &ground) {
    const double one = luminance(QColor(text)) + 0.05;
    const double other = luminance(ground) + 0.05;
    return std::max(one, other) / std::min(one, other);
}

/// `cover` laid over `ground`.
QColor over(QRgb cover, QRgb ground) {
    const double share = qAlpha(cover) / 255.0;
    const auto mixed = [share](int top, int below) {
        return static_cast<int>(std::lround(share * top + (1.0 - share) * below));
    };
    return {mixed(qRed(cover), qRed(ground)), mixed(qGreen(cover), qGreen(ground)),
            mixed(qBlue(cover), qBlue(ground))};
}

TEST(Style, TextsStandOutFromWhatTheyStandOn) {
    constexpr double kReadable = 4.5;
    const QColor card = over(colour::kCard, colour::kWindowTop); // the lightest place of the window
    for (const QRgb text : {colour::kText, colour::kTextSecondary, colour::kTextTertiary, colour::kAccent,
                            colour::kGood, colour::kCaution, colour::kDanger}) {
        EXPECT_GE(contrast(text, card), kReadable) << std::hex << text;
    }
    EXPECT_GE(contrast(colour::kText, QColor(colour::kAccentDeep)), kReadable) << "a button that is wanted";
}

class TemperatureTest : public UiTest {
public:
    ~TemperatureTest() override { setTemperatureUnit(TemperatureUnit::Celsius); }
};

TEST_F(TemperatureTest, TheGaugeTakesAnotherUnitAtOnce) {
    DashboardPage page;
    page.showLinkState(psu::LinkState::Live, QStringLiteral("MODEL"));
    page.showReading(reading(), {{12.0, 5.0, 3.3}, 90.0}, 0); // 41 degrees Celsius
    const auto *gauge = page.findChild<ArcGauge *>(QStringLiteral("gaugeTemperature"));
    EXPECT_EQ(gauge->valueText(), QStringLiteral("41"));
    setTemperatureUnit(TemperatureUnit::Fahrenheit);
    QEvent changed(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&page, &changed);
    EXPECT_EQ(gauge->valueText(), QStringLiteral("106"));
    EXPECT_EQ(gauge->readoutRange(), std::pair(32.0, 176.0));
    EXPECT_TRUE(gauge->accessibleDescription().contains(QStringLiteral("\u00B0F")) ||
                gauge->readoutText().contains(QStringLiteral("\u00B0F")));
    for (const double celsius : {-40.0, 0.0, 36.6, 100.0}) {
        EXPECT_NEAR(celsiusOf(degrees(celsius)), celsius, 1e-9);
    }
    EXPECT_EQ(degreesText(100.0), QStringLiteral("212\u00A0\u00B0F"));
}

} // namespace
} // namespace zpsg::ui::test
