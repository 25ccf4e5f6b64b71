#pragma once

#include <QLoggingCategory>

/// What other programs ask of this one; debug lines are off unless the rules turn them on.
Q_DECLARE_LOGGING_CATEGORY(lcRemote)
