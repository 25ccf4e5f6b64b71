#pragma once

#include "app/CommandLine.h"
#include "psu/HidBackend.h"
#include "simulator/FastClock.h"

#include <memory>

namespace zpsg::app {

/// The machine's own HID devices, or the simulated supply that the command line asks for.
/// For a demo on a fast clock its `clock` is the one to give; otherwise null.
std::unique_ptr<psu::HidBackend> makeBackend(const CommandLine &line,
                                             const std::shared_ptr<simulator::FastClock> &clock = {});

/// The clock that the command line asks for, at midnight three days ago; null for the usual one.
std::shared_ptr<simulator::FastClock> makeFastClock(const CommandLine &line);

} // namespace zpsg::app
