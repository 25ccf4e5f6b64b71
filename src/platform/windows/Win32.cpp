#include "platform/windows/Win32.h"

namespace zpsg::platform {

std::wstring wide(const std::string &text) {
    const int size = static_cast<int>(text.size());
    std::wstring result(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), size, result.data(), static_cast<int>(result.size()));
    return result;
}

std::string narrow(const std::wstring &text) {
    const int size = static_cast<int>(text.size());
    std::string result(static_cast<std::size_t>(
                           WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr)),
                       '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, result.data(), static_cast<int>(result.size()),
                        nullptr, nullptr);
    return result;
}

std::string errorText(DWORD error) {
    constexpr DWORD kLongest = 512;
    std::wstring text(kLongest, L'\0');
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                        error, 0, text.data(), kLongest, nullptr);
    text.resize(length);
    while (!text.empty() && (text.back() == L'\n' || text.back() == L'\r' || text.back() == L' ')) {
        text.pop_back();
    }
    return text.empty() ? "error " + std::to_string(error) : narrow(text);
}

void debugError(const std::string &what, DWORD error) {
    OutputDebugStringA(("zpsg.platform: " + what + ": " + errorText(error) + "\n").c_str());
}

} // namespace zpsg::platform
