#include "sensors/HwinfoLabels.h"

#include "sensors/CardChoice.h"
#include "sensors/PcValues.h"

#include <algorithm>

namespace zpsg::sensors {
namespace {

struct LabelRule {
    PcMember member;
    std::string_view label;
};

/// For each value the best first. What follows in parentheses is left open, as "(SVI2 TFN)", which names the
/// bus and goes with the generation.
constexpr std::array kRules{
    LabelRule{&PcReading::cpuVolts, "CPU Core Voltage"},
    LabelRule{&PcReading::cpuVolts, "CPU VDDCR_VDD Voltage"},
    LabelRule{&PcReading::cpuVolts, "Vcore"},
    LabelRule{&PcReading::cpuVolts, "CPU VCORE"},
    LabelRule{&PcReading::cpuAmps, "CPU Core Current"},
    LabelRule{&PcReading::cpuAmps, "CPU VDDCR_VDD Current"},
    LabelRule{&PcReading::cpuWatts, "CPU Package Power"},
    // Some boards have a sensor "CPU Package" of their own, so the processor's label goes before it.
    LabelRule{&PcReading::cpuCelsius, "CPU (Tctl/Tdie)"},
    LabelRule{&PcReading::cpuCelsius, "CPU (Tdie)"},
    LabelRule{&PcReading::cpuCelsius, "CPU (Tctl)"},
    LabelRule{&PcReading::cpuCelsius, "CPU Package"},
    LabelRule{&PcReading::gpuVolts, "GPU Core Voltage"},
    LabelRule{&PcReading::gpuAmps, "GPU Core Current"},
    // What the whole card takes before what its chip does.
    LabelRule{&PcReading::gpuWatts, "Total Board Power"},
    LabelRule{&PcReading::gpuWatts, "GPU Power"},
    LabelRule{&PcReading::gpuWatts, "Total Graphics Power"},
    LabelRule{&PcReading::gpuWatts, "GPU ASIC Power"},
    LabelRule{&PcReading::gpuCelsius, "GPU Temperature"},
};

/// The value in V, A, W or °C; nothing for a reading of another kind or in a unit that isn't known. The user
/// may have chosen Fahrenheit.
std::optional<double> valueOf(const HwinfoReading &reading, platform::PcQuantity quantity) {
    struct Form {
        platform::PcQuantity quantity;
        HwinfoType type;
        std::string_view unit;
    };
    constexpr std::array<Form, 4> kForms{{
        {platform::PcQuantity::Volts, HwinfoType::Volts, "V"},
        {platform::PcQuantity::Amps, HwinfoType::Amps, "A"},
        {platform::PcQuantity::Watts, HwinfoType::Watts, "W"},
        {platform::PcQuantity::Celsius, HwinfoType::Temperature, "C"},
    }};
    const auto *form = std::find_if(kForms.begin(), kForms.end(),
                                    [quantity](const Form &row) { return row.quantity == quantity; });
    if (form == kForms.end() || reading.type != form->type) {
        return std::nullopt;
    }
    if (quantity == platform::PcQuantity::Celsius) {
        // The degree sign before it is written differently in different code pages.
        if (reading.unit.ends_with('F')) {
            return sensible((reading.value - 32.0) / 1.8, quantity);
        }
        return reading.unit.ends_with('C') ? sensible(reading.value, quantity) : std::nullopt;
    }
    if (reading.unit == form->unit) {
        return sensible(reading.value, quantity);
    }
    const bool milli = reading.unit.starts_with('m') && reading.unit.substr(1) == form->unit;
    return milli ? sensible(reading.value / 1000.0, quantity) : std::nullopt;
}

bool isLabel(std::string_view label, std::string_view wanted) {
    return label == wanted || (label.starts_with(wanted) && label.substr(wanted.size()).starts_with(" ("));
}

/// "GPU [#0]: NVIDIA GeForce RTX 3080: maker" is sensor group "GPU [#0]" of model "NVIDIA GeForce RTX 3080".
/// A name of another form is its own group, without a model.
struct SensorName {
    std::string_view group;
    std::string_view model;
};

SensorName split(std::string_view name) {
    constexpr std::string_view kBetween = "]: ";
    const auto end = name.find(kBetween);
    if (end == std::string_view::npos) {
        return {name, {}};
    }
    const auto rest = name.substr(end + kBetween.size());
    return {name.substr(0, end + 1), rest.substr(0, rest.find(": "))};
}

/// The best value of the readings in `group`, or in all when that is empty.
std::optional<double> bestOf(const PcValue &value, const HwinfoBlock &block, std::string_view group) {
    for (const LabelRule &rule : kRules) {
        for (const HwinfoReading &reading : block.readings) {
            if (rule.member == value.member && isLabel(reading.label, rule.label) &&
                (group.empty() || split(reading.sensor).group == group)) {
                if (const auto found = valueOf(reading, value.quantity)) {
                    return found;
                }
            }
        }
    }
    return std::nullopt;
}

void fill(PcReading &reading, const HwinfoBlock &block, bool ofCard, std::string_view group) {
    for (const PcValue &value : kPcValues) {
        if (value.ofCard == ofCard) {
            reading.*value.member = bestOf(value, block, group);
        }
    }
}

QString modelOf(const HwinfoBlock &block, std::string_view group) {
    const auto found =
        std::find_if(block.readings.begin(), block.readings.end(),
                     [group](const auto &reading) { return split(reading.sensor).group == group; });
    if (found == block.readings.end()) {
        return {};
    }
    const auto model = split(found->sensor).model;
    return QString::fromLatin1(model.data(), static_cast<int>(model.size())).trimmed();
}

bool isOfCard(const HwinfoReading &reading) {
    return std::any_of(kPcValues.begin(), kPcValues.end(), [&reading](const PcValue &value) {
        return value.ofCard && std::any_of(kRules.begin(), kRules.end(), [&](const LabelRule &rule) {
                   return rule.member == value.member && isLabel(reading.label, rule.label);
               });
    });
}

} // namespace

PcReading fromHwinfo(const HwinfoBlock &block, std::string &card) {
    std::vector<Card> cards;
    std::vector<PcReading> readings;
    for (const HwinfoReading &reading : block.readings) {
        const auto group = split(reading.sensor).group;
        const bool known = std::any_of(cards.begin(), cards.end(),
                                       [group](const Card &other) { return other.key == group; });
        if (!known && isOfCard(reading)) {
            PcReading &own = readings.emplace_back();
            fill(own, block, true, group);
            own.gpuName = modelOf(block, group);
            // HWiNFO doesn't tell which are part of the processor; those take less.
            cards.push_back({std::string(group), false, own.any(), own.gpuWatts});
        }
    }
    const auto chosen = chooseCard(cards, card);
    card = chosen ? cards.at(*chosen).key : std::string();
    PcReading result = chosen ? readings.at(*chosen) : PcReading();
    fill(result, block, false, {});
    result.cpuName = modelOf(block, "CPU [#0]");
    return result;
}

} // namespace zpsg::sensors
