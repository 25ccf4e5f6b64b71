#include "psu/AlarmSupervisor.h"

#include <algorithm>

namespace zpsg::psu {
namespace {

constexpr std::size_t kWindow = 60;
constexpr std::size_t kTolerated = 9;

/// Where a kind's samples come from and when one is out of range. Bounds count as out of range.
struct Row {
    AlarmKind kind;
    const char *name;
    const char *key;
    const char *companionKey; ///< null but for the rails
    unsigned offsetSteps;     ///< the offset is 0 to this many minus one, in thousandths
    double lowest, highest;
};

constexpr double kNoBound = 1e30;
// Rails: 6 % around the nominal voltage. Fan: at most 10 rpm counts as standing. Temperature: 60 degrees and
// more.
constexpr std::array kRows{
    Row{AlarmKind::Rail12, "voltError", "VVOut12", "HW12V", 50, 11.28, 12.72},
    Row{AlarmKind::Rail5, "voltError", "VVOut5", "HW5V", 30, 4.7, 5.3},
    Row{AlarmKind::Rail33, "voltError", "VVOut33", "HW33V", 30, 3.102, 3.498},
    Row{AlarmKind::Fan, "fansError", "FanSpeed", nullptr, 0, kFanStandsRpm, kNoBound},
    Row{AlarmKind::Temperature, "PSU_Temp_Error", "Temp", nullptr, 0, -kNoBound, kHotCelsius},
};
static_assert(kRows.size() == kAlarmKinds);

constexpr const Row &rowOf(AlarmKind kind) { return kRows.at(static_cast<std::size_t>(kind)); }

/// Rails are supervised as single-precision volts, fan and temperature as whole numbers.
double sampled(const Row &row, double value, unsigned random) {
    if (row.companionKey == nullptr) {
        return static_cast<int>(value);
    }
    const unsigned offset = random % row.offsetSteps;
    return static_cast<float>(static_cast<float>(value) + static_cast<float>(offset) / 1000.0F);
}

bool outOfRange(const Row &row, double value) {
    if (row.companionKey == nullptr) {
        return value <= row.lowest || value >= row.highest;
    }
    const auto volts = static_cast<float>(value);
    return volts <= static_cast<float>(row.lowest) || volts >= static_cast<float>(row.highest);
}

} // namespace

const char *alarmName(AlarmKind kind) { return rowOf(kind).name; }

AlarmSupervisor::AlarmSupervisor(std::function<unsigned()> random) : random_(std::move(random)) {}

AlarmSupervisor::Changes AlarmSupervisor::tick(const TelemetryRecord &record) {
    Changes changes;
    for (const Row &row : kRows) {
        History &history = histories_.at(index(row.kind));
        const bool rail = row.companionKey != nullptr;
        const double value = sampled(row, record.number(QLatin1String(row.key)), rail ? random_() : 0U);
        history.samples.push_back({value, rail ? record.number(QLatin1String(row.companionKey)) : 0.0});
        if (history.samples.size() > kWindow) {
            history.samples.pop_front();
        }
        if (row.kind == AlarmKind::Fan && fanMayStand_) {
            history.samples.clear();
        }
        const auto bad =
            std::count_if(history.samples.begin(), history.samples.end(),
                          [&row](const Sample &sample) { return outOfRange(row, sample.value); });
        const bool warned = warnings_.at(static_cast<std::size_t>(groupOf(row.kind)));
        const bool was = std::exchange(history.active, warned && static_cast<std::size_t>(bad) > kTolerated);
        if (history.active != was) {
            (was ? changes.ended : changes.begun).push_back(row.kind);
        }
    }
    return changes;
}

QStringList AlarmSupervisor::activeNames() const {
    QStringList names;
    for (const Row &row : kRows) {
        if (active(row.kind)) {
            names.append(QString::fromLatin1(row.name));
        }
    }
    names.removeDuplicates();
    return names;
}

double AlarmSupervisor::shown(AlarmKind kind) const {
    const auto &samples = histories_.at(index(kind)).samples;
    return samples.empty() ? 0.0 : samples.back().value;
}

} // namespace zpsg::psu
