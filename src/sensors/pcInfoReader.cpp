#include "sensors/pcInfoReader.h"
