#include "lighting/Logging.h"

Q_LOGGING_CATEGORY(lcLighting, "zpsg.lighting", QtInfoMsg)
