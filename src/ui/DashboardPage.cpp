#include "ui/DashboardPage.h"

#include "power/MainsPower.h"
#include "psu/AlarmEntry.h"
#include "psu/SupplyMonitor.h"
#include "psu/TelemetryRecord.h"
#include "ui/ArcGauge.h"
#include "ui/ConnectionBanner.h"
#include "ui/DayView.h"
#include "ui/EfficiencyView.h"
#include "ui/Figures.h"
#include "ui/PowerTrace.h"
#include "ui/RailCard.h"
#include "ui/Style.h"
#include "ui/Temperature.h"
#include "ui/TrendPanel.h"

#include <QEvent>
#include <QVBoxLayout>

namespace zpsg::ui {
namespace {

using psu::LinkState;

/// A rail's label and its keys in the record.
struct Rail {
    const char *name;
    double nominal;
    QLatin1String volts;
    QLatin1String amps;
};

const std::array<Rail, 3> kRails{{
    {"+12 V", 12.0, QLatin1String("VVOut12"), QLatin1String("VIOut12")},
    {"+5 V", 5.0, QLatin1String("VVOut5"), QLatin1String("VIOut5")},
    {"+3.3 V", 3.3, QLatin1String("VVOut33"), QLatin1String("VIOut33")},
}};

/// The output gauge's range while the model is not known, watts.
constexpr double kUsualWatts = 1000.0;
/// The speed that counts as 100 percent, revolutions a minute.
constexpr double kFanFullRpm = 2250.0;

/// Wide-range mains inputs take 90 to 264 volts.
constexpr ArcGauge::Scale kInputScale{80.0, 270.0, 4, 1};
constexpr ArcGauge::Scale kEfficiencyScale{0.0, 100.0, 4, 1};
constexpr double kCoolestCelsius = 0.0;
constexpr double kHottestCelsius = 80.0;
constexpr ArcGauge::Scale kFanScale{0.0, 2500.0, 5, 0};

/// The value when a supply has given it; a record holds plausible figures before that.
std::optional<double> measured(const psu::TelemetryRecord &record, const QString &key) {
    return record.measured(key) ? std::optional(record.number(key)) : std::nullopt;
}

void showEntry(ArcGauge &gauge, const psu::TelemetryRecord &record, const QString &key) {
    if (const auto value = measured(record, key)) {
        gauge.showValue(*value);
    }
}

} // namespace

DashboardPage::DashboardPage(QWidget *parent)
    : QWidget(parent)
    , banner_(new ConnectionBanner(this))
    , content_(new QWidget(this))
    , output_(new ArcGauge(ArcGauge::Prominence::Hero, content_))
    , efficiency_(new ArcGauge(ArcGauge::Prominence::Normal, content_))
    , temperature_(new ArcGauge(ArcGauge::Prominence::Normal, content_))
    , fan_(new ArcGauge(ArcGauge::Prominence::Normal, content_))
    , input_(new ArcGauge(ArcGauge::Prominence::Normal, content_))
    , trends_(new TrendPanel(content_)) {
    for (std::size_t i = 0; i < kRails.size(); ++i) {
        rails_.at(i) = new RailCard(QString::fromLatin1(kRails.at(i).name), kRails.at(i).nominal, content_);
    }
    output_->setObjectName(QStringLiteral("gaugeOutput"));
    efficiency_->setObjectName(QStringLiteral("gaugeEfficiency"));
    temperature_->setObjectName(QStringLiteral("gaugeTemperature"));
    fan_->setObjectName(QStringLiteral("gaugeFan"));
    input_->setObjectName(QStringLiteral("gaugeInput"));
    output_->setUnit(QStringLiteral("W"));
    efficiency_->setUnit(QStringLiteral("%"));
    input_->setUnit(QStringLiteral("V AC"));
    efficiency_->setScale(kEfficiencyScale);
    fan_->setScale(kFanScale);
    input_->setScale(kInputScale);
    connect(banner_, &ConnectionBanner::demoRequested, this, &DashboardPage::demoRequested);
    connect(banner_, &ConnectionBanner::demoEndRequested, this, &DashboardPage::demoEndRequested);
    scaleOutput();
    layOut();
    retranslate();
}

void DashboardPage::layOut() {
    auto *gauges = new QHBoxLayout;
    for (ArcGauge *gauge : {efficiency_, temperature_, fan_, input_}) {
        gauges->addWidget(gauge, 1);
    }
    auto *rails = new QHBoxLayout;
    for (RailCard *rail : rails_) {
        rails->addWidget(rail, 1);
    }
    auto *right = new QVBoxLayout;
    right->addLayout(gauges, 52);
    right->addLayout(rails, 48);
    auto *figures = new QHBoxLayout;
    figures->addWidget(output_, 33);
    figures->addLayout(right, 67);
    auto *contentLayout = new QVBoxLayout(content_);
    contentLayout->setContentsMargins(0, 0, 0, 0);
    contentLayout->addLayout(figures, 60);
    contentLayout->addWidget(trends_, 40);
    spaced_ = {gauges, rails, right, figures};

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(banner_);
    layout->addWidget(content_, 1);
}

void DashboardPage::setAlarmBanner(QWidget *banner) {
    auto *rows = static_cast<QVBoxLayout *>(layout());
    rows->insertWidget(rows->indexOf(content_), banner);
}

void DashboardPage::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    const qreal scale = style::windowScale(*this);
    const int gap = qRound(style::space::kM * scale);
    const int margin = qRound(style::space::kL * scale);
    for (QBoxLayout *spaced : spaced_) {
        spaced->setSpacing(gap);
    }
    content_->layout()->setSpacing(gap);
    layout()->setSpacing(gap);
    layout()->setContentsMargins(margin, 0, margin, margin);
}

