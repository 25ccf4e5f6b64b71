#pragma once

#include "app/CommandLine.h"
#include "psu/HidBackend.h"

#include <memory>

namespace zpsg::app {

/// The machine's own HID devices, or the simulated supply that the command line asks for.
std::unique_ptr<psu::HidBackend> makeBackend(const CommandLine &line);

} // namespace zpsg::app
