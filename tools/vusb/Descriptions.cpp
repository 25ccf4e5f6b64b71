#include "vusb/Descriptions.h"

#include <algorithm>
#include <iomanip>
#include <ostream>
#include <span>
#include <sstream>

namespace zpsg::vusb {

using simulator::FanMode;
using simulator::Fault;
using simulator::SupplyModel;

namespace {

struct FaultName {
    Fault fault;
    const char *name;
};

constexpr std::array kFaults{FaultName{Fault::None, "none"},
                             FaultName{Fault::Silent, "silent"},
                             FaultName{Fault::Slow, "slow"},
                             FaultName{Fault::Short, "short"},
                             FaultName{Fault::WrongEcho, "wrong-echo"},
                             FaultName{Fault::Garbage, "garbage"}};

// Effect codes of the lighting report with a meaning of their own.
constexpr std::uint8_t kSingleColour = 0x00;
constexpr std::uint8_t kSpectrum = 0x01;
constexpr std::uint8_t kStreamed = 0x18;

std::string hexByte(unsigned value) {
    std::ostringstream text;
    text << std::hex << std::setw(2) << std::setfill('0') << value;
    return text.str();
}

std::string colour(unsigned red, unsigned green, unsigned blue) {
    return hexByte(red) + hexByte(green) + hexByte(blue);
}

} // namespace

std::optional<Fault> faultNamed(const std::string &name) {
    const auto *row = std::find_if(kFaults.begin(), kFaults.end(),
                                   [&](const FaultName &fault) { return name == fault.name; });
    return row == kFaults.end() ? std::nullopt : std::optional(row->fault);
}

std::string described(Product product) {
    return product == Product::Main ? "main (264A:2329)" : "raw (264A:232A)";
}

std::string describedFan(const SupplyModel &model) {
    switch (model.fanMode()) {
    case FanMode::Silent:
        return "silent";
    case FanMode::Performance:
        return "performance";
    case FanMode::ZeroFan:
        return "zero fan";
    case FanMode::Custom:
        break;
    }
    return "custom, " + std::to_string(model.customFanPercent()) + " %";
}

bool isStreamed(const std::array<std::uint8_t, 62> &frame) { return frame[0] == kStreamed; }

std::string describedLeds(const std::array<std::uint8_t, 62> &frame) {
    constexpr std::size_t kMostLeds = 18;
    const auto leds = std::span(frame).subspan(1, 3 * kMostLeds);
    if (frame[0] == kSpectrum) {
        return "built-in spectrum";
    }
    if (frame[0] == kSingleColour) {
        return "single colour " + colour(leds[0], leds[1], leds[2]);
    }
    std::size_t count = kMostLeds;
    while (count > 0 && leds[3 * count - 3] == 0 && leds[3 * count - 2] == 0 && leds[3 * count - 1] == 0) {
        --count;
    }
    std::string text = (isStreamed(frame) ? "streamed, " : "effect ") + hexByte(frame[0]);
    for (std::size_t i = 0; i < count; ++i) { // bytes come in the order green, red, blue
        text += ' ' + colour(leds[3 * i + 1], leds[3 * i], leds[3 * i + 2]);
    }
    return count == 0 ? text + " all off" : text;
}

void describe(std::ostream &out, const SupplyModel &model) {
    const auto &q = model.quantities();
    const auto *fault = std::find_if(kFaults.begin(), kFaults.end(),
                                     [&](const FaultName &row) { return row.fault == model.fault(); });
    out << std::fixed << std::setprecision(0) << "model " << model.modelText() << ", " << model.ratedWatts()
        << " W, mains " << q.acVolts << " V\n"
        << std::setprecision(2) << "12 V: " << q.volts12 << " V " << q.amps12 << " A, 5 V: " << q.volts5
        << " V " << q.amps5 << " A, 3.3 V: " << q.volts33 << " V " << q.amps33 << " A\n"
        << std::setprecision(1) << q.celsius << " degrees Celsius, fan " << std::setprecision(0) << q.fanRpm
        << " rpm\n"
        << "fan: " << describedFan(model) << "\nLEDs: " << describedLeds(model.ledFrame())
        << (model.storedLedFrame() == model.ledFrame() ? " (stored)" : "") << "\nfault: " << fault->name
        << '\n';
}

} // namespace zpsg::vusb
