// Which of HWiNFO's readings are which value.
#pragma once

#include "sensors/HwinfoBlock.h"
#include "sensors/PcReading.h"

#include <string>

namespace zpsg::sensors {

/// `card` holds which graphics card was shown the last time, and then which is shown now.
PcReading fromHwinfo(const HwinfoBlock &block, std::string &card);

} // namespace zpsg::sensors
