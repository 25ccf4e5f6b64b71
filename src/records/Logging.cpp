#include "records/Logging.h"

Q_LOGGING_CATEGORY(lcRecords, "zpsg.records", QtInfoMsg)
