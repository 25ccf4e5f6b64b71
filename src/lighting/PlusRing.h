// The 12-LED ring: every change is one frame; the device runs most modes by itself.
#pragma once

#include "lighting/LightOutput.h"

namespace zpsg::lighting {

/// Nothing is sent while the supply is not there; the state is changed all the same.
class PlusRing {
public:
    explicit PlusRing(LightOutput &output) : output_(output) {}

    [[nodiscard]] const PlusRingState &state() const { return state_; }
    /// Takes over a state without sending anything.
    void restore(const PlusRingState &state) { state_ = state; }
    /// Takes over a state and shows it.
    void change(const PlusRingState &state);
    /// What apply() lights.
    [[nodiscard]] HeldLeds ownLight() const { return *heldBy(frame(), RingKind::Plus); }
    /// Sends what the ring shows by its state.
    void apply();
    /// The thermal update: with the thermal mode shows whether `celsius` is hot, else nothing.
    void thermalUpdate(float celsius);
    /// Makes the device keep what it shows.
    void store();

private:
    [[nodiscard]] psu::Request frame() const;

    LightOutput &output_;
    PlusRingState state_;
};

} // namespace zpsg::lighting
