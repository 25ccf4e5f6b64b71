#include "platform/CommandArguments.h"

namespace zpsg::platform {

std::vector<std::u16string> unicodeArguments() { return {}; }

} // namespace zpsg::platform
