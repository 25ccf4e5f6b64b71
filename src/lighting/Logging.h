#pragma once

#include <QLoggingCategory>

/// Category "zpsg.lighting".
Q_DECLARE_LOGGING_CATEGORY(lcLighting)
