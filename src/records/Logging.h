#pragma once

#include <QLoggingCategory>

/// Records, settlement, history and export; debug lines are off unless the rules turn them on.
Q_DECLARE_LOGGING_CATEGORY(lcRecords)
