// What the system tells by itself.
#include "SelfTest.h"

#include "platform/DeviceAccess.h"
#include "platform/DeviceWatch.h"
#include "platform/ExitRequest.h"
#include "platform/RawHid.h"
#include "platform/SessionWatch.h"

#include <vector>
#include <wtsapi32.h>

namespace zpsg::selftest {

using namespace platform;
using std::chrono::milliseconds;

namespace {

constexpr int kAsked = 7; // the exit code of a child that was asked to end
constexpr DWORD kExitCodeOfControlC = 0xC000013A;

/// The one message window that this thread has: a child of nobody where notices come as broadcasts.
HWND messageWindow() {
    const HWND window = FindWindowExW(HWND_MESSAGE, nullptr, L"zpsg-messages", nullptr);
    return window != nullptr ? window : FindWindowExW(nullptr, nullptr, L"zpsg-messages", nullptr);
}

} // namespace

void checkDevices() {
    expect(RawHid::open(0x264A, 0xFFFF) == nullptr, "no such product");
    expect(deviceAccess("x") == DeviceAccess::Allowed && deviceAccessRemedy("x").empty(),
           "no permissions here");
    int notices = 0;
    auto watch = DeviceWatch::start([&](const WindowMessage &message) {
        notices += message.number == kDeviceChange ? 1 : 0;
        return true;
    });
    expect(watch != nullptr, "device notices");
    for (int i = 0; i < 5; ++i) {
        PostMessageW(messageWindow(), WM_DEVICECHANGE, 7, 0);
    }
    expect(loopUntil([&] { return notices > 0; }), "a change is told");
    loopUntil([] { return false; }, milliseconds(700));
    expect(notices == 1, "a burst is told once");
    watch.reset();
    expect(messageWindow() == nullptr, "the watch leaves no window");

    std::unique_ptr<DeviceWatch> own;
    own = DeviceWatch::start([&own](const WindowMessage &) {
        own.reset();
        return true;
    });
    PostMessageW(messageWindow(), WM_DEVICECHANGE, 7, 0);
    expect(loopUntil([&] { return own == nullptr; }), "the handler may end the watch");
}

void checkSessionNotices() {
    std::vector<SessionEvent> told;
    const auto watch = SessionWatch::start([&](SessionEvent event) { told.push_back(event); });
    const HWND window = messageWindow();
    expect(window != nullptr, "notice of lock and sleep");
    struct Row {
        UINT message;
        WPARAM what;
    };
    for (const Row &row :
         {Row{WM_WTSSESSION_CHANGE, WTS_SESSION_LOCK}, Row{WM_WTSSESSION_CHANGE, WTS_SESSION_LOGON},
          Row{WM_WTSSESSION_CHANGE, WTS_SESSION_UNLOCK}, Row{WM_POWERBROADCAST, PBT_APMSUSPEND},
          Row{WM_POWERBROADCAST, PBT_APMPOWERSTATUSCHANGE}, Row{WM_POWERBROADCAST, PBT_APMRESUMEAUTOMATIC},
          Row{WM_POWERBROADCAST, PBT_APMRESUMESUSPEND}}) {
        SendMessageW(window, row.message, row.what, 0);
    }
    expect(told == std::vector{SessionEvent::Locked, SessionEvent::Unlocked, SessionEvent::GoingToSleep,
                               SessionEvent::Resumed},
           "lock and sleep are told as they come, once each");
}

int pressControlC(bool twice) {
    bool asked = false;
    onExitRequest([&] {
        asked = true;
        if (twice) {
            GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0);
            Sleep(INFINITE);
        }
    });
    ready();
    // To all who share the console, which is this process's own.
    return GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0) != FALSE && loopUntil([&] { return asked; }) ? kAsked
                                                                                                  : 1;
}

void checkExitRequests() {
    Child once(L"control-c");
    expect(once.exitCode() == kAsked, "the handler runs in the message loop");
    Child twice(L"control-c-twice");
    expect(twice.exitCode() == kExitCodeOfControlC, "a second Ctrl+C ends a program that is stuck");
}

} // namespace zpsg::selftest
