// The numbered messages that reach a window from other processes and from the system. On Windows they are
// window messages; elsewhere the same numbers travel over the platform's own channel, so that nothing above
// this folder knows the difference.
#pragma once

#include <cstdint>
#include <functional>

namespace zpsg::platform {

/// One message; wParam and lParam mean what the message's own row below says.
struct WindowMessage {
    std::uint32_t number = 0;
    std::uint64_t wParam = 0;
    std::int64_t lParam = 0;
};

/// A device came or went (the system's WM_DEVICECHANGE); no parameters are used.
inline constexpr std::uint32_t kDeviceChange = 537;
/// To the companion lighting application: lParam 1 = about to take the device, 0 = has taken it.
inline constexpr std::uint32_t kCompanionNotice = 9012;
/// From a second instance: show the window (lParam 1).
inline constexpr std::uint32_t kShowRequest = 33025;
/// From the companion: the Duo set's lighting sync off, mode text "Sync By Fans".
inline constexpr std::uint32_t kSyncOffByFans = 33026;
/// From the companion: sync on, mode text "Sync By Fans".
inline constexpr std::uint32_t kSyncOnByFans = 33027;
/// From the companion: sync off, mode text "Sync By KeyBoard".
inline constexpr std::uint32_t kSyncOffByKeyBoard = 33028;

/// Title of this program's main window; the rendezvous name for a second instance.
inline constexpr const char *kMainWindowTitle = "CorvaneZPSPOWER";
/// Title of the companion lighting application's window.
inline constexpr const char *kCompanionWindowTitle = "CV RGB Plus";

/// Receives a message; returns whether it was handled. Always called on the thread of the event loop.
using MessageHandler = std::function<bool(const WindowMessage &)>;

} // namespace zpsg::platform