void DashboardPage::retranslate() {
    output_->setCaption(qtTrId("MAIN_STR_OUTPUT_POWER"));
    efficiency_->setCaption(qtTrId("MAIN_STR_EFFICIENCY"));
    efficiency_->setToolTip(qtTrId("MAIN_STR_INPUT_POWER_EXPLAINED"));
    temperature_->setCaption(qtTrId("MAIN_STR_TEMPERATURE"));
    temperature_->setUnit(degreeUnit());
    temperature_->setScale({degrees(kCoolestCelsius), degrees(kHottestCelsius), 4, 0});
    temperature_->setCaution(degrees(psu::kHotCelsius), qtTrId("MAIN_STR_HOT"));
    showTemperature();
    fan_->setCaption(qtTrId("MAIN_STR_FAN"));
    fan_->setUnit(qtTrId("FAN_RPM"));
    input_->setCaption(qtTrId("MAIN_STR_INPUT_VOLTAGE"));
}

void DashboardPage::scaleOutput() {
    const bool known = ratedWatts_ > 0.0;
    output_->setScale({0.0, known ? ratedWatts_ : kUsualWatts, 5, 0});
    if (known) {
        output_->setCaution(ratedWatts_ * 1.001, {});
    }
}

void DashboardPage::setRatedWatts(double watts) {
    ratedWatts_ = watts;
    scaleOutput();
    if (const auto value = output_->readoutValue()) {
        noteLoad(*value);
    }
}

void DashboardPage::noteLoad(double watts) {
    output_->setNote(ratedWatts_ > 0.0 ? qtTrId("MAIN_STR_LOAD")
                                             .arg(formatFigure(100.0 * watts / ratedWatts_, 0),
                                                  formatFigure(ratedWatts_, 0))
                                       : QString());
}

