#include "remote/Logging.h"

Q_LOGGING_CATEGORY(lcRemote, "zpsg.remote", QtInfoMsg)
