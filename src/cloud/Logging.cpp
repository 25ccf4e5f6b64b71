#include "cloud/Logging.h"

Q_LOGGING_CATEGORY(lcCloud, "zpsg.cloud", QtInfoMsg)
