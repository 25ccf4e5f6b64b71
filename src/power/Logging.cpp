#include "power/Logging.h"

Q_LOGGING_CATEGORY(lcPower, "zpsg.power", QtInfoMsg)
