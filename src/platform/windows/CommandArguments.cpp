#include "platform/CommandArguments.h"

#include "platform/windows/Win32.h"

#include <memory>
#include <shellapi.h>

namespace zpsg::platform {

std::vector<std::u16string> unicodeArguments() {
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> all(CommandLineToArgvW(GetCommandLineW(), &count),
                                                            &LocalFree);
    std::vector<std::u16string> arguments;
    for (int i = 1; all && i < count; ++i) {
        const std::wstring argument = all.get()[i];
        arguments.emplace_back(argument.begin(), argument.end());
    }
    return arguments;
}

} // namespace zpsg::platform
