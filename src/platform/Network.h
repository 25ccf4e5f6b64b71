// What of the network that the system gives and the libraries in use don't.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zpsg::platform {

/// The addresses of a host as text, as the system orders them; none when the name has none or can't be looked
/// up. Blocks for as long as the name servers take, and may be called in any thread.
std::vector<std::string> hostAddresses(const std::string &name);

/// From now on, writing to a connection that its peer has ended is an error for the whole process, and not
/// its end.
void surviveEndedConnections();

/// Ends a connection in both directions. The socket stays its owner's, who sees it as ended by the peer.
void endConnection(std::intptr_t socket);

} // namespace zpsg::platform
