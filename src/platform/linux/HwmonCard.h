// The model of a graphics card, from the system's own database of hardware.
#pragma once

#include <string>

namespace zpsg::platform {

/// `modalias` as the kernel gives it ("pci:v00001002d000073BF..."). Empty for what is no graphics card and
/// for one that the database does not know.
std::string cardName(const std::string &modalias);

/// The name on the box, where the database has it: of "Navi 21 [Radeon RX 6800]" what stands in brackets.
std::string boxName(const std::string &model);

} // namespace zpsg::platform
