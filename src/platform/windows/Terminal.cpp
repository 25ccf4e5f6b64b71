#include "platform/Terminal.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace zpsg::platform {
namespace {

HANDLE handleOf(std::FILE *stream) {
    const int descriptor = _fileno(stream); // negative when the process has no such stream
    return descriptor < 0 ? INVALID_HANDLE_VALUE : reinterpret_cast<HANDLE>(_get_osfhandle(descriptor));
}

/// Gives the stream the console, unless it has been led somewhere else or was closed on purpose.
void openConsole(std::FILE *stream, DWORD which, const char *device, const char *mode) {
    const HANDLE handle = GetStdHandle(which);
    const DWORD type =
        handle == nullptr || handle == INVALID_HANDLE_VALUE ? FILE_TYPE_UNKNOWN : GetFileType(handle);
    if (type != FILE_TYPE_DISK && type != FILE_TYPE_PIPE) {
        std::freopen(device, mode, stream);
    }
}

} // namespace

void attachToTerminal() {
    if (AttachConsole(ATTACH_PARENT_PROCESS) == FALSE) {
        return; // started from the desktop
    }
    SetConsoleOutputCP(CP_UTF8); // what this program writes
    openConsole(stdin, STD_INPUT_HANDLE, "CONIN$", "r");
    openConsole(stdout, STD_OUTPUT_HANDLE, "CONOUT$", "w");
    openConsole(stderr, STD_ERROR_HANDLE, "CONOUT$", "w");
}

bool isTerminal(std::FILE *stream) {
    DWORD mode = 0;
    return GetConsoleMode(handleOf(stream), &mode) != 0;
}

bool prepareForData(std::FILE *stream) {
    const HANDLE handle = handleOf(stream);
    return handle != INVALID_HANDLE_VALUE && GetFileType(handle) != FILE_TYPE_UNKNOWN &&
           _setmode(_fileno(stream), _O_BINARY) != -1;
}

} // namespace zpsg::platform
