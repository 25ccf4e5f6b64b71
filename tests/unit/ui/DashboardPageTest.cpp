#include "ui/DashboardPage.h"

#include "psu/SupplyMonitor.h"
#include "ui/ArcGauge.h"
#include "ui/ConnectionBanner.h"
#include "ui/DayView.h"
#include "ui/EfficiencyView.h"
#include "ui/EnergyView.h"
#include "ui/PcView.h"
#include "ui/PowerTrace.h"
#include "ui/RailCard.h"
#include "ui/TrendPanel.h"
#include "UiFixture.h"

#include <QLabel>

#include <cstdlib>

namespace zpsg::ui::test {
namespace {

using psu::LinkState;

class DashboardPageTest : public UiTest {
protected:
    /// What is shown of the latest reading.
    [[nodiscard]] QStringList readouts() const {
        QStringList texts;
        for (const Readout *readout : page_.findChildren<Readout *>()) {
            const auto *trends = page_.trends();
            const std::array<const Readout *, 4> others{trends->power(), trends->day(), trends->energy(),
                                                        trends->pc()};
            if (std::find(others.begin(), others.end(), readout) == others.end()) {
                texts << readout->readoutText();
            }
        }
        return texts;
    }
    void expectNoValues(const char *when) const {
        for (const QString &text : readouts()) {
            EXPECT_EQ(text, QString(QChar(0x2013))) << when;
        }
        EXPECT_EQ(readouts().size(), 9);
    }
    [[nodiscard]] ArcGauge *gauge(const char *name) const {
        return page_.findChild<ArcGauge *>(QString::fromLatin1(name));
    }
    void takeReading() { page_.showReading(reading(), shown_, now_ += 1000); }

    DashboardPage page_;
    DashboardPage::Shown shown_{{12.15, 5.03, 3.32}, 90.0};
    qint64 now_ = 1'700'000'000'000;
    const QString model_ = QStringLiteral("MODEL-1000");
};

TEST_F(DashboardPageTest, NeverShowsTheSeedsOfARecord) {
    const psu::TelemetryRecord seeds;
    expectNoValues("at start");
    for (const LinkState state : {LinkState::NoDevice, LinkState::NoPermission, LinkState::Silent}) {
        page_.showLinkState(state, model_);
        page_.showReading(seeds, shown_, now_ += 1000);
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
    // 267.7 / 0.9, and 960 of 2250
    EXPECT_EQ(gauge("gaugeEfficiency")->readoutText(), QStringLiteral("90.0 %, 297 W in"));
    EXPECT_EQ(gauge("gaugeFan")->noteText(), QString::fromUtf8("43\u00A0%"));
    EXPECT_EQ(page_.trends()->efficiency()->readoutValue(), 90.0);
    const auto rails = page_.findChildren<RailCard *>();
    ASSERT_EQ(rails.size(), 3);
    const std::array<const char *, 3> texts{"12.15 V, 20.00 A, 243.0 W", "5.03 V, 4.00 A, 20.1 W",
                                            "3.32 V, 2.00 A, 6.6 W"};
    for (int i = 0; i < rails.size(); ++i) {
        EXPECT_TRUE(
            rails.at(i)->readoutText().startsWith(QLatin1String(texts.at(static_cast<std::size_t>(i)))))
            << "the supervised volts with the record's current: " << qPrintable(rails.at(i)->readoutText());
    }
    EXPECT_NEAR(page_.findChild<PowerTrace *>()->readoutValue().value(), 267.7, 0.01);
}

TEST_F(DashboardPageTest, ValuesGoWithTheDeviceAndStayWithASilentOne) {
    page_.showLinkState(LinkState::Live, model_);
    takeReading();
    const QStringList live = readouts();

    page_.showLinkState(LinkState::Silent, model_);
    page_.showReading(reading(11.0, 1.0), shown_, now_ += 1000);
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
        EXPECT_EQ(colourful(gauge("gaugeEfficiency")), lit) << when;
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
    page_.showReading(record, shown_, now_);
    EXPECT_EQ(gauge("gaugeFan")->readoutText(), QStringLiteral("0 rpm, Stopped"));
    takeReading();
    EXPECT_EQ(gauge("gaugeFan")->readoutText(), QString::fromUtf8("960 rpm, 43\u00A0%"));
}

TEST_F(DashboardPageTest, AnEfficiencyThatIsNotKnownLeavesNoOldOne) {
    page_.showLinkState(LinkState::Live, model_);
    takeReading();
    for (const std::optional<double> percent : {std::optional<double>(), std::optional(0.0)}) {
        shown_.efficiency = percent;
        takeReading();
        EXPECT_EQ(gauge("gaugeEfficiency")->valueText(),
                  percent ? QStringLiteral("0.0") : QString(QChar(0x2013)));
        EXPECT_EQ(gauge("gaugeEfficiency")->noteText(), QString()) << "no input without an efficiency";
        EXPECT_EQ(page_.trends()->efficiency()->figureTexts().at(1), QString(QChar(0x2013)));
    }
}

TEST_F(DashboardPageTest, CardsLineUp) {
    auto *banner = new QLabel(QStringLiteral("alarm"));
    page_.setAlarmBanner(banner);
    page_.show();
    for (const QSize size : {QSize(886, 560), QSize(1028, 660), QSize(1294, 700), QSize(3768, 2050)}) {
        page_.resize(size);
        settle();
        const auto place = [this](const QWidget *widget) {
            return QRect(widget->mapTo(&page_, QPoint(0, 0)), widget->size());
        };
        const QRect output = place(gauge("gaugeOutput"));
        const QRect trends = place(page_.trends());
        const auto rails = page_.findChildren<RailCard *>();
        EXPECT_EQ(place(gauge("gaugeEfficiency")).left(), place(rails.at(0)).left()) << size.width();
        EXPECT_EQ(place(gauge("gaugeInput")).right(), place(rails.at(2)).right());
        EXPECT_EQ(place(gauge("gaugeInput")).right(), trends.right());
        EXPECT_EQ(output.left(), trends.left());
        EXPECT_EQ(output.top(), place(gauge("gaugeFan")).top());
        EXPECT_EQ(output.bottom(), place(rails.at(1)).bottom());
        EXPECT_LE(std::abs(gauge("gaugeFan")->width() - gauge("gaugeInput")->width()), 1);
        EXPECT_LE(std::abs(rails.at(0)->width() - rails.at(1)->width()), 1);
        EXPECT_GT(place(banner).top(), place(page_.findChild<ConnectionBanner *>()).bottom());
        EXPECT_LT(place(banner).bottom(), output.top());
    }
}

} // namespace
} // namespace zpsg::ui::test
