// What the supply holds, in words.
#pragma once

#include "simulator/SupplyModel.h"
#include "vusb/UhidSupply.h"

#include <array>
#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>

namespace zpsg::vusb {

/// The fault with this name, as the commands use it: "none", "silent", ...
std::optional<simulator::Fault> faultNamed(const std::string &name);

/// "main (264A:2329)".
std::string described(Product product);

/// "silent" or "custom, 60 %".
std::string describedFan(const simulator::SupplyModel &model);

/// A lighting report's effect code and its LEDs as RRGGBB, of which those that are off at the end are left
/// out.
std::string describedLeds(const std::array<std::uint8_t, 62> &frame);

/// Whether the frame is one of a stream that the host computes.
bool isStreamed(const std::array<std::uint8_t, 62> &frame);

/// Several lines: model, rails, temperature, fan, LEDs and fault.
void describe(std::ostream &out, const simulator::SupplyModel &model);

} // namespace zpsg::vusb
