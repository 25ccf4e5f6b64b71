// A simulated supply at the level of reports: it takes the bytes that the real device takes, keeps what the
// real device keeps, and answers the way the real device answers. No Qt, no threads, no clock of its own, so
// that the same model stands behind --demo, the tests and the virtual USB device.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zpsg::simulator {

/// The physical quantities; volts, amps, degrees Celsius, revolutions a minute.
struct Quantities {
    double acVolts = 230.0;
    double volts12 = 12.18, volts5 = 5.08, volts33 = 3.36;
    double amps12 = 0.75, amps5 = 0.3, amps33 = 0.2;
    double celsius = 30.0;
    double fanRpm = 700.0;

    /// DC output power, watts.
    [[nodiscard]] double outputWatts() const { return volts12 * amps12 + volts5 * amps5 + volts33 * amps33; }
};

/// The ways in which an answer can be wrong. Faults of the line itself (unplugged, a write that blocks)
/// belong to what carries the reports.
enum class Fault {
    None,
    Silent,    ///< takes every report, answers none
    Slow,      ///< answers after faultDelay()
    Short,     ///< answers with faultLength() bytes
    WrongEcho, ///< answers as if the next monitored quantity had been asked
    Garbage,   ///< answers 64 arbitrary bytes
};

/// The fan's mode as the mode byte of the select command carries it.
enum class FanMode : std::uint8_t { Silent = 1, Performance = 2, ZeroFan = 3, Custom = 4 };

/// One answer: what an input report carries, and how long the device takes for it.
struct Answer {
    std::vector<std::uint8_t> bytes;
    std::chrono::milliseconds delay{0};
};

/// Fan speed at 100 %, revolutions a minute.
inline constexpr double kFullFanRpm = 2250.0;

class SupplyModel {
public:
    /// `modelText` is what the supply reports as its model, dashes included, at most 62 bytes; a four-digit
    /// number in it is the rated watts (else 1000). An empty `serial` is reported as "noSN".
    explicit SupplyModel(std::string modelText = "CVX-1000-D", std::string serial = {});

    // The physical side.

    /// Lets `elapsed` pass at the given load: temperature and fan follow, rails sag. Steps of at most a few
    /// seconds keep the thermal model stable; longer ones are split up.
    void advance(std::chrono::duration<double> elapsed, double loadWatts);
    /// Sets every quantity as given; advance() then starts from there.
    void setQuantities(const Quantities &quantities) { quantities_ = quantities; }
    [[nodiscard]] const Quantities &quantities() const { return quantities_; }
    void setMains(double acVolts) { quantities_.acVolts = acVolts; }
    [[nodiscard]] double ratedWatts() const { return ratedWatts_; }
    [[nodiscard]] const std::string &modelText() const { return modelText_; }

    // The report side.

    /// Takes an output report of the main path (65 bytes, or 64 without the report id 0x00 when `withId` is
    /// false). No answer when the command is unknown or the fault is Silent. The report is logged either way.
    std::optional<Answer> output(std::span<const std::uint8_t> report, bool withId = true);

    /// The raw path's input report with this id, id first: 0x10 (31 bytes), 0x11 or 0x12 (33 bytes).
    [[nodiscard]] std::optional<Answer> inputReport(std::uint8_t id);
    /// Takes an output report of the raw path, id first. 0x20: byte 1 is the fan mode (1 Silent, 0
    /// Performance, 2 Zero Fan). 0x1E, 16 bytes: the light; byte 1 is 0x00 with red, green, blue, 0x01 with
    /// the enable switch, 0x03 for the spectrum. False for any other.
    bool rawOutput(std::span<const std::uint8_t> report);

    // What the supply holds.

    [[nodiscard]] FanMode fanMode() const { return fanMode_; }
    [[nodiscard]] int customFanPercent() const { return customFanPercent_; }
    /// The last lighting report's bytes 3 to 64 (effect code and LED bytes); zero until the first.
    [[nodiscard]] const std::array<std::uint8_t, 62> &ledFrame() const { return ledFrame_; }
    [[nodiscard]] const std::array<std::uint8_t, 62> &storedLedFrame() const { return storedLedFrame_; }
    /// The raw path's last 0x1E report with command 0x00 or 0x03; zero until the first.
    [[nodiscard]] const std::array<std::uint8_t, 16> &secondLight() const { return secondLight_; }
    /// Every report taken, payload only, oldest first; at most the last 4096.
    [[nodiscard]] const std::vector<std::vector<std::uint8_t>> &log() const { return log_; }
    void clearLog() { log_.clear(); }

    // Misbehaviour.

    void setFault(Fault fault) { fault_ = fault; }
    [[nodiscard]] Fault fault() const { return fault_; }
    void setFaultDelay(std::chrono::milliseconds delay) { faultDelay_ = delay; }
    [[nodiscard]] std::chrono::milliseconds faultDelay() const { return faultDelay_; }
    /// 0 to 64.
    void setFaultLength(std::size_t length) { faultLength_ = length; }
    [[nodiscard]] std::size_t faultLength() const { return faultLength_; }

private:
    std::optional<std::vector<std::uint8_t>> reply(std::span<const std::uint8_t> payload);
    [[nodiscard]] std::optional<double> monitored(std::uint8_t command) const;
    [[nodiscard]] double fanTarget() const;
    std::optional<Answer> withFault(std::vector<std::uint8_t> bytes);
    void step(double seconds, double loadWatts);

    std::string modelText_;
    std::string serial_;
    double ratedWatts_;
    Quantities quantities_;
    FanMode fanMode_ = FanMode::Silent;
    int customFanPercent_ = 60;
    std::array<std::uint8_t, 62> ledFrame_{};
    std::array<std::uint8_t, 62> storedLedFrame_{};
    std::array<std::uint8_t, 16> secondLight_{};
    std::vector<std::vector<std::uint8_t>> log_;
    Fault fault_ = Fault::None;
    std::chrono::milliseconds faultDelay_{300};
    std::size_t faultLength_ = 2;
    std::uint32_t noise_ = 0x9E3779B9U;
};

} // namespace zpsg::simulator
