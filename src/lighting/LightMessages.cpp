#include "lighting/LightMessages.h"

#include "lighting/Effects.h"
#include "lighting/LedReports.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace zpsg::lighting {
namespace {

constexpr int kComponent = 255;
constexpr int kPercent = 100;

std::optional<double> numberOf(const QVariant &value) {
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

/// The number under `key`, put into `lowest` to `highest`.
std::optional<int> intIn(const QVariantMap &data, const char *key, int lowest, int highest) {
    const auto number = numberOf(data.value(QLatin1String(key)));
    if (!number) {
        return std::nullopt;
    }
    return static_cast<int>(std::clamp(*number, static_cast<double>(lowest), static_cast<double>(highest)));
}

template <typename T>
void take(T &setting, const QVariantMap &data, const char *key, int highest) {
    setting = intIn(data, key, 0, highest).value_or(setting);
}

/// The numbers of the lights meant, each below `count`; all of them when none are named.
std::vector<std::size_t> ledsIn(const QVariantMap &data, std::size_t count) {
    std::vector<std::size_t> leds;
    if (!data.contains(QStringLiteral("LED"))) {
        for (std::size_t i = 0; i < count; ++i) {
            leds.push_back(i);
        }
        return leds;
    }
    const QVariant named = data.value(QStringLiteral("LED"));
    const QVariantList list = named.type() == QVariant::List ? named.toList() : QVariantList{named};
    for (const auto &item : list) {
        const auto number = numberOf(item);
        if (number && *number >= 0 && *number < static_cast<double>(count)) {
            leds.push_back(static_cast<std::size_t>(*number));
        }
    }
    return leds;
}

std::vector<std::size_t> ringsIn(const QVariantMap &data) {
    const auto ring = intIn(data, "LEDType", 0, 1);
    return ring ? std::vector{static_cast<std::size_t>(*ring)} : std::vector{kFront, kMiddle};
}

/// Lists of `count` components under three keys, at the brightness under a fourth.
std::optional<std::vector<Colour>> frameIn(const QVariantMap &data, const std::array<const char *, 4> &keys,
                                           std::size_t count) {
    std::array<QVariantList, 3> parts;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        parts.at(i) = data.value(QLatin1String(keys.at(i))).toList();
        if (static_cast<std::size_t>(parts.at(i).size()) < count) {
            return std::nullopt;
        }
    }
    const double factor = brightnessFactor(intIn(data, keys[3], 0, kPercent).value_or(kPercent));
    std::vector<Colour> frame;
    for (int i = 0; i < static_cast<int>(count); ++i) {
        const auto component = [&](std::size_t part) {
            const double number = numberOf(parts.at(part).at(i)).value_or(0.0);
            return static_cast<std::uint8_t>(std::clamp(number, 0.0, static_cast<double>(kComponent)));
        };
        frame.push_back(scaled({component(0), component(1), component(2)}, factor));
    }
    return frame;
}

template <typename List>
QJsonArray asArray(const List &values) {
    QJsonArray array;
    for (const auto value : values) {
        array.append(static_cast<int>(value));
    }
    return array;
}

template <typename List>
QJsonArray asPercents(const List &factors) {
    QJsonArray array;
    for (const auto factor : factors) {
        array.append(static_cast<int>(std::lround(factor * kPercent)));
    }
    return array;
}

QString reply(const QJsonObject &data) {
    return QString::fromUtf8(
        QJsonDocument(QJsonObject{{QStringLiteral("command"), 0}, {QStringLiteral("Data"), data}})
            .toJson(QJsonDocument::Compact));
}

QString twoDigits(int number) { return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0')); }

} // namespace

std::optional<bool> lightOnIn(const QVariantMap &data) {
    const QString word = data.value(QStringLiteral("LightOn")).toString().trimmed().toLower();
    if (word == QLatin1String("true") || word == QLatin1String("false")) {
        return word == QLatin1String("true");
    }
    const auto number = intIn(data, "LightOn", 0, 1);
    return number ? std::optional(*number == 1) : std::nullopt;
}

std::optional<int> singleModeIn(const QVariantMap &data) {
    const auto mode = intIn(data, "LightMode", 1, static_cast<int>(kSingleLightModes.size()));
    return mode ? std::optional(*mode - 1) : std::nullopt;
}

Colour singleColourIn(const QVariantMap &data, Colour present) {
    take(present.red, data, "rColor", kComponent);
    take(present.green, data, "gColor", kComponent);
    take(present.blue, data, "bColor", kComponent);
    return present;
}

std::optional<int> brightnessIn(const QVariantMap &data) { return intIn(data, "Brightness", 0, kPercent); }

QByteArray singleStateText(const SingleRingState &state) {
    const QStringList fields{QStringLiteral("XX"),
                             twoDigits(state.off ? 1 : 0),
                             twoDigits(state.lightMode + 1),
                             twoDigits(state.colour.red),
                             twoDigits(state.colour.green),
                             twoDigits(state.colour.blue),
                             twoDigits(static_cast<int>(std::lround(state.brightness * kPercent)))};
    return fields.join(QLatin1Char(' ')).toLatin1();
}

PlusRingState withSetup(PlusRingState state, const QVariantMap &data) {
    take(state.lightMode, data, "LightMode", static_cast<int>(kPlusLightModes.size()) - 1);
    take(state.colourMode, data, "ColorMode", 1);
    take(state.lightSpeed, data, "Speed", kSpeedCount - 1);
    if (state.lightMode == kPlusThermal) {
        state.colourMode = kColourModeEach; // the single colour's slot is dark in that mode
    }
    return state;
}

PlusRingState withColours(PlusRingState state, const QVariantMap &data) {
    for (const std::size_t slot : ledsIn(data, kPlusSlots)) {
        take(state.red.at(slot), data, "rColor", kComponent);
        take(state.green.at(slot), data, "gColor", kComponent);
        take(state.blue.at(slot), data, "bColor", kComponent);
    }
    return state;
}

PlusRingState withBrightness(PlusRingState state, const QVariantMap &data) {
    if (const auto percent = brightnessIn(data)) {
        for (const std::size_t slot : ledsIn(data, kPlusSlots)) {
            state.brightness.at(slot) = static_cast<float>(*percent) / static_cast<float>(kPercent);
        }
        state.panelBrightness = *percent;
    }
    return state;
}

std::optional<std::vector<Colour>> plusFrameIn(const QVariantMap &data) {
    return frameIn(data, {"rColor", "gColor", "bColor", "Brightness"}, kPlusLeds);
}

QString plusStateText(const PlusRingState &state) {
    return reply({{QStringLiteral("LightOn"), state.off ? 0 : 1},
                  {QStringLiteral("ColorMode"), state.colourMode},
                  {QStringLiteral("LightMode"), state.lightMode},
                  {QStringLiteral("Speed"), state.lightSpeed},
                  {QStringLiteral("rColor"), asArray(state.red)},
                  {QStringLiteral("gColor"), asArray(state.green)},
                  {QStringLiteral("bColor"), asArray(state.blue)},
                  {QStringLiteral("Brightness"), asPercents(state.brightness)}});
}

DuoState withSetup(DuoState state, const QVariantMap &data) {
    for (const std::size_t ring : ringsIn(data)) {
        take(state.lightMode.at(ring), data, "LightMode", static_cast<int>(kDuoEffectCount) - 1);
        take(state.colourMode.at(ring), data, "ColorMode", 1);
        take(state.speedMode.at(ring), data, "SpeedMode", kSpeedCount - 1);
    }
    return state;
}

namespace {

/// Calls `single` for each ring meant by its single colour, `entry` for each entry of the lists meant else.
template <typename Single, typename Entry>
void forEachMeant(const QVariantMap &data, Single single, Entry entry) {
    const bool bySingle = intIn(data, "RGBType", 0, 1).value_or(0) == 1;
    for (const std::size_t ring : ringsIn(data)) {
        if (bySingle) {
            single(ring);
            continue;
        }
        for (const std::size_t led : ledsIn(data, ring == kFront ? kFrontLeds : kMiddleLeds)) {
            entry(duoEntry(ring, led));
            if (ring == kFront) {
                entry(duoEntry(ring, led) - 1); // the front ring's LEDs stand for two entries each
            }
        }
    }
}

} // namespace

DuoState withColours(DuoState state, const QVariantMap &data) {
    const auto colour = [&data](int &red, int &green, int &blue) {
        take(red, data, "Color_R", kComponent);
        take(green, data, "Color_G", kComponent);
        take(blue, data, "Color_B", kComponent);
    };
    forEachMeant(
        data,
        [&](std::size_t ring) {
            colour(state.singleRed.at(ring), state.singleGreen.at(ring), state.singleBlue.at(ring));
        },
        [&](std::size_t entry) { colour(state.red.at(entry), state.green.at(entry), state.blue.at(entry)); });
    return state;
}

DuoState withBrightness(DuoState state, const QVariantMap &data) {
    if (const auto percent = intIn(data, "Bright", 0, kPercent)) {
        const double factor = static_cast<double>(*percent) / kPercent;
        forEachMeant(
            data, [&](std::size_t ring) { state.singleBrightness.at(ring) = factor; },
            [&](std::size_t entry) { state.brightness.at(entry) = factor; });
    }
    return state;
}

std::optional<std::vector<Colour>> duoFrameIn(const QVariantMap &data) {
    return frameIn(data, {"Color_R", "Color_G", "Color_B", "Bright"}, kDuoLeds);
}

QString duoStateText(const DuoState &state) {
    return reply({{QStringLiteral("LightOn"), state.on ? 1 : 0},
                  {QStringLiteral("LightMode"), asArray(state.lightMode)},
                  {QStringLiteral("ColorMode"), asArray(state.colourMode)},
                  {QStringLiteral("SpeedMode"), asArray(state.speedMode)},
                  {QStringLiteral("m_Color_R"), asArray(state.red)},
                  {QStringLiteral("m_Color_G"), asArray(state.green)},
                  {QStringLiteral("m_Color_B"), asArray(state.blue)},
                  {QStringLiteral("m_BrightValue"), asPercents(state.brightness)},
                  {QStringLiteral("SingleColor_R"), asArray(state.singleRed)},
                  {QStringLiteral("SingleColor_G"), asArray(state.singleGreen)},
                  {QStringLiteral("SingleColor_B"), asArray(state.singleBlue)},
                  {QStringLiteral("SingleBrightValue"), asPercents(state.singleBrightness)}});
}

} // namespace zpsg::lighting
