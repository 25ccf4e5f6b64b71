// zpsg.com, which a command line runs for "zpsg": a program with windows gets no terminal, and no shell waits
// for its end. This starts it, lends it the terminal and the streams, and ends with its exit code.

#include "platform/windows/Win32.h"

#include <string>

namespace {

constexpr int kFailed = 1;
/// Longer than a path can be, characters.
constexpr DWORD kLongestPath = 32768;

/// The program beside this one; empty when that can't be told.
std::wstring programPath() {
    std::wstring path(kLongestPath, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), kLongestPath));
    const auto dot = path.find_last_of(L'.');
    return dot == std::wstring::npos ? std::wstring() : path.substr(0, dot) + L".exe";
}

/// What follows the program's own name on the command line, as it was typed.
std::wstring argumentsAsTyped() {
    const std::wstring line = GetCommandLineW();
    std::size_t end = 0;
    for (bool quoted = false; end < line.size() && (quoted || (line[end] != L' ' && line[end] != L'\t'));
         ++end) {
        quoted ^= line[end] == L'"';
    }
    return line.substr(end);
}

int complain(const std::string &what) {
    const std::string text = "zpsg: " + what + "\n";
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), text.data(), static_cast<DWORD>(text.size()), &written,
              nullptr);
    return kFailed;
}

} // namespace

int main() {
    // Ctrl+C is for the program, which ends in its own way; this ends after it.
    SetConsoleCtrlHandler([](DWORD) -> BOOL { return TRUE; }, TRUE);

    const std::wstring program = programPath();
    std::wstring line = L'"' + program + L'"' + argumentsAsTyped();
    STARTUPINFOW start{};
    start.cb = sizeof(start);
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
    start.hStdOutput = GetStdHandle(STD_OUTPUT_HANDLE);
    start.hStdError = GetStdHandle(STD_ERROR_HANDLE);
    PROCESS_INFORMATION process{};
    if (CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                       &process) == FALSE) {
        return complain(zpsg::platform::narrow(program) +
                        " can't be started: " + zpsg::platform::errorText(GetLastError()));
    }
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = kFailed;
    GetExitCodeProcess(process.hProcess, &code);
    return static_cast<int>(code);
}
