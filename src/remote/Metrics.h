// The readings as the text that a metrics collector reads: Prometheus's exposition format, version 0.0.4.
#pragma once

#include "psu/AlarmEntry.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <optional>

namespace zpsg::remote {

inline constexpr const char *kMetricsContentType = "text/plain; version=0.0.4; charset=utf-8";

/// The fan's modes as the label "mode" names them.
inline constexpr std::array kFanModeWords{"silent", "performance", "zero", "custom"};

struct RailValues {
    std::optional<double> volts;
    std::optional<double> amperes;
};

/// What is not known is left out of the text, never told as 0; so is what is no finite number.
struct MetricValues {
    std::optional<double> mainsVolts;
    RailValues rail12;
    RailValues rail5;
    RailValues rail33;
    std::optional<double> outputWatts;
    std::optional<double> loadRatio;       ///< of the rated power; 1 is all of it
    std::optional<double> efficiencyRatio; ///< output to input, 0 to 1
    std::optional<double> celsius;
    std::optional<double> fanRpm;
    std::optional<std::size_t> fanMode; ///< index into kFanModeWords
    std::optional<double> energyJoules; ///< delivered in all; never falls while the program runs
    bool connected = false;             ///< a supply answers
    std::optional<std::array<bool, psu::kAlarmKinds>> alarms; ///< by AlarmKind; true while it holds
    QString model;                                            ///< empty, as the two below: not known
    QString serial;
    QString version; ///< of the program
};

/// UTF-8, each line ended by a line feed. Names, labels and units are a contract with whoever collects them.
[[nodiscard]] QByteArray metricsText(const MetricValues &values);

} // namespace zpsg::remote
