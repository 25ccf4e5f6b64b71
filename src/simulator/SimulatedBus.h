// A bus with one simulated supply on it: the back end that --demo and the tests run the whole program
// against.
#pragma once

#include "psu/HidBackend.h"
#include "simulator/SupplyModel.h"

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

namespace zpsg::simulator {

/// The bus. Thread-safe: the link's thread exchanges reports while another plugs, unplugs and sets faults.
/// Devices that were opened on it keep it alive.
class SimulatedBus : public std::enable_shared_from_this<SimulatedBus> {
public:
    /// Starts with nothing plugged in.
    static std::shared_ptr<SimulatedBus> create() { return std::shared_ptr<SimulatedBus>(new SimulatedBus); }

    /// Which product the supply shows itself as: psu::kMainProductId or psu::kRawProductId.
    void plug(SupplyModel model, std::uint16_t product = psu::kMainProductId);
    /// Open devices fail from now on, also in the middle of a read or a blocked write.
    void unplug();

    /// Runs `action` on the model under the bus's lock. Nothing happens while nothing is plugged in.
    void withModel(const std::function<void(SupplyModel &)> &action);

    /// While set, writes block until it is cleared or the supply is unplugged.
    void blockWrites(bool blocked);
    /// While set, the node is listed but may not be opened.
    void denyAccess(bool denied);
    /// While set, the library's initialisation fails.
    void failInitialise(bool failing);

    /// Runs under the lock before each report is handled; the demo lets time pass here. May be null.
    void onReport(std::function<void(SupplyModel &)> action);

    /// Devices open now: a leak shows here.
    [[nodiscard]] int openDevices() const;
    /// How often open() was tried, found or not.
    [[nodiscard]] int openAttempts() const;

    /// A back end that opens devices on this bus.
    std::unique_ptr<psu::HidBackend> backend();

private:
    SimulatedBus() = default;
    class Backend;
    class Device;
    class RawDevice;
    /// One plug-in; devices hold the one they were opened on.
    struct Plugged {
        SupplyModel model;
        std::uint16_t product;
        bool gone = false;
    };

    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::shared_ptr<Plugged> plugged_;
    std::function<void(SupplyModel &)> onReport_;
    bool writesBlocked_ = false;
    bool accessDenied_ = false;
    bool initialiseFails_ = false;
    int openDevices_ = 0;
    int openAttempts_ = 0;
};

} // namespace zpsg::simulator
