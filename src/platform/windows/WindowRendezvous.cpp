#include "platform/WindowRendezvous.h"

#include "platform/windows/Win32.h"

#include <algorithm>
#include <optional>

namespace zpsg::platform {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds kRetryInterval{20};
// Keeps the arithmetic with the clock and the system's 32-bit milliseconds within range.
constexpr milliseconds kLongestPatience = std::chrono::hours(1);

// Loser and looker keep the mutex's name alive for an instant each, so that one busy look proves nothing.
constexpr int kClaimAttempts = 4;
constexpr DWORD kClaimInterval = 5; // milliseconds

milliseconds until(Clock::time_point deadline) {
    return std::max(std::chrono::ceil<milliseconds>(deadline - Clock::now()), milliseconds::zero());
}

HWND windowTitled(const std::string &title) { return FindWindowW(nullptr, wide(title).c_str()); }

// "Local" is the user's session; a backslash would begin another name space.
std::wstring mutexName(const std::string &title) {
    std::wstring name = wide(title);
    std::replace(name.begin(), name.end(), L'\\', L'/');
    return L"Local\\zpsg-title-" + name;
}

bool isClaimed(const std::string &title) {
    HANDLE mutex = OpenMutexW(SYNCHRONIZE, FALSE, mutexName(title).c_str());
    if (mutex == nullptr) {
        return GetLastError() == ERROR_ACCESS_DENIED; // there, but made by a process with more rights
    }
    CloseHandle(mutex);
    return true;
}

Delivery deliver(HWND window, const WindowMessage &message, milliseconds patience) {
    if (message.number == kShowRequest) {
        // The user has just started this process, so it may pass on the right to come to the front.
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        AllowSetForegroundWindow(process);
    }
    DWORD_PTR result = 0;
    if (SendMessageTimeoutW(window, message.number, static_cast<WPARAM>(message.wParam),
                            static_cast<LPARAM>(message.lParam), SMTO_ABORTIFHUNG | SMTO_ERRORONEXIT,
                            static_cast<UINT>(patience.count()), &result) != 0) {
        return result != 0 ? Delivery::Handled : Delivery::NotHandled;
    }
    debugError("SendMessageTimeout", GetLastError());
    return IsWindow(window) ? Delivery::NoAnswer : Delivery::NoWindow;
}

// The claim is the mutex's existence, not its ownership: ownership would belong to a thread, which could take
// it twice or end before the process does.
class MutexTitleClaim final : public TitleClaim {
public:
    explicit MutexTitleClaim(HANDLE mutex) : mutex_(mutex) {}
    ~MutexTitleClaim() override { CloseHandle(mutex_); }
    MutexTitleClaim(const MutexTitleClaim &) = delete;
    MutexTitleClaim &operator=(const MutexTitleClaim &) = delete;

    void deliverTo(MessageHandler /*handler*/) override {}

private:
    HANDLE mutex_;
};

} // namespace

bool windowExists(const std::string &title) { return windowTitled(title) != nullptr || isClaimed(title); }

Delivery sendToWindow(const std::string &title, const WindowMessage &message, milliseconds patience) {
    const auto deadline = Clock::now() + std::clamp(patience, milliseconds::zero(), kLongestPatience);
    for (;;) {
        if (HWND window = windowTitled(title)) {
            return deliver(window, message, until(deadline));
        }
        if (!isClaimed(title)) {
            return Delivery::NoWindow;
        }
        const milliseconds left = until(deadline);
        if (left == milliseconds::zero()) {
            return Delivery::NoAnswer;
        }
        Sleep(static_cast<DWORD>(std::min(left, kRetryInterval).count()));
    }
}

std::unique_ptr<TitleClaim> TitleClaim::tryTake(const std::string &title) {
    for (int attempt = 0; attempt < kClaimAttempts; ++attempt) {
        HANDLE mutex = CreateMutexW(nullptr, FALSE, mutexName(title).c_str());
        const DWORD error = GetLastError();
        if (mutex == nullptr) {
            debugError("title mutex", error);
            return nullptr;
        }
        if (error != ERROR_ALREADY_EXISTS) {
            return std::make_unique<MutexTitleClaim>(mutex);
        }
        CloseHandle(mutex);
        Sleep(kClaimInterval);
    }
    return nullptr;
}

} // namespace zpsg::platform
