#include "platform/SystemMenu.h"

namespace zpsg::platform {

// Window managers let no program change the menus that they draw.
bool trimSystemMenu(const std::string & /*title*/) { return false; }

} // namespace zpsg::platform
