#include "platform/Network.h"

#include <csignal>
#include <netdb.h>
#include <sys/socket.h>

#include "platform/AddressText.h"

namespace zpsg::platform {

std::vector<std::string> hostAddresses(const std::string &name) { return addressTexts(name); }

void surviveEndedConnections() { std::signal(SIGPIPE, SIG_IGN); }

void endConnection(std::intptr_t socket) { shutdown(static_cast<int>(socket), SHUT_RDWR); }

} // namespace zpsg::platform
