// Where the rings' reports go. Behind it stands the supply's link; a test puts a list there.
#pragma once

#include "lighting/LedReports.h"

namespace zpsg::lighting {

/// Nothing here blocks and no reply is examined.
class LightOutput {
public:
    virtual ~LightOutput() = default;
    LightOutput(const LightOutput &) = delete;
    LightOutput &operator=(const LightOutput &) = delete;

    /// The supply's own handle is open and it carries a ring.
    [[nodiscard]] virtual bool supplyPresent() const = 0;
    virtual void send(const psu::Request &report) = 0;

    /// The second lighting device is there.
    [[nodiscard]] virtual bool secondPresent() const = 0;
    virtual void sendSecond(const SecondReport &report) = 0;

protected:
    LightOutput() = default;
};

} // namespace zpsg::lighting
