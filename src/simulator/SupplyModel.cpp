#include "simulator/SupplyModel.h"

#include "simulator/LinearEncoding.h"

#include <algorithm>
#include <cctype>
#include <cmath>

namespace zpsg::simulator {
namespace {

constexpr std::size_t kPayload = 64;
constexpr std::size_t kRawSampleSize = 31;
constexpr std::size_t kRawBlockSize = 33;
constexpr std::size_t kLogLimit = 4096;
constexpr double kDefaultRatedWatts = 1000.0;

// Open-circuit volts and source resistance of each rail: a rail sags by a few tens of millivolts at full
// load.
constexpr double kOpen12 = 12.18;
constexpr double kOhms12 = 0.0016;
constexpr double kOpen5 = 5.08;
constexpr double kOhms5 = 0.006;
constexpr double kOpen33 = 3.36;
constexpr double kOhms33 = 0.006;

constexpr double kRoomCelsius = 26.0;
constexpr double kThermalSeconds = 90.0; // time constant of heat sink and air
constexpr double kFanSeconds = 3.0;      // time constant of the rotor

double ratedWattsOf(const std::string &modelText) {
    std::string text;
    std::remove_copy(modelText.begin(), modelText.end(), std::back_inserter(text), '-');
    for (std::size_t i = 0; i + 4 <= text.size(); ++i) {
        const std::string digits = text.substr(i, 4);
        if (std::all_of(digits.begin(), digits.end(), [](unsigned char c) { return std::isdigit(c) != 0; }) &&
            std::stoi(digits) > 0) {
            return std::stoi(digits);
        }
    }
    return kDefaultRatedWatts;
}

void put(std::vector<std::uint8_t> &bytes, std::size_t at, std::uint16_t word) {
    bytes[at] = static_cast<std::uint8_t>(word & 0xFFU);
    bytes[at + 1] = static_cast<std::uint8_t>(word >> 8U);
}

void putText(std::vector<std::uint8_t> &bytes, std::size_t at, const std::string &text) {
    const std::size_t count = std::min(text.size(), bytes.size() - at);
    std::copy_n(text.begin(), count, bytes.begin() + static_cast<std::ptrdiff_t>(at));
}

// A plausible efficiency for the raw path, which measures its own: about 90 % over most of the range.
double efficiencyFraction(double load) {
    return std::clamp(0.915 - 0.03 * load - 0.012 / (load + 0.03), 0.4, 0.95);
}

} // namespace

SupplyModel::SupplyModel(std::string modelText, std::string serial)
    : modelText_(std::move(modelText))
    , serial_(serial.empty() ? "noSN" : std::move(serial))
    , ratedWatts_(ratedWattsOf(modelText_)) {
    modelText_.resize(std::min(modelText_.size(), kPayload - 2));
}

void SupplyModel::advance(std::chrono::duration<double> elapsed, double loadWatts) {
    constexpr double kLongestStep = 2.0;
    constexpr double kSettled = 3600.0; // after an hour nothing of the past is left in the state
    double seconds = std::clamp(elapsed.count(), 0.0, kSettled);
    while (seconds > 0.0) {
        const double now = std::min(seconds, kLongestStep);
        step(now, loadWatts);
        seconds -= now;
    }
}

void SupplyModel::step(double seconds, double loadWatts) {
    const double watts = std::clamp(loadWatts, 0.0, ratedWatts_ * 1.2);
    const double watts5 = std::min(6.0 + 0.025 * watts, watts * 0.3);
    const double watts33 = std::min(3.0 + 0.012 * watts, watts * 0.15);
    auto &q = quantities_;
    // Amps at the voltage of the moment before; the sag converges within two steps.
    q.amps12 = (watts - watts5 - watts33) / std::max(q.volts12, 1.0);
    q.amps5 = watts5 / std::max(q.volts5, 1.0);
    q.amps33 = watts33 / std::max(q.volts33, 1.0);
    q.volts12 = kOpen12 - kOhms12 * q.amps12;
    q.volts5 = kOpen5 - kOhms5 * q.amps5;
    q.volts33 = kOpen33 - kOhms33 * q.amps33;

    const double load = watts / ratedWatts_;
    const double heat = watts * (1.0 / efficiencyFraction(load) - 1.0);
    const double airflow = 0.35 + q.fanRpm / kFullFanRpm;
    const double target = kRoomCelsius + 2.0 + 0.22 * heat / airflow;
    q.celsius += (target - q.celsius) * (1.0 - std::exp(-seconds / kThermalSeconds));
    q.fanRpm += (fanTarget() - q.fanRpm) * (1.0 - std::exp(-seconds / kFanSeconds));
}

double SupplyModel::fanTarget() const {
    const double celsius = quantities_.celsius;
    switch (fanMode_) {
    case FanMode::Performance:
        return std::clamp(950.0 + 45.0 * (celsius - 32.0), 950.0, kFullFanRpm);
    case FanMode::ZeroFan:
        return celsius < 45.0 ? 0.0 : std::clamp(550.0 + 55.0 * (celsius - 45.0), 550.0, kFullFanRpm);
    case FanMode::Custom:
        return kFullFanRpm * customFanPercent_ / 100.0;
    case FanMode::Silent:
        break;
    }
    return std::clamp(620.0 + 42.0 * (celsius - 38.0), 620.0, kFullFanRpm);
}

std::optional<double> SupplyModel::monitored(std::uint8_t command) const {
    const auto &q = quantities_;
    switch (command) {
    case 0x33:
        return q.acVolts;
    case 0x34:
        return q.volts12;
    case 0x35:
        return q.volts5;
    case 0x36:
        return q.volts33;
    case 0x37:
        return q.amps12;
    case 0x38:
        return q.amps5;
    case 0x39:
        return q.amps33;
    case 0x3A:
        return q.celsius;
    case 0x3B:
        return q.fanRpm;
    default:
        return std::nullopt;
    }
}

std::optional<Answer> SupplyModel::output(std::span<const std::uint8_t> report, bool withId) {
    std::vector<std::uint8_t> payload(kPayload, 0);
    const auto body = withId && !report.empty() ? report.subspan(1) : report;
    std::copy_n(body.begin(), std::min(body.size(), kPayload), payload.begin());
    if (log_.size() >= kLogLimit) {
        log_.erase(log_.begin(), log_.begin() + kLogLimit / 2);
    }
    log_.push_back(payload);
    auto answer = reply(payload);
    return answer ? withFault(std::move(*answer)) : std::nullopt;
}

std::optional<std::vector<std::uint8_t>> SupplyModel::reply(std::span<const std::uint8_t> payload) {
    std::vector<std::uint8_t> bytes(kPayload, 0);
    bytes[0] = payload[0];
    bytes[1] = payload[1];
    const unsigned command = (static_cast<unsigned>(payload[0]) << 8U) | payload[1];
    switch (command) {
    case 0xFE31: // wake-up
        return bytes;
    case 0x313D: // model text
        putText(bytes, 2, modelText_);
        return bytes;
    case 0x313E: // serial number
        putText(bytes, 2, serial_);
        return bytes;
    case 0x3041: // fan mode, or custom speed
        if (payload[2] >= 1 && payload[2] <= 3) {
            fanMode_ = static_cast<FanMode>(payload[2]);
        } else if (payload[2] == 4) {
            fanMode_ = FanMode::Custom;
            customFanPercent_ = payload[3];
        }
        return bytes;
    case 0x3042: // lighting
        std::copy_n(payload.begin() + 2, ledFrame_.size(), ledFrame_.begin());
        return bytes;
    case 0x3043: // store the lighting
        storedLedFrame_ = ledFrame_;
        return bytes;
    default:
        break;
    }
    const auto value = payload[0] == 0x31 ? monitored(payload[1]) : std::nullopt;
    if (!value) {
        return std::nullopt;
    }
    put(bytes, 2, encodeLinear(*value));
    return bytes;
}

std::optional<Answer> SupplyModel::withFault(std::vector<std::uint8_t> bytes) {
    switch (fault_) {
    case Fault::None:
        return Answer{std::move(bytes)};
    case Fault::Silent:
        return std::nullopt;
    case Fault::Slow:
        return Answer{std::move(bytes), faultDelay_};
    case Fault::Short:
        bytes.resize(std::min(faultLength_, bytes.size()));
        return Answer{std::move(bytes)};
    case Fault::WrongEcho:
        if (bytes.size() > 1) {
            bytes[1] = bytes[1] == 0x3B ? 0x33 : static_cast<std::uint8_t>(bytes[1] + 1);
        }
        return Answer{std::move(bytes)};
    case Fault::Garbage:
        for (auto &byte : bytes) {
            noise_ = noise_ * 1664525U + 1013904223U;
            byte = static_cast<std::uint8_t>(noise_ >> 24U);
        }
        return Answer{std::move(bytes)};
    }
    return std::nullopt;
}

std::optional<Answer> SupplyModel::inputReport(std::uint8_t id) {
    if (id == 0x10) {
        const auto &q = quantities_;
        const double watts = q.outputWatts();
        const std::array<double, 15> values{q.volts12, q.amps12,  q.volts5,
                                            q.amps5,   q.volts33, q.amps33,
                                            watts,     q.fanRpm,  efficiencyFraction(watts / ratedWatts_),
                                            q.celsius, q.acVolts};
        std::vector<std::uint8_t> bytes(kRawSampleSize, 0);
        bytes[0] = id;
        for (std::size_t i = 0; i < values.size(); ++i) {
            put(bytes, 1 + 2 * i, encodeRawLinear(values[i]));
        }
        return withFault(std::move(bytes));
    }
    if (id == 0x11 || id == 0x12) {
        std::vector<std::uint8_t> bytes(kRawBlockSize, 0);
        bytes[0] = id;
        putText(bytes, 1, id == 0x11 ? modelText_ : serial_);
        return withFault(std::move(bytes));
    }
    return std::nullopt;
}

bool SupplyModel::rawOutput(std::span<const std::uint8_t> report) {
    log_.emplace_back(report.begin(), report.end());
    if (report.size() == secondLight_.size() && report[0] == 0x1E) {
        if (report[1] == 0x00 || report[1] == 0x03) {
            std::copy(report.begin(), report.end(), secondLight_.begin());
        }
        return report[1] == 0x00 || report[1] == 0x01 || report[1] == 0x03;
    }
    if (report.size() < 2 || report[0] != 0x20 || report[1] > 2) {
        return false;
    }
    constexpr std::array kModes{FanMode::Performance, FanMode::Silent, FanMode::ZeroFan};
    fanMode_ = kModes.at(report[1]);
    return true;
}

} // namespace zpsg::simulator
