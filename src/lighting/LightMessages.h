// What other programs say to the rings and hear of them: the data of their messages into states, and states
// into texts. Numbers may come as numbers or as decimal texts; out of their range they are put into it, and a
// key that is missing leaves its setting as it is. docs/control-socket.md names the keys.
#pragma once

#include "lighting/LightingState.h"

#include <QVariantMap>

#include <optional>
#include <vector>

namespace zpsg::lighting {

/// "LightOn": true, false, 1, 0, also as texts; nothing for anything else.
[[nodiscard]] std::optional<bool> lightOnIn(const QVariantMap &data);

// The single-colour ring.

/// "LightMode", counted from 1.
[[nodiscard]] std::optional<int> singleModeIn(const QVariantMap &data);
/// "rColor", "gColor", "bColor"; what is missing is taken from `present`.
[[nodiscard]] Colour singleColourIn(const QVariantMap &data, Colour present);
/// "Brightness", percent.
[[nodiscard]] std::optional<int> brightnessIn(const QVariantMap &data);
/// "XX", switch ("01" off, "00" on), light mode from 1, red, green, blue, brightness in percent; at least two
/// digits each, joined by blanks.
[[nodiscard]] QByteArray singleStateText(const SingleRingState &state);

// The 12-LED ring.

/// "LightMode", "ColorMode", "Speed".
[[nodiscard]] PlusRingState withSetup(PlusRingState state, const QVariantMap &data);
/// "LED" (one or a list, 12 is the single colour; missing: all) and the colour.
[[nodiscard]] PlusRingState withColours(PlusRingState state, const QVariantMap &data);
/// "LED" and "Brightness".
[[nodiscard]] PlusRingState withBrightness(PlusRingState state, const QVariantMap &data);
/// A frame that is shown and not kept: lists "rColor", "gColor", "bColor" and "Brightness". Nothing when a
/// list is missing or too short.
[[nodiscard]] std::optional<std::vector<Colour>> plusFrameIn(const QVariantMap &data);
/// {"command":0,"Data":{...}}
[[nodiscard]] QString plusStateText(const PlusRingState &state);

// The Duo set. "LEDType": 0 front ring, 1 middle ring; missing: both.

/// "LightMode", "ColorMode", "SpeedMode".
[[nodiscard]] DuoState withSetup(DuoState state, const QVariantMap &data);
/// "LED" (of the ring; missing: all), "RGBType" (1 the single colour) and the colour.
[[nodiscard]] DuoState withColours(DuoState state, const QVariantMap &data);
/// The same with "Bright".
[[nodiscard]] DuoState withBrightness(DuoState state, const QVariantMap &data);
/// As plusFrameIn(), with lists of 18 under the Duo set's names.
[[nodiscard]] std::optional<std::vector<Colour>> duoFrameIn(const QVariantMap &data);
[[nodiscard]] QString duoStateText(const DuoState &state);

} // namespace zpsg::lighting
