#include "platform/windows/MessageWindow.h"

namespace zpsg::platform {
namespace {

constexpr const wchar_t *kClassName = L"zpsg-messages"; // packaging/windows/shared.nsh looks for it

} // namespace

MessageWindow::MessageWindow(Handler handler) : handler_(std::move(handler)) {
    WNDCLASSEXW type{};
    type.cbSize = sizeof(type);
    type.lpfnWndProc = procedure;
    type.hInstance = GetModuleHandleW(nullptr);
    type.lpszClassName = kClassName;
    RegisterClassExW(&type); // fails from the second time on, when the class is there already
    window_ = CreateWindowExW(0, kClassName, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, type.hInstance,
                              nullptr);
    if (window_ == nullptr) {
        debugError("message window", GetLastError());
        return;
    }
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

MessageWindow::~MessageWindow() {
    if (window_ != nullptr) {
        SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
        DestroyWindow(window_);
    }
}

LRESULT CALLBACK MessageWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    // The system keeps the pointer as a number.
    // NOLINTNEXTLINE(performance-no-int-to-ptr)
    const auto *self = reinterpret_cast<MessageWindow *>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self != nullptr) {
        const Handler handler = self->handler_; // it may destroy the object
        const LRESULT result = handler(message, wParam, lParam);
        if (result >= 0) {
            return result;
        }
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

} // namespace zpsg::platform
