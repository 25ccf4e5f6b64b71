#include "sensors/PcValues.h"

namespace zpsg::sensors {
namespace {

// All comparisons are false for what is no number.
bool isSensible(double value, platform::PcQuantity quantity) {
    switch (quantity) {
    case platform::PcQuantity::Volts:
        return value > 0.0 && value <= 5.0;
    case platform::PcQuantity::Amps:
        return value >= 0.0 && value <= 1000.0;
    case platform::PcQuantity::Watts:
        return value >= 0.0 && value <= 2000.0;
    case platform::PcQuantity::Celsius:
        return value >= -273.15 && value <= 150.0;
    }
    return false;
}

} // namespace

std::optional<double> sensible(std::optional<double> value, platform::PcQuantity quantity) {
    return value && isSensible(*value, quantity) ? value : std::nullopt;
}

} // namespace zpsg::sensors
