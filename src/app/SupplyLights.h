// The supply's ring as the lighting code sees it.
#pragma once

#include "app/Supply.h"
#include "lighting/LightOutput.h"
#include "lighting/Overlay.h"

#include <functional>
#include <optional>

namespace zpsg::app {

/// GUI thread only. `supply` outlives this.
class SupplyLights : public lighting::LightOutput {
public:
    explicit SupplyLights(Supply &supply) : supply_(supply) {}

    [[nodiscard]] bool supplyPresent() const override;
    [[nodiscard]] bool secondPresent() const override;
    void send(const psu::Request &report) override;
    void sendSecond(const lighting::SecondReport &report) override;

    /// While covered, what a ring sends of its own light goes nowhere: something else is shown on it.
    void setCovered(bool covered) { covered_ = covered; }
    [[nodiscard]] bool covered() const { return covered_; }
    /// Shows colours on a ring over its own light.
    void show(lighting::RingKind ring, std::span<const lighting::Colour> leds);

    /// What the LEDs of this ring hold by the last report; nothing while none was sent, or the device has
    /// gone.
    [[nodiscard]] std::optional<lighting::HeldLeds> held(lighting::RingKind ring) const;

private:
    void pass(const psu::Request &report);
    void passSecond(const lighting::SecondReport &report);

    Supply &supply_;
    bool covered_ = false;
    std::optional<psu::Request> last_;
    std::optional<lighting::SecondReport> lastSecond_;
};

} // namespace zpsg::app
