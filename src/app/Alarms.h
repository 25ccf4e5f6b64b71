// The alarms as the user has them: supervised while their warnings are on, told when they begin, remembered
// in a log.
#pragma once

#include "app/Settings.h"
#include "psu/AlarmLog.h"
#include "psu/AlarmSupervisor.h"

#include <QObject>

namespace zpsg::app {

/// GUI thread only.
class Alarms : public QObject {
    Q_OBJECT

public:
    /// `settings` outlives this; `logPath` is the log's file.
    Alarms(Settings &settings, const QString &logPath, std::function<unsigned()> random,
           QObject *parent = nullptr);

    /// Takes in one reading; once a second while the supply answers.
    void tick(const psu::TelemetryRecord &record, const QDateTime &now);

    void setWarning(psu::AlarmGroup group, bool on);
    [[nodiscard]] bool warning(psu::AlarmGroup group) const;
    void clearLog();
    /// Whether a fan that stands is as it should be, from the next reading on.
    void expectStandingFan(bool expected) { supervisor_.expectStandingFan(expected); }

    [[nodiscard]] const psu::AlarmSupervisor &supervisor() const { return supervisor_; }
    [[nodiscard]] const psu::AlarmLog &log() const { return log_; }

signals:
    /// Tell the user.
    void began(const zpsg::psu::AlarmEntry &entry);
    /// The log has changed.
    void changed();

private:
    Settings &settings_;
    psu::AlarmSupervisor supervisor_;
    psu::AlarmLog log_;
};

} // namespace zpsg::app
