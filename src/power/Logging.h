#pragma once

#include <QLoggingCategory>

/// Model profiles, efficiency curves and the day's profile; debug lines are off unless the rules turn them
/// on.
Q_DECLARE_LOGGING_CATEGORY(lcPower)
