// The texts of the remote control: commands that come in, messages that go out.
#pragma once

#include "psu/TelemetryRecord.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace zpsg::remote {

/// {"comm": 3, "clientID": "...", "status": "..."}; the two texts are empty when they are missing.
struct MqttCommand {
    int comm = 0;
    QString clientID;
    QString status;
};

/// The command in `text`; none when that is no JSON object, or when "comm" is no integer. "comm" may also be
/// decimal text ("03").
[[nodiscard]] std::optional<MqttCommand> parseCommand(const QString &text);

/// {"comm","m_id","p_id","status"} as compact JSON, in Latin-1. Keys stand in alphabetical order; a character
/// that Latin-1 lacks becomes "?".
[[nodiscard]] QByteArray messageBytes(const QString &machine, const QString &person, const QString &code,
                                      const QString &status);

/// "temperature!output power!efficiency!fan speed!load", in °C, W, %, rpm and % of `ratedWatts`. An
/// efficiency above 99.5 or below 40 % is an artefact of the reading: `plausibleEfficiency` stands in for it.
[[nodiscard]] QString readingsText(const psu::TelemetryRecord &record, double ratedWatts,
                                   double plausibleEfficiency);

} // namespace zpsg::remote
