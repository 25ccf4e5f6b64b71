// An invisible window that only receives messages, for callers without a window of their own.
#pragma once

#include "platform/windows/Win32.h"

#include <functional>

namespace zpsg::platform {

/// Lives on the thread that made it, whose message loop calls the handler.
class MessageWindow {
public:
    /// Gives the message's result, or a negative number to have the system's default.
    using Handler = std::function<LRESULT(UINT message, WPARAM wParam, LPARAM lParam)>;

    explicit MessageWindow(Handler handler);
    ~MessageWindow();
    MessageWindow(const MessageWindow &) = delete;
    MessageWindow &operator=(const MessageWindow &) = delete;

    /// Null when the system refused (a debug line says why).
    [[nodiscard]] HWND handle() const { return window_; }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    Handler handler_;
    HWND window_ = nullptr;
};

} // namespace zpsg::platform
