#include "remote/OwnAddress.h"

#include <QNetworkInterface>

#include <algorithm>

namespace zpsg::remote {
namespace {

QHostAddress plain(const QHostAddress &address) {
    bool isIPv4 = false;
    const quint32 number = address.toIPv4Address(&isIPv4);
    return isIPv4 ? QHostAddress(number) : address;
}

} // namespace

bool isOwnAddress(const QHostAddress &peer, const QList<QHostAddress> &own) {
    const QHostAddress wanted = plain(peer);
    if (wanted.isNull()) {
        return false;
    }
    return wanted.isLoopback() || std::any_of(own.begin(), own.end(), [&](const QHostAddress &address) {
               return plain(address) == wanted;
           });
}

bool isOwnAddress(const QHostAddress &peer) {
    return isOwnAddress(peer, {}) || isOwnAddress(peer, QNetworkInterface::allAddresses());
}

} // namespace zpsg::remote
