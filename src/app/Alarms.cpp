#include "app/Alarms.h"

#include "app/Logging.h"

namespace zpsg::app {
namespace {

using psu::AlarmGroup;

constexpr std::array kGroups{AlarmGroup::Voltage, AlarmGroup::Fan, AlarmGroup::Temperature};
/// By AlarmGroup.
constexpr std::array kSwitches{Setting::VoltWarning, Setting::FanWarning, Setting::TempWarning};
static_assert(kGroups.size() == psu::kAlarmGroups && kSwitches.size() == psu::kAlarmGroups);

constexpr Setting switchOf(AlarmGroup group) { return kSwitches.at(static_cast<std::size_t>(group)); }

} // namespace

Alarms::Alarms(Settings &settings, const QString &logPath, std::function<unsigned()> random, QObject *parent)
    : QObject(parent), settings_(settings), supervisor_(std::move(random)), log_(logPath) {
    for (const auto group : kGroups) {
        supervisor_.setWarning(group, warning(group));
    }
}

bool Alarms::warning(AlarmGroup group) const { return settings_.flag(switchOf(group)); }

void Alarms::setWarning(AlarmGroup group, bool on) {
    settings_.write({{switchOf(group), on}});
    supervisor_.setWarning(group, on);
}

void Alarms::tick(const psu::TelemetryRecord &record, const QDateTime &now) {
    const auto changes = supervisor_.tick(record);
    for (const auto kind : changes.ended) {
        log_.end(kind, now);
    }
    for (const auto kind : changes.begun) {
        log_.begin(kind, supervisor_.shown(kind), now);
        qCDebug(lcApp) << psu::alarmName(kind);
        if (kind == psu::AlarmKind::Temperature) {
            qCDebug(lcApp) << "sentMqttMessage(03, PSU_Temp_Error);";
        }
        emit began(log_.entries().back());
    }
    if (!changes.begun.empty() || !changes.ended.empty()) {
        emit changed();
    }
    log_.retry(now);
}

void Alarms::clearLog() {
    log_.clear();
    emit changed();
}

} // namespace zpsg::app
