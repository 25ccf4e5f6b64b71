// The device as the link's thread sees it: opening in the two orders that the program knows, and one exchange
// that stays in step with a device that answers late.
#pragma once

#include "psu/Reports.h"

#include <atomic>
#include <chrono>
#include <memory>
#include <optional>

namespace zpsg::psu {

/// Which way the supply is reached.
enum class Path { None, Main, Raw };

/// In which order the library is initialised and the device opened. The first identification opens first.
enum class OpenOrder { InitialiseFirst, OpenFirst };

/// How a connection attempt ended.
struct Connected {
    Path path = Path::None;
    bool initialiseFailed = false;        ///< the library's initialisation failed (not fatal)
    bool wakeUpFailed = false;            ///< the device opened but refused the wake-up report
    Presence presence = Presence::Absent; ///< with Path::None: is it missing, or not permitted
};

/// Times that bound the work of the link's thread.
struct PortTiming {
    /// How long one question waits for its answer before it counts as unanswered.
    std::chrono::milliseconds reply{1000};
    /// Longest single wait in the device's read, so that the thread can be told to end.
    std::chrono::milliseconds slice{50};
    /// How soon the answer of a repeated question follows the late answer of the earlier one.
    std::chrono::milliseconds followUp{30};
};

/// Used by one thread. Owns the back end and the open devices.
class HidPort {
public:
    HidPort(std::unique_ptr<HidBackend> backend, PortTiming timing);

    /// Closes what is open, looks for the raw device first, then opens the main one and wakes it up.
    Connected connect(OpenOrder order);

    /// One write and its read. Nothing when the device is not open, was lost, or did not answer in time.
    /// A late answer to an earlier question is recognised and dropped.
    std::optional<Reply> exchange(const Request &request);

    /// Get-input-report on the raw device; `report[0]` is the id.
    bool readRaw(std::span<std::uint8_t> report);
    /// Set-output-report on the raw device.
    bool writeRaw(std::span<const std::uint8_t> report);

    /// The device failed a write or a read since it was opened: it is gone until connect().
    [[nodiscard]] bool lost() const { return lost_; }

    /// From any thread: makes a running exchange give up within a slice.
    void stop() { stopping_ = true; }

private:
    using Clock = std::chrono::steady_clock;

    bool openMain(OpenOrder order, Connected &result);
    /// Reads until `deadline`; count 0 when nothing came.
    Reply readUntil(Clock::time_point deadline);
    void dropLateReplies();
    void lose();

    std::unique_ptr<HidBackend> backend_;
    PortTiming timing_;
    std::unique_ptr<HidDevice> device_;
    std::unique_ptr<platform::RawHid> raw_;
    int owed_ = 0; ///< questions whose answer has not come yet and may still come
    bool lost_ = false;
    std::atomic<bool> stopping_ = false;
};

} // namespace zpsg::psu
