// What the groups of the Windows self-test share.
#pragma once

#include "platform/windows/SharedMemory.h"

#include <chrono>
#include <functional>
#include <string>

namespace zpsg::selftest {

/// Tells what failed, and makes the program end with 1.
void expect(bool condition, const std::string &what);
[[nodiscard]] bool allWell();

/// Runs this thread's message loop until the condition holds. False when that takes longer than `wait`.
bool loopUntil(const std::function<bool()> &condition,
               std::chrono::milliseconds wait = std::chrono::seconds(20));

/// This program once more, as `selftest.exe ROLE`, with a console of its own; killed at the end of its life.
class Child {
public:
    /// Returns once it has called ready(), or has failed to (told as a failed check).
    explicit Child(const std::wstring &role);
    ~Child();
    Child(const Child &) = delete;
    Child &operator=(const Child &) = delete;

    /// Its exit code; nothing, told as a failed check, when it still runs.
    DWORD exitCode();

private:
    platform::OwnedHandle process_;
};

/// For the child: lets its parent go on.
void ready();

// The groups.
void checkTexts();
void checkTerminal();
void checkAutostart();
void checkSensors();
void checkSound();
void checkTitles();
void checkMessages();
void checkSystemMenu();
void checkDevices();
void checkSessionNotices();
void checkExitRequests();

// What the child does, by its role.
int showWindow();
int pressControlC(bool twice);

} // namespace zpsg::selftest
