#pragma once

#include <QLoggingCategory>

/// The PC's own sensors; debug lines tell which sensor gives which value.
Q_DECLARE_LOGGING_CATEGORY(lcSensors)
