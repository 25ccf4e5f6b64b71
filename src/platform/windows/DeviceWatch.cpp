#include "platform/DeviceWatch.h"

#include "platform/EventBurst.h"
#include "platform/windows/MessageWindow.h"

#include <dbt.h>

namespace zpsg::platform {
namespace {

static_assert(WM_DEVICECHANGE == kDeviceChange);

constexpr UINT_PTR kTimer = 1;

HDEVNOTIFY registerFor(HWND window) {
    DEV_BROADCAST_DEVICEINTERFACE_W wanted{};
    wanted.dbcc_size = sizeof(wanted);
    wanted.dbcc_devicetype = DBT_DEVTYP_DEVICEINTERFACE;
    HDEVNOTIFY registration = RegisterDeviceNotificationW(
        window, &wanted, DEVICE_NOTIFY_WINDOW_HANDLE | DEVICE_NOTIFY_ALL_INTERFACE_CLASSES);
    if (registration == nullptr) {
        debugError("RegisterDeviceNotification", GetLastError());
    }
    return registration;
}

HWND ownMainWindow() {
    HWND window = FindWindowW(nullptr, wide(kMainWindowTitle).c_str());
    DWORD process = 0;
    return window != nullptr && GetWindowThreadProcessId(window, &process) != 0 &&
                   process == GetCurrentProcessId()
               ? window
               : nullptr;
}

// The main window gets the messages itself, several a burst.
class MainWindowWatch final : public DeviceWatch {
public:
    explicit MainWindowWatch(HDEVNOTIFY registration) : registration_(registration) {}
    ~MainWindowWatch() override { UnregisterDeviceNotification(registration_); }
    MainWindowWatch(const MainWindowWatch &) = delete;
    MainWindowWatch &operator=(const MainWindowWatch &) = delete;

private:
    HDEVNOTIFY registration_;
};

// Without a main window nothing in the process would get them.
class HiddenWindowWatch final : public DeviceWatch {
public:
    explicit HiddenWindowWatch(MessageHandler handler)
        : handler_(std::move(handler))
        , window_([this](UINT message, WPARAM wParam, LPARAM) { return receive(message, wParam); })
        , registration_(window_.handle() != nullptr ? registerFor(window_.handle()) : nullptr) {}
    ~HiddenWindowWatch() override {
        if (registration_ != nullptr) {
            UnregisterDeviceNotification(registration_);
        }
    }
    HiddenWindowWatch(const HiddenWindowWatch &) = delete;
    HiddenWindowWatch &operator=(const HiddenWindowWatch &) = delete;

    [[nodiscard]] bool works() const { return registration_ != nullptr; }

private:
    LRESULT receive(UINT message, WPARAM wParam) {
        if (message == WM_DEVICECHANGE) {
            const auto wait = burst_.note(EventBurst::Clock::now());
            SetTimer(window_.handle(), kTimer, static_cast<UINT>(wait.count()), nullptr);
            return TRUE;
        }
        if (message == WM_TIMER && wParam == kTimer) {
            KillTimer(window_.handle(), kTimer);
            burst_.told();
            const MessageHandler handler = handler_; // it may end the watch
            handler(WindowMessage{kDeviceChange, 0, 0});
            return 0;
        }
        return -1;
    }

    MessageHandler handler_;
    EventBurst burst_;
    MessageWindow window_;
    HDEVNOTIFY registration_;
};

} // namespace

std::unique_ptr<DeviceWatch> DeviceWatch::start(MessageHandler handler) {
    if (HWND window = ownMainWindow()) {
        HDEVNOTIFY registration = registerFor(window);
        return registration != nullptr ? std::make_unique<MainWindowWatch>(registration) : nullptr;
    }
    auto watch = std::make_unique<HiddenWindowWatch>(std::move(handler));
    return watch->works() ? std::move(watch) : nullptr;
}

} // namespace zpsg::platform
