#pragma once

#include <QHostAddress>

namespace zpsg::remote {

/// True when `peer` is this machine: loopback, or one of `own`. An IPv4 address may come mapped into IPv6, as
/// a socket for both reports it; the scope of a link-local address does not matter.
bool isOwnAddress(const QHostAddress &peer, const QList<QHostAddress> &own);

/// The same with what the network interfaces have now.
bool isOwnAddress(const QHostAddress &peer);

} // namespace zpsg::remote
