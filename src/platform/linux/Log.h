#pragma once

#include <QLoggingCategory>

namespace zpsg::platform {

Q_DECLARE_LOGGING_CATEGORY(lcPlatform)

} // namespace zpsg::platform
