#include "lighting/PlusRing.h"

namespace zpsg::lighting {

void PlusRing::change(const PlusRingState &state) {
    state_ = state;
    apply();
}

void PlusRing::apply() {
    if (output_.supplyPresent()) {
        output_.send(frame());
    }
}

psu::Request PlusRing::frame() const {
    if (!state_.off) {
        return panelFrame(state_);
    }
    // Full Lighted: an effect that the device runs may bring colours of its own.
    PlusRingState dark = state_;
    dark.lightMode = kPlusFullLighted;
    dark.brightness.fill(0.0F);
    return panelFrame(dark);
}

void PlusRing::thermalUpdate(float celsius) {
    if (state_.lightMode == kPlusThermal && !state_.off && output_.supplyPresent()) {
        output_.send(thermalFrame(state_, celsius));
    }
}

void PlusRing::store() {
    if (output_.supplyPresent()) {
        output_.send(kStoreReport);
    }
}

} // namespace zpsg::lighting
