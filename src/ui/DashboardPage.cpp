#include "ui/DashboardPage.h"

#include "psu/SupplyMonitor.h"
#include "psu/TelemetryRecord.h"
#include "ui/ArcGauge.h"
#include "ui/ConnectionBanner.h"
#include "ui/Figures.h"
#include "ui/PowerTrace.h"
#include "ui/RailCard.h"
#include "ui/Style.h"

#include <QEvent>
#include <QGridLayout>
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
/// From here on the supply's own temperature is a warning, degrees Celsius.
constexpr double kHotCelsius = 60.0;
/// At or below this the fan stands still, revolutions a minute.
constexpr double kFanStandsRpm = 10.0;

/// Wide-range mains inputs take 90 to 264 volts.
constexpr ArcGauge::Scale kInputScale{80.0, 270.0, 4, 1};
constexpr ArcGauge::Scale kTemperatureScale{0.0, 80.0, 4, 0};
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
    , figures_(new QGridLayout)
    , output_(new ArcGauge(ArcGauge::Prominence::Hero, content_))
    , input_(new ArcGauge(ArcGauge::Prominence::Normal, content_))
    , temperature_(new ArcGauge(ArcGauge::Prominence::Normal, content_))
    , fan_(new ArcGauge(ArcGauge::Prominence::Normal, content_))
    , trace_(new PowerTrace(content_)) {
    for (std::size_t i = 0; i < kRails.size(); ++i) {
        rails_.at(i) = new RailCard(QString::fromLatin1(kRails.at(i).name), kRails.at(i).nominal, content_);
    }
    output_->setObjectName(QStringLiteral("gaugeOutput"));
    input_->setObjectName(QStringLiteral("gaugeInput"));
    temperature_->setObjectName(QStringLiteral("gaugeTemperature"));
    fan_->setObjectName(QStringLiteral("gaugeFan"));
    output_->setUnit(QStringLiteral("W"));
    input_->setUnit(QStringLiteral("V AC"));
    temperature_->setUnit(QStringLiteral("\u00B0C"));
    fan_->setUnit(QStringLiteral("rpm"));
    input_->setScale(kInputScale);
    temperature_->setScale(kTemperatureScale);
    fan_->setScale(kFanScale);
    scaleOutput();
    layOut();
    retranslate();
}

void DashboardPage::layOut() {
    figures_->addWidget(output_, 0, 0, 2, 1);
    int column = 1;
    for (ArcGauge *gauge : {input_, temperature_, fan_}) {
        figures_->addWidget(gauge, 0, column++);
    }
    column = 1;
    for (RailCard *rail : rails_) {
        figures_->addWidget(rail, 1, column++);
    }
    figures_->setColumnStretch(0, 36);
    for (column = 1; column <= 3; ++column) {
        figures_->setColumnStretch(column, 21);
    }
    figures_->setRowStretch(0, 52);
    figures_->setRowStretch(1, 48);

    auto *contentLayout = new QVBoxLayout(content_);
    contentLayout->setContentsMargins(0, 0, 0, 0);
    contentLayout->addLayout(figures_, 60);
    contentLayout->addWidget(trace_, 40);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(banner_);
    layout->addWidget(content_, 1);
}

void DashboardPage::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    const qreal scale = style::windowScale(*this);
    const int gap = qRound(style::space::kM * scale);
    const int margin = qRound(style::space::kL * scale);
    figures_->setSpacing(gap);
    content_->layout()->setSpacing(gap);
    layout()->setSpacing(gap);
    layout()->setContentsMargins(margin, 0, margin, margin);
}

void DashboardPage::retranslate() {
    output_->setCaption(qtTrId("MAIN_STR_OUTPUT_POWER"));
    input_->setCaption(qtTrId("MAIN_STR_INPUT_VOLTAGE"));
    temperature_->setCaption(qtTrId("MAIN_STR_TEMPERATURE"));
    temperature_->setCaution(kHotCelsius, qtTrId("MAIN_STR_HOT"));
    fan_->setCaption(qtTrId("MAIN_STR_FAN"));
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

void DashboardPage::showReading(const psu::TelemetryRecord &record, qint64 msSinceEpoch) {
    if (state_ != LinkState::Live) {
        trace_->append(msSinceEpoch, std::nullopt);
        return;
    }
    const auto watts = measured(record, QStringLiteral("WATTS"));
    if (watts) {
        output_->showValue(*watts);
        noteLoad(*watts);
    }
    showEntry(*input_, record, QStringLiteral("VIN"));
    showEntry(*temperature_, record, QStringLiteral("Temp"));
    showEntry(*fan_, record, QStringLiteral("FanSpeed"));
    const bool stands = fan_->readoutValue() && *fan_->readoutValue() <= kFanStandsRpm;
    fan_->setNote(stands ? qtTrId("MAIN_STR_FAN_STANDS") : QString());
    for (std::size_t i = 0; i < rails_.size(); ++i) {
        const auto volts = measured(record, kRails.at(i).volts);
        const auto amps = measured(record, kRails.at(i).amps);
        if (volts && amps) {
            rails_.at(i)->showReading(*volts, *amps);
        }
    }
    trace_->append(msSinceEpoch, watts);
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
    for (ArcGauge *gauge : {output_, input_, temperature_, fan_}) {
        gauge->setStale(stale);
    }
    for (RailCard *rail : rails_) {
        rail->setStale(stale);
    }
}

void DashboardPage::clearValues() {
    for (ArcGauge *gauge : {output_, input_, temperature_, fan_}) {
        gauge->clear();
        gauge->setNote({});
    }
    for (RailCard *rail : rails_) {
        rail->clear();
    }
}

void DashboardPage::setDemo(bool demo) { banner_->setDemo(demo); }

void DashboardPage::setRemedy(const QString &command) { banner_->setRemedy(command); }

void DashboardPage::setContentEnabled(bool enabled) { content_->setEnabled(enabled); }

void DashboardPage::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

} // namespace zpsg::ui
