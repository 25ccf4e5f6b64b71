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

} // namespace

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