void DashboardPage::showReading(const psu::TelemetryRecord &record, const Shown &shown, qint64 msSinceEpoch) {
    if (state_ != LinkState::Live) {
        trends_->power()->append(msSinceEpoch, std::nullopt);
        return;
    }
    const auto watts = measured(record, QStringLiteral("WATTS"));
    if (watts) {
        output_->showValue(*watts);
        noteLoad(*watts);
    }
    showEfficiency(watts, shown.efficiency);
    celsius_ = measured(record, QStringLiteral("Temp"));
    showTemperature();
    showFan(record);
    showEntry(*input_, record, QStringLiteral("VIN"));
    for (std::size_t i = 0; i < rails_.size(); ++i) {
        const auto amps = measured(record, kRails.at(i).amps);
        if (amps && record.measured(kRails.at(i).volts)) {
            rails_.at(i)->showReading(shown.railVolts.at(i), *amps);
        }
    }
    trends_->power()->append(msSinceEpoch, watts);
}

void DashboardPage::showTemperature() {
    if (celsius_) {
        temperature_->showValue(degrees(*celsius_));
        temperature_->setStale(state_ == LinkState::Silent);
    }
}

void DashboardPage::showFan(const psu::TelemetryRecord &record) {
    showEntry(*fan_, record, QStringLiteral("FanSpeed"));
    const auto speed = fan_->readoutValue();
    if (!speed) {
        fan_->setNote({});
    } else if (*speed <= psu::kFanStandsRpm) {
        fan_->setNote(qtTrId("MAIN_STR_FAN_STANDS"));
    } else {
        fan_->setNote(formatFigure(100.0 * *speed / kFanFullRpm, 0) + QStringLiteral("\u00A0%"));
    }
}

void DashboardPage::showEfficiency(std::optional<double> watts, std::optional<double> percent) {
    if (percent) {
        efficiency_->showValue(*percent);
    } else {
        efficiency_->clear();
    }
    const auto mains = power::mainsPower(watts, percent);
    efficiency_->setNote(mains ? qtTrId("MAIN_STR_INPUT_POWER").arg(formatFigure(mains->inputWatts, 0))
                               : QString());
    trends_->efficiency()->showPoint(watts, percent);
}

void DashboardPage::setCurve(const std::vector<float> &percentPerTenWatts, double ratedWatts, bool band230) {
    trends_->efficiency()->setCurve(percentPerTenWatts, ratedWatts, band230);
}

void DashboardPage::showDay(const std::vector<float> &bucketWatts, int usageMinutes, int bucketNow) {
    trends_->day()->showDay(bucketWatts, usageMinutes, bucketNow);
}

void DashboardPage::showLinkState(LinkState state, const QString &modelText) {
    state_ = state;
    banner_->showState(state, modelText);
    if (state == LinkState::Silent) {
        setStale(true);
    } else if (state != LinkState::Live) {
        clearValues();
    }
    // Back to live: grey until the first reading says otherwise.
}

void DashboardPage::setStale(bool stale) {
    for (ArcGauge *gauge : {output_, efficiency_, temperature_, fan_, input_}) {
        gauge->setStale(stale);
    }
    for (RailCard *rail : rails_) {
        rail->setStale(stale);
    }
    trends_->efficiency()->setStale(stale);
}

void DashboardPage::clearValues() {
    for (ArcGauge *gauge : {output_, efficiency_, temperature_, fan_, input_}) {
        gauge->clear();
        gauge->setNote({});
    }
    celsius_.reset();
    for (RailCard *rail : rails_) {
        rail->clear();
    }
    trends_->efficiency()->showPoint(std::nullopt, std::nullopt);
}

void DashboardPage::setDemo(bool demo) { banner_->setDemo(demo); }

void DashboardPage::setRemedy(const QString &command) { banner_->setRemedy(command); }

void DashboardPage::setContentEnabled(bool enabled) {
    for (ArcGauge *gauge : {output_, efficiency_, temperature_, fan_, input_}) {
        gauge->setEnabled(enabled);
    }
    for (RailCard *rail : rails_) {
        rail->setEnabled(enabled);
    }
    // What was used, and what the PC's own sensors say, is there without a supply.
}

void DashboardPage::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

} // namespace zpsg::ui
