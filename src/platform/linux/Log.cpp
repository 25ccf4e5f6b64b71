#include "platform/linux/Log.h"

namespace zpsg::platform {

Q_LOGGING_CATEGORY(lcPlatform, "zpsg.platform", QtInfoMsg)

} // namespace zpsg::platform
