// Carries what the subsystems know to the pages, and what a user sets on a page to the subsystems.
#pragma once

#include "app/Alarms.h"
#include "app/FanControl.h"
#include "app/Supply.h"
#include "power/DayProfile.h"
#include "power/Efficiency.h"

#include <QObject>

namespace zpsg::ui {
class DashboardPage;
class MainView;
} // namespace zpsg::ui

namespace zpsg::app {

/// Everything it is given outlives it.
class ViewFeed : public QObject {
    Q_OBJECT

public:
    ViewFeed(Supply &supply, Alarms &alarms, const FanControl &fan, const power::DayProfile &day,
             Settings &settings, ui::MainView &view, bool demo, power::RandomSource random,
             QObject *parent = nullptr);

    /// Once a second: supervises the latest reading, when there is one, and shows it as it is supervised.
    void takeReading(const QDateTime &now);
    /// Shows which alarms warn.
    void showWarnings();
    /// After the minute clock has gone on.
    void showDay(const QDateTime &now);

private:
    void showReading(const QDateTime &now);
    void showLinkState();
    void showSupply();
    void showProfile();
    void showAlarms();
    void connectAlarms();

    Supply &supply_;
    Alarms &alarms_;
    const FanControl &fan_;
    const power::DayProfile &day_;
    Settings &settings_;
    ui::MainView &view_;
    bool demo_; ///< the supply is a simulated one
    power::RandomSource random_;
};

} // namespace zpsg::app
