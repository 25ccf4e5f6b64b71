// The graphics cards of NVIDIA's own driver.
#pragma once

#include "platform/linux/HwmonFile.h"
#include "platform/linux/NvmlLibrary.h"
#include "platform/linux/PcSensorsInput.h"

namespace zpsg::platform {

/// Loads the library when the driver is there and a card is awake, and anew when it has gone silent: after
/// the driver was replaced the old library answers nothing any more.
class NvmlCards {
public:
    explicit NvmlCards(const PcSensorPlaces &places);

    /// Whether the sensors of scan() are others than after the last call. Those of the last scan() must not
    /// be read after it was true.
    bool changed();

    /// "temp1" and "power1" of the chip "nvml", for every card. They refer to this object.
    [[nodiscard]] std::vector<FoundSensor> scan();

private:
    class Input;

    bool asleep();

    std::string library_;
    std::string driver_; // there while the driver is loaded
    std::string devices_;
    std::vector<HwmonSleep> sleep_; // of every card
    std::unique_ptr<NvmlLibrary> nvml_;
    unsigned count_ = 0;
    bool asked_ = false;    // a sensor was read since the last look
    bool answered_ = false; // and gave a value
};

} // namespace zpsg::platform
