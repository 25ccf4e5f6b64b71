#include "SelfTest.h"

#include <array>
#include <iostream>

namespace zpsg::selftest {
namespace {

using Clock = std::chrono::steady_clock;

constexpr const wchar_t *kReady = L"Local\\zpsg-selftest-ready";
constexpr DWORD kPatience = 60000; // milliseconds

int failures = 0;

} // namespace

void expect(bool condition, const std::string &what) {
    if (!condition) {
        std::cerr << "failed: " << what << std::endl;
        ++failures;
    }
}

bool allWell() { return failures == 0; }

bool loopUntil(const std::function<bool()> &condition, std::chrono::milliseconds wait) {
    constexpr DWORD kLook = 20; // milliseconds
    const auto deadline = Clock::now() + wait;
    while (!condition()) {
        if (Clock::now() > deadline) {
            return false;
        }
        MsgWaitForMultipleObjects(0, nullptr, FALSE, kLook, QS_ALLINPUT);
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
            DispatchMessageW(&message);
        }
    }
    return true;
}

Child::Child(const std::wstring &role)
    : process_([&role]() -> HANDLE {
        std::array<wchar_t, MAX_PATH> path{};
        GetModuleFileNameW(nullptr, path.data(), MAX_PATH);
        std::wstring command = L'"' + std::wstring(path.data()) + L"\" " + role;
        STARTUPINFOW start{};
        start.cb = sizeof(start);
        start.dwFlags = STARTF_USESHOWWINDOW; // the console's: hidden
        PROCESS_INFORMATION process{};
        const platform::OwnedHandle isReady(CreateEventW(nullptr, TRUE, FALSE, kReady));
        if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, CREATE_NEW_CONSOLE, nullptr,
                           nullptr, &start, &process) == FALSE) {
            expect(false, "a second process starts");
            return nullptr;
        }
        CloseHandle(process.hThread);
        expect(WaitForSingleObject(isReady.get(), kPatience) == WAIT_OBJECT_0, "the second process is ready");
        return process.hProcess;
    }()) {}

Child::~Child() {
    TerminateProcess(process_.get(), 1);
    WaitForSingleObject(process_.get(), kPatience);
}

DWORD Child::exitCode() {
    expect(WaitForSingleObject(process_.get(), kPatience) == WAIT_OBJECT_0, "the second process ends");
    DWORD code = 0;
    GetExitCodeProcess(process_.get(), &code);
    return code;
}

void ready() {
    const platform::OwnedHandle event(OpenEventW(EVENT_MODIFY_STATE, FALSE, kReady));
    SetEvent(event.get());
}

} // namespace zpsg::selftest
