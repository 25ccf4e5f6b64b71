// The order in which the program starts: companion, single instance, window, title, tray.
#pragma once

#include "app/CommandLine.h"
#include "app/Paths.h"

namespace zpsg::app {

/// Runs the program with its window (a QApplication exists), from the companion's notice to the end of the
/// event loop. Returns the exit code of the process: the loop's, or 0 when another instance was found and
/// shown.
int runWithWindow(const CommandLine &line, const Paths &paths);

} // namespace zpsg::app
