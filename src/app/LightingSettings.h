// The lights' states in the settings files: "config_12LED.ini", and "saveFunction.ini" for what that file has
// no key for.
#pragma once

#include "app/Settings.h"
#include "lighting/LightingState.h"

namespace zpsg::app {

// What a file lacks, or holds outside its range, comes as the default, entry by entry.
[[nodiscard]] lighting::SingleRingState loadSingleRing(const Settings &settings);
[[nodiscard]] lighting::PlusRingState loadPlusRing(const Settings &settings);
[[nodiscard]] lighting::DuoState loadDuo(const Settings &settings);

// False when the file can't be written.
bool saveSingleRing(Settings &settings, const lighting::SingleRingState &state);
bool savePlusRing(Settings &settings, const lighting::PlusRingState &state);
bool saveDuo(Settings &settings, const lighting::DuoState &state);

/// Whether "config_12LED.ini" is there. The 12-LED ring and the Duo set are saved only then.
[[nodiscard]] bool lightingFileExists(const Settings &settings);
/// Writes the Duo set's defaults with the mark that they are written, once in the file's life. So the file is
/// there from the first start on, whichever ring is fitted.
void writeDuoDefaultsOnce(Settings &settings);

} // namespace zpsg::app
