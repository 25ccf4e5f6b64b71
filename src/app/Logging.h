#pragma once

#include <QLoggingCategory>

/// Start-up, settings and the main window; debug lines are off unless the rules turn them on.
Q_DECLARE_LOGGING_CATEGORY(lcApp)
