#include "simulator/SimulatedBus.h"

#include <algorithm>
#include <deque>

namespace zpsg::simulator {

using Clock = std::chrono::steady_clock;

class SimulatedBus::Device : public psu::HidDevice {
public:
    Device(std::shared_ptr<SimulatedBus> bus, std::shared_ptr<Plugged> plugged)
        : bus_(std::move(bus)), plugged_(std::move(plugged)) {}

    ~Device() override {
        const std::lock_guard lock(bus_->mutex_);
        --bus_->openDevices_;
    }

    int write(std::span<const std::uint8_t> report) override {
        std::unique_lock lock(bus_->mutex_);
        bus_->changed_.wait(lock, [this] { return !bus_->writesBlocked_ || plugged_->gone; });
        // As the system does: a report that the device has not described is refused.
        if (plugged_->gone || report.size() != psu::kOutputReportSize || report[0] != 0x00) {
            return -1;
        }
        if (bus_->onReport_) {
            bus_->onReport_(plugged_->model);
        }
        if (auto answer = plugged_->model.output(report)) {
            answers_.push_back({std::move(answer->bytes), Clock::now() + answer->delay});
        }
        return static_cast<int>(report.size());
    }

    int read(std::span<std::uint8_t> buffer, std::chrono::milliseconds wait) override {
        const auto deadline = Clock::now() + wait;
        std::unique_lock lock(bus_->mutex_);
        while (true) {
            if (plugged_->gone) {
                return -1;
            }
            const auto now = Clock::now();
            if (!answers_.empty() && answers_.front().due <= now) {
                const auto bytes = std::move(answers_.front().bytes);
                answers_.pop_front();
                const std::size_t count = std::min(bytes.size(), buffer.size());
                std::copy_n(bytes.begin(), count, buffer.begin());
                return static_cast<int>(count);
            }
            if (now >= deadline) {
                return 0;
            }
            const auto until = answers_.empty() ? deadline : std::min(deadline, answers_.front().due);
            bus_->changed_.wait_until(lock, until);
        }
    }

private:
    struct Pending {
        std::vector<std::uint8_t> bytes;
        Clock::time_point due;
    };

    std::shared_ptr<SimulatedBus> bus_;
    std::shared_ptr<Plugged> plugged_;
    std::deque<Pending> answers_;
};

class SimulatedBus::RawDevice : public platform::RawHid {
public:
    RawDevice(std::shared_ptr<SimulatedBus> bus, std::shared_ptr<Plugged> plugged)
        : bus_(std::move(bus)), plugged_(std::move(plugged)) {}

    ~RawDevice() override {
        const std::lock_guard lock(bus_->mutex_);
        --bus_->openDevices_;
    }

    bool getInputReport(std::span<std::uint8_t> report) override {
        std::unique_lock lock(bus_->mutex_);
        if (plugged_->gone || report.empty()) {
            return false;
        }
        if (bus_->onReport_) {
            bus_->onReport_(plugged_->model);
        }
        const auto answer = plugged_->model.inputReport(report[0]);
        // A control request that the device does not answer fails after five seconds in the kernel.
        const auto delay = answer ? answer->delay : std::chrono::milliseconds(5000);
        bus_->changed_.wait_for(lock, delay, [this] { return plugged_->gone; });
        if (plugged_->gone || !answer || answer->bytes.size() < report.size()) {
            return false;
        }
        std::copy_n(answer->bytes.begin(), report.size(), report.begin());
        return true;
    }

    bool setOutputReport(std::span<const std::uint8_t> report) override {
        std::unique_lock lock(bus_->mutex_);
        bus_->changed_.wait(lock, [this] { return !bus_->writesBlocked_ || plugged_->gone; });
        return !plugged_->gone && plugged_->model.rawOutput(report);
    }

private:
    std::shared_ptr<SimulatedBus> bus_;
    std::shared_ptr<Plugged> plugged_;
};

class SimulatedBus::Backend : public psu::HidBackend {
public:
    explicit Backend(std::shared_ptr<SimulatedBus> bus) : bus_(std::move(bus)) {}

    bool initialise() override {
        const std::lock_guard lock(bus_->mutex_);
        return !bus_->initialiseFails_;
    }

    std::unique_ptr<psu::HidDevice> open(std::uint16_t vendor, std::uint16_t product) override {
        return opened<Device, psu::HidDevice>(vendor, product);
    }

    std::unique_ptr<platform::RawHid> openRaw(std::uint16_t vendor, std::uint16_t product) override {
        return opened<RawDevice, platform::RawHid>(vendor, product);
    }

    psu::Presence presence(std::uint16_t vendor, std::uint16_t product) override {
        const std::lock_guard lock(bus_->mutex_);
        if (!listed(vendor, product)) {
            return psu::Presence::Absent;
        }
        return bus_->accessDenied_ ? psu::Presence::Denied : psu::Presence::Present;
    }

private:
    [[nodiscard]] bool listed(std::uint16_t vendor, std::uint16_t product) const {
        return bus_->plugged_ && vendor == psu::kVendorId && product == bus_->plugged_->product;
    }

    template <typename Opened, typename Seam>
    std::unique_ptr<Seam> opened(std::uint16_t vendor, std::uint16_t product) {
        const std::lock_guard lock(bus_->mutex_);
        ++bus_->openAttempts_;
        if (!listed(vendor, product) || bus_->accessDenied_) {
            return nullptr;
        }
        ++bus_->openDevices_;
        return std::make_unique<Opened>(bus_, bus_->plugged_);
    }

    std::shared_ptr<SimulatedBus> bus_;
};

void SimulatedBus::plug(SupplyModel model, std::uint16_t product) {
    unplug();
    const std::lock_guard lock(mutex_);
    plugged_ = std::make_shared<Plugged>(Plugged{std::move(model), product});
}

void SimulatedBus::unplug() {
    const std::lock_guard lock(mutex_);
    if (plugged_) {
        plugged_->gone = true;
        plugged_.reset();
        changed_.notify_all();
    }
}

void SimulatedBus::withModel(const std::function<void(SupplyModel &)> &action) {
    const std::lock_guard lock(mutex_);
    if (plugged_) {
        action(plugged_->model);
    }
}

void SimulatedBus::blockWrites(bool blocked) {
    const std::lock_guard lock(mutex_);
    writesBlocked_ = blocked;
    changed_.notify_all();
}

void SimulatedBus::denyAccess(bool denied) {
    const std::lock_guard lock(mutex_);
    accessDenied_ = denied;
}

void SimulatedBus::failInitialise(bool failing) {
    const std::lock_guard lock(mutex_);
    initialiseFails_ = failing;
}

void SimulatedBus::onReport(std::function<void(SupplyModel &)> action) {
    const std::lock_guard lock(mutex_);
    onReport_ = std::move(action);
}

int SimulatedBus::openDevices() const {
    const std::lock_guard lock(mutex_);
    return openDevices_;
}

int SimulatedBus::openAttempts() const {
    const std::lock_guard lock(mutex_);
    return openAttempts_;
}

std::unique_ptr<psu::HidBackend> SimulatedBus::backend() {
    return std::make_unique<Backend>(shared_from_this());
}

} // namespace zpsg::simulator
