#include "platform/Autostart.h"

#include "platform/windows/RunCommand.h"
#include "platform/windows/Win32.h"

#include <optional>

namespace zpsg::platform {
namespace {

constexpr const wchar_t *kRunKey = L"Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const wchar_t *kValueName = L"ZPS G";

DWORD bytesOf(const std::wstring &text) {
    return static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)); // with the terminating zero
}

std::optional<std::wstring> readValue() {
    DWORD bytes = 0;
    if (RegGetValueW(HKEY_CURRENT_USER, kRunKey, kValueName, RRF_RT_REG_SZ, nullptr, nullptr, &bytes) !=
        ERROR_SUCCESS) {
        return std::nullopt;
    }
    std::wstring value(bytes / sizeof(wchar_t) + 1, L'\0');
    bytes = bytesOf(value);
    if (RegGetValueW(HKEY_CURRENT_USER, kRunKey, kValueName, RRF_RT_REG_SZ, nullptr, value.data(), &bytes) !=
        ERROR_SUCCESS) {
        return std::nullopt;
    }
    value.resize(value.find(L'\0'));
    return value;
}

bool succeeded(LSTATUS status, std::string &error) {
    if (status == ERROR_SUCCESS) {
        return true;
    }
    error = errorText(static_cast<DWORD>(status));
    return false;
}

} // namespace

bool setAutostart(Autostart mode, const std::string &executable, std::string &error) {
    if (mode == Autostart::Off) {
        const LSTATUS status = RegDeleteKeyValueW(HKEY_CURRENT_USER, kRunKey, kValueName);
        return status == ERROR_FILE_NOT_FOUND || succeeded(status, error);
    }
    const std::wstring command = runCommand(wide(executable), mode == Autostart::Hidden);
    return readValue() == command || succeeded(RegSetKeyValueW(HKEY_CURRENT_USER, kRunKey, kValueName, REG_SZ,
                                                               command.c_str(), bytesOf(command)),
                                               error);
}

bool autostartEnabled() {
    return RegGetValueW(HKEY_CURRENT_USER, kRunKey, kValueName, RRF_RT_ANY, nullptr, nullptr, nullptr) ==
           ERROR_SUCCESS;
}

bool autostartStarts(const std::string &executable) {
    const auto value = readValue();
    return value == runCommand(wide(executable), true) || value == runCommand(wide(executable), false);
}

} // namespace zpsg::platform
