#include "platform/SystemMenu.h"

#include "platform/windows/Win32.h"

namespace zpsg::platform {

bool trimSystemMenu(const std::string &title) {
    HWND window = FindWindowW(nullptr, wide(title).c_str());
    HMENU menu = window != nullptr ? GetSystemMenu(window, FALSE) : nullptr;
    if (menu == nullptr) {
        return false;
    }
    // Entries that are gone already are as they should be.
    DeleteMenu(menu, SC_CLOSE, MF_BYCOMMAND);
    DeleteMenu(menu, SC_MAXIMIZE, MF_BYCOMMAND);
    DrawMenuBar(window);
    return true;
}

} // namespace zpsg::platform
