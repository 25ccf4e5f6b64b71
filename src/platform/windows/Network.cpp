#include "platform/Network.h"

#include "platform/windows/Win32.h"

#include <winsock2.h>
#include <ws2tcpip.h>

#include "platform/AddressText.h"

namespace zpsg::platform {
namespace {

/// The socket library, for as long as a call needs it: it counts its users.
class Winsock {
public:
    Winsock() { started_ = WSAStartup(MAKEWORD(2, 2), &about_) == 0; }
    ~Winsock() {
        if (started_) {
            WSACleanup();
        }
    }
    Winsock(const Winsock &) = delete;
    Winsock &operator=(const Winsock &) = delete;

    [[nodiscard]] bool started() const { return started_; }

private:
    WSADATA about_{};
    bool started_ = false;
};

} // namespace

std::vector<std::string> hostAddresses(const std::string &name) {
    const Winsock library;
    return library.started() ? addressTexts(name) : std::vector<std::string>();
}

void surviveEndedConnections() {} // there it never was anything else

void endConnection(std::intptr_t socket) { shutdown(static_cast<SOCKET>(socket), SD_BOTH); }

} // namespace zpsg::platform
