#include "platform/ExitRequest.h"

#include "platform/windows/MessageWindow.h"

#include <atomic>

namespace zpsg::platform {
namespace {

constexpr UINT kExitMessage = WM_APP;             // packaging/windows/shared.nsh posts it as well
constexpr UINT kExitCodeOfControlC = 0xC000013AU; // what the system gives a program that Ctrl+C ended

// Shared with the console's own thread.
std::atomic<HWND> receiver{nullptr};
std::atomic<bool> carryingOut{false};
std::atomic<bool> askedInPerson{false};

// The console calls this on a thread of its own. Only a repeated Ctrl+C or Ctrl+Break is somebody who has run
// out of patience; the closing events come in company.
BOOL WINAPI requestExit(DWORD event) {
    const bool inPerson = event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT;
    if (inPerson && askedInPerson.exchange(true)) {
        TerminateProcess(GetCurrentProcess(), kExitCodeOfControlC);
    }
    if (!carryingOut.exchange(true)) {
        PostMessageW(receiver, kExitMessage, 0, 0);
    }
    if (!inPerson) {
        Sleep(
            INFINITE); // the system ends the process as soon as this returns; the main thread ends it sooner
    }
    return TRUE;
}

} // namespace

void onExitRequest(std::function<void()> handler) {
    // Lives as long as the process: the console's thread may use it until the very end.
    static const MessageWindow window(
        [handler = std::move(handler)](UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/) -> LRESULT {
            if (message != kExitMessage) {
                return -1;
            }
            handler();
            carryingOut = false;
            askedInPerson = false;
            return 0;
        });
    receiver = window.handle();
    if (window.handle() != nullptr && SetConsoleCtrlHandler(requestExit, TRUE) == FALSE) {
        debugError("SetConsoleCtrlHandler", GetLastError());
    }
}

} // namespace zpsg::platform
