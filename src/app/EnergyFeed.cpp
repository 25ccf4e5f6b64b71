#include "app/EnergyFeed.h"

#include "ui/ElectricityRateText.h"
#include "ui/ElectricityRateWidget.h"
#include "ui/EnergyView.h"

#include <algorithm>

namespace zpsg::app {
namespace {

bool anyRate(const power::Tariff &tariff) {
    const auto &periods = tariff.periods();
    return tariff.baseRate() > 0.0 ||
           std::any_of(periods.begin(), periods.end(), [](const auto &period) { return period.rate > 0.0; });
}

ui::EnergyShown::Figures shown(const Figures &figures) {
    return {figures.minutes, figures.outputKwh, figures.wallKwh, figures.cost};
}

} // namespace

QString rateInWords(const power::Tariff &tariff, const QDateTime &now, const QString &currency) {
    if (!anyRate(tariff)) {
        return qtTrId("SETTING_STR_RATE_NONE");
    }
    const QString price = ui::priceText(tariff.rateAt(now), currency);
    const auto periods = static_cast<int>(tariff.periods().size());
    return periods == 0 ? qtTrId("SETTING_STR_RATE_NOW").arg(price)
                        : qtTrId("SETTING_STR_RATE_PERIODS").arg(price).arg(periods);
}

EnergyFeed::EnergyFeed(Usage &usage, Settings &settings, ui::EnergyView &view,
                       ui::ElectricityRateWidget &rates, QObject *parent)
    : QObject(parent), usage_(usage), settings_(settings), view_(view), rates_(rates) {
    using ui::ElectricityRateWidget;
    connect(&rates_, &ElectricityRateWidget::rateConfirmed, this, &EnergyFeed::rateConfirmed);
    connect(&rates_, &ElectricityRateWidget::currencyChosen, this, [this](const QString &code) {
        settings_.write({{Setting::Currency, code}});
    });
    connect(&rates_, &ElectricityRateWidget::periodsConfirmed, this,
            [this](const QString &periods) { usage_.setTimeOfUse(power::parseTariff(0.0, periods).tariff); });
}

void EnergyFeed::askRates() { rates_.open(usage_.tariff(), settings_.text(Setting::Currency)); }

void EnergyFeed::tick(const QDateTime &now) {
    if (view_.isVisible()) {
        show(now);
    }
}

void EnergyFeed::show(const QDateTime &now) {
    const QDate today = now.date();
    ui::EnergyShown energy;
    energy.today = shown(usage_.today(today));
    energy.month = shown(usage_.month(today));
    energy.year = shown(usage_.year(today));
    energy.thisRun = shown(usage_.thisRun());
    energy.lastRun = shown(usage_.lastRun());
    energy.total = shown(usage_.total());
    if (const auto year = usage_.projectedYear(today)) {
        energy.projectedYear = shown(*year);
    }
    energy.rateKnown = anyRate(usage_.tariff());
    energy.efficiencyKnown = usage_.efficiencyKnown();
    energy.currency = settings_.text(Setting::Currency);
    view_.showEnergy(energy);
}

} // namespace zpsg::app
