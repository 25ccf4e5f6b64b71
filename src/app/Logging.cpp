#include "app/Logging.h"

Q_LOGGING_CATEGORY(lcApp, "zpsg.app", QtInfoMsg)
