#include "platform/SessionWatch.h"

#include "platform/windows/MessageWindow.h"

#include <wtsapi32.h>

namespace zpsg::platform {
namespace {

// Since Windows 8, and there the only way on a PC that sleeps with the network on (no broadcast goes out).
using Register = HANDLE(WINAPI *)(HANDLE recipient, DWORD flags);
using Unregister = BOOL(WINAPI *)(HANDLE registration);

template <class Function>
Function userFunction(const char *name) {
    return reinterpret_cast<Function>(
        reinterpret_cast<void *>(GetProcAddress(GetModuleHandleW(L"user32"), name)));
}

class WindowsSessionWatch final : public SessionWatch {
public:
    explicit WindowsSessionWatch(std::function<void(SessionEvent)> handler)
        : handler_(std::move(handler))
        , window_([this](UINT message, WPARAM wParam, LPARAM) { return receive(message, wParam); }) {
        if (window_.handle() == nullptr) {
            return;
        }
        watchesLock_ = WTSRegisterSessionNotification(window_.handle(), NOTIFY_FOR_THIS_SESSION) != FALSE;
        if (!watchesLock_) {
            debugError("WTSRegisterSessionNotification", GetLastError());
        }
        if (const auto registerFor = userFunction<Register>("RegisterSuspendResumeNotification")) {
            sleepNotice_ = registerFor(window_.handle(), DEVICE_NOTIFY_WINDOW_HANDLE);
        }
        if (sleepNotice_ == nullptr) {
            // The broadcast reaches top-level windows only; without a parent it is one, and as invisible.
            SetParent(window_.handle(), nullptr);
        }
    }
    ~WindowsSessionWatch() override {
        if (watchesLock_) {
            WTSUnRegisterSessionNotification(window_.handle());
        }
        if (const auto unregister = userFunction<Unregister>("UnregisterSuspendResumeNotification");
            unregister != nullptr && sleepNotice_ != nullptr) {
            unregister(sleepNotice_);
        }
    }
    WindowsSessionWatch(const WindowsSessionWatch &) = delete;
    WindowsSessionWatch &operator=(const WindowsSessionWatch &) = delete;

private:
    LRESULT receive(UINT message, WPARAM wParam) {
        if (message == WM_WTSSESSION_CHANGE) {
            if (wParam == WTS_SESSION_LOCK || wParam == WTS_SESSION_UNLOCK) {
                tell(wParam == WTS_SESSION_LOCK ? SessionEvent::Locked : SessionEvent::Unlocked);
            }
            return 0;
        }
        if (message == WM_POWERBROADCAST) {
            // After a resume with somebody at the keyboard a second message follows; the first one is enough.
            if (wParam == PBT_APMSUSPEND || wParam == PBT_APMRESUMEAUTOMATIC) {
                tell(wParam == PBT_APMSUSPEND ? SessionEvent::GoingToSleep : SessionEvent::Resumed);
            }
            return TRUE;
        }
        return -1;
    }

    void tell(SessionEvent event) {
        const auto handler = handler_; // it may end the watch
        handler(event);
    }

    std::function<void(SessionEvent)> handler_;
    MessageWindow window_;
    bool watchesLock_ = false;
    HANDLE sleepNotice_ = nullptr;
};

} // namespace

std::unique_ptr<SessionWatch> SessionWatch::start(std::function<void(SessionEvent)> handler) {
    return std::make_unique<WindowsSessionWatch>(std::move(handler));
}

} // namespace zpsg::platform
