#include "ui/DashboardPage.h"

#include "psu/SupplyMonitor.h"
#include "ui/ArcGauge.h"
#include "ui/ConnectionBanner.h"
#include "ui/PowerTrace.h"
#include "ui/RailCard.h"

#include "UiFixture.h"
#include <cstdlib>

namespace zpsg::ui::test {
namespace {

using psu::LinkState;

class DashboardPageTest : public UiTest {
protected:
    [[nodiscard]] QStringList readouts() const {
        QStringList texts;
        for (const Readout *readout : page_.findChildren<Readout *>()) {
            if (qobject_cast<const PowerTrace *>(readout) == nullptr) {
                texts << readout->readoutText();
            }
        }
        return texts;
    }
    void expectNoValues(const char *when) const {
        for (const QString &text : readouts()) {
            EXPECT_EQ(text, QString(QChar(0x2013))) << when;
        }
        EXPECT_EQ(readouts().size(), 7);
    }
    [[nodiscard]] ArcGauge *gauge(const char *name) const {
        return page_.findChild<ArcGauge *>(QString::fromLatin1(name));
    }
    void takeReading() { page_.showReading(reading(), now_ += 1000); }

    DashboardPage page_;
    qint64 now_ = 1'700'000'000'000;
    const QString model_ = QStringLiteral("MODEL-1000");
};

TEST_F(DashboardPageTest, NeverShowsTheSeedsOfARecord) {
    const psu::TelemetryRecord seeds;
    expectNoValues("at start");
    for (const LinkState state : {LinkState::NoDevice, LinkState::NoPermission, LinkState::Silent}) {
        page_.showLinkState(state, model_);
        page_.showReading(seeds, now_ += 1000);
        expectNoValues("without a live supply");
    }
    EXPECT_FALSE(page_.findChild<PowerTrace *>()->buffer().summary().has_value());
}

TEST_F(DashboardPageTest, ShowsAReadingInEveryPlace) {
    page_.setRatedWatts(1000.0);
    page_.showLinkState(LinkState::Live, model_);
    takeReading();
    // 12.05 * 20 + 5.02 * 4 + 3.31 * 2
    EXPECT_EQ(gauge("gaugeOutput")->readoutText(), QStringLiteral("268 W, 27 % of 1000 W"));
    EXPECT_EQ(gauge("gaugeInput")->valueText(), QStringLiteral("231.4"));
    EXPECT_EQ(gauge("gaugeTemperature")->valueText(), QStringLiteral("41"));
    EXPECT_EQ(gauge("gaugeFan")->valueText(), QStringLiteral("960"));
    const auto rails = page_.findChildren<RailCard *>();
    ASSERT_EQ(rails.size(), 3);
    EXPECT_EQ(rails.at(0)->voltsText(), QStringLiteral("12.05"));
    EXPECT_EQ(rails.at(1)->ampsText(), QStringLiteral("4.00"));
    EXPECT_EQ(rails.at(2)->wattsText(), QStringLiteral("6.6"));
    EXPECT_NEAR(page_.findChild<PowerTrace *>()->readoutValue().value(), 267.7, 0.01);
}

TEST_F(DashboardPageTest, ValuesGoWithTheDeviceAndStayWithASilentOne) {
    page_.showLinkState(LinkState::Live, model_);
    takeReading();
    const QStringList live = readouts();

    page_.showLinkState(LinkState::Silent, model_);
    page_.showReading(reading(11.0, 1.0), now_ += 1000);
    EXPECT_EQ(readouts(), live) << "the last good values";
    EXPECT_FALSE(page_.findChild<PowerTrace *>()->readoutValue().has_value()) << "but the trace has a gap";

    page_.showLinkState(LinkState::NoDevice, {});
    expectNoValues("after the device went");
}

TEST_F(DashboardPageTest, SilentValuesLookDifferentUntilTheNextReading) {
    page_.resize(1000, 640);
    page_.showLinkState(LinkState::Live, model_);
    takeReading();
    // Whether a reading's colours are to be seen; grey has none.
    const auto colourful = [](QWidget *widget) {
        const QImage image = widget->grab().toImage();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                if (pixel.alpha() == 255 && std::abs(pixel.blue() - pixel.red()) > 80) {
                    return true;
                }
            }
        }
        return false;
    };
    const auto expect = [&](bool lit, const char *when) {
        EXPECT_EQ(colourful(gauge("gaugeOutput")), lit) << when;
        for (RailCard *rail : page_.findChildren<RailCard *>()) {
            EXPECT_EQ(colourful(rail), lit) << when;
        }
    };
    expect(true, "live");
    page_.showLinkState(LinkState::Silent, model_);
    expect(false, "silent");
    page_.showLinkState(LinkState::Live, model_);
    expect(false, "an old value is not passed off as a new one");
    takeReading();
    expect(true, "live again");
}

TEST_F(DashboardPageTest, RatedWattsSetTheRangeAndTheLoad) {
    page_.showLinkState(LinkState::Live, model_);
    takeReading();
    EXPECT_EQ(gauge("gaugeOutput")->noteText(), QString()) << "no load without a rating";
    page_.setRatedWatts(250.0);
    EXPECT_DOUBLE_EQ(gauge("gaugeOutput")->readoutRange().second, 250.0);
    EXPECT_EQ(gauge("gaugeOutput")->noteText(), QString::fromUtf8("\u25B2 107 % of 250 W"));
}

TEST_F(DashboardPageTest, AFanThatStandsIsSaidSo) {
    page_.showLinkState(LinkState::Live, model_);
    psu::TelemetryRecord record = reading();
    record.store(QStringLiteral("FanSpeed"), 0.0F);
    page_.showReading(record, now_);
    EXPECT_EQ(gauge("gaugeFan")->readoutText(), QStringLiteral("0 rpm, Stopped"));
    takeReading();
    EXPECT_EQ(gauge("gaugeFan")->noteText(), QString());
}

} // namespace
} // namespace zpsg::ui::test
