#include "app/Usage.h"

namespace zpsg::app {

Usage::Usage(Supply &supply, Settings &settings)
    : supply_(supply)
    , settings_(settings)
    , meter_(settings.real(Setting::TotalUsedKwh))
    , saved_(meter_.kwh()) {}

Usage::~Usage() { save(); }

void Usage::tick(std::chrono::steady_clock::time_point now) { meter_.add(supply_.fresh("WATTS"), now); }

void Usage::save() {
    if (meter_.kwh() != saved_ && settings_.write({{Setting::TotalUsedKwh, meter_.kwh()}})) {
        saved_ = meter_.kwh();
    }
}

} // namespace zpsg::app
