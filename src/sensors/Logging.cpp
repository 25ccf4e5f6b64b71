#include "sensors/Logging.h"

Q_LOGGING_CATEGORY(lcSensors, "zpsg.sensors", QtInfoMsg)
