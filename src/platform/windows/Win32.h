// The system's header with its macros tamed, and what every file here needs of it.
#pragma once

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef _WIN32_WINNT
#define _WIN32_WINNT 0x0601 // Windows 7, the oldest that Qt 5.15 runs on
#endif
#include <windows.h>

#include <string>

namespace zpsg::platform {

/// UTF-8 to UTF-16; what is no UTF-8 becomes U+FFFD.
std::wstring wide(const std::string &text);
std::string narrow(const std::wstring &text);

/// A debug line "zpsg.platform: <what>: <the system's own text for the error>".
void debugError(const std::string &what, DWORD error);

/// The system's text for an error code, UTF-8, without the line break.
std::string errorText(DWORD error);

} // namespace zpsg::platform
