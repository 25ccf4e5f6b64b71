// A simulated supply as a real HID device of this machine: the kernel makes a hidraw node for it, and every
// program finds it there.
#pragma once

#include "simulator/SupplyModel.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace zpsg::vusb {

inline constexpr std::uint16_t kVendorId = 0x264A;

/// Which of the two products the supply shows itself as; the value is the product id.
enum class Product : std::uint16_t { Main = 0x2329, Raw = 0x232A };

/// What the report descriptor says of the main path's input report. Exact is what the device says: 64 bytes.
/// Recent kernels drop reports that are shorter than said, so that Fault::Short looks like Fault::Silent;
/// with Loose, which says one byte, they come through whatever their length, as they do on older kernels.
enum class InputLength { Exact, Loose };

/// Starts unplugged; destruction unplugs. Thread-safe, except that a callback of withModel() must not plug or
/// unplug.
class UhidSupply {
public:
    /// `devicePath` is where the kernel takes HID devices from programs.
    explicit UhidSupply(simulator::SupplyModel model, std::string devicePath = "/dev/uhid");
    ~UhidSupply();
    UhidSupply(const UhidSupply &) = delete;
    UhidSupply &operator=(const UhidSupply &) = delete;

    /// Plugs the supply in, unplugging it first where it is. Why it could not be done, or nothing. The hidraw
    /// node appears a moment later.
    [[nodiscard]] std::optional<std::string> plug(Product product, InputLength length = InputLength::Exact);
    /// The node is gone when this returns; reads that sit in it fail.
    void unplug();
    [[nodiscard]] std::optional<Product> plugged() const;
    /// Whether a program has the device open now.
    [[nodiscard]] bool inUse() const { return inUse_; }

    /// Runs `action` on the model while no report is handled.
    void withModel(const std::function<void(simulator::SupplyModel &)> &action);

private:
    class Connection;

    const std::string devicePath_;
    std::mutex modelMutex_;
    simulator::SupplyModel model_;
    std::atomic<bool> inUse_ = false;
    mutable std::mutex plugMutex_;
    std::unique_ptr<Connection> connection_;
};

} // namespace zpsg::vusb
