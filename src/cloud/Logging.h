#pragma once

#include <QLoggingCategory>

/// What goes to services on the network; debug lines are off unless the rules turn them on.
Q_DECLARE_LOGGING_CATEGORY(lcCloud)
