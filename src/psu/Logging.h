#pragma once

#include <QLoggingCategory>

/// Debug lines carry the system's own texts ("!handle", "Still Exist"); off unless the rules turn them on.
Q_DECLARE_LOGGING_CATEGORY(lcPsu)
