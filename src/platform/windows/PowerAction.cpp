#include "platform/PowerAction.h"

#include "platform/windows/Win32.h"

#include <chrono>
#include <future>
#include <powrprof.h>
#include <thread>

namespace zpsg::platform {
namespace {

constexpr auto kPatience = std::chrono::milliseconds(200);
constexpr DWORD kReason =
    SHTDN_REASON_MAJOR_APPLICATION | SHTDN_REASON_MINOR_OTHER | SHTDN_REASON_FLAG_PLANNED;

/// 0 or the error. The right is there for everybody who sits at the PC, but switched off.
DWORD switchRightOn() {
    HANDLE token = nullptr;
    if (OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY, &token) == FALSE) {
        return GetLastError();
    }
    TOKEN_PRIVILEGES wanted{};
    wanted.PrivilegeCount = 1;
    wanted.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    DWORD error = ERROR_SUCCESS;
    // The second succeeds also when it has changed nothing; the last error tells.
    if (LookupPrivilegeValueW(nullptr, L"SeShutdownPrivilege", &wanted.Privileges[0].Luid) == FALSE ||
        AdjustTokenPrivileges(token, FALSE, &wanted, 0, nullptr, nullptr) == FALSE ||
        GetLastError() != ERROR_SUCCESS) {
        error = GetLastError();
    }
    CloseHandle(token);
    return error;
}

DWORD carryOut(PowerAction action) {
    if (const DWORD error = switchRightOn(); error != ERROR_SUCCESS) {
        return error;
    }
    const bool done =
        action == PowerAction::Sleep
            ? SetSuspendState(FALSE, FALSE, FALSE) != FALSE
            : ExitWindowsEx(action == PowerAction::Restart ? EWX_REBOOT : EWX_POWEROFF, kReason) != FALSE;
    return done ? ERROR_SUCCESS : GetLastError();
}

} // namespace

bool requestPower(PowerAction action, std::string &error) {
    // Going to sleep returns when the PC is awake again, and before that wants to tell every window, this
    // program's own among them: not on the thread that looks after those.
    std::packaged_task<DWORD()> task([action] { return carryOut(action); });
    auto result = task.get_future();
    std::thread(std::move(task)).detach();
    if (result.wait_for(kPatience) != std::future_status::ready) {
        return true;
    }
    const DWORD code = result.get();
    if (code != ERROR_SUCCESS) {
        error = errorText(code);
    }
    return code == ERROR_SUCCESS;
}

} // namespace zpsg::platform
