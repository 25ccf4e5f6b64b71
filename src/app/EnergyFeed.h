// Carries energy and cost to the dashboard, and the rates from their dialog to where they count.
#pragma once

#include "app/Settings.h"
#include "app/Usage.h"

#include <QObject>

namespace zpsg::ui {
class ElectricityRateWidget;
class EnergyView;
} // namespace zpsg::ui

namespace zpsg::app {

/// What a kWh costs at this moment, in words, and how many periods have a rate of their own.
[[nodiscard]] QString rateInWords(const power::Tariff &tariff, const QDateTime &now, const QString &currency);

/// GUI thread only. What it is given outlives it.
class EnergyFeed : public QObject {
    Q_OBJECT

public:
    EnergyFeed(Usage &usage, Settings &settings, ui::EnergyView &view, ui::ElectricityRateWidget &rates,
               QObject *parent = nullptr);

    /// Once a second.
    void tick(const QDateTime &now);
    /// Lets the user enter the rates.
    void askRates();

signals:
    /// The user has entered another base rate, money for a kWh.
    void rateConfirmed(float rate);

private:
    void show(const QDateTime &now);

    Usage &usage_;
    Settings &settings_;
    ui::EnergyView &view_;
    ui::ElectricityRateWidget &rates_;
};

} // namespace zpsg::app
