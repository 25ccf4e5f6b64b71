// What can go wrong with the broker, and its name in the log.
#pragma once

#include <QString>

namespace zpsg::remote {

/// In the order of the client's error values; the names stand in the same order.
enum class MqttError : int {
    Unknown,
    ConnectionRefused,
    RemoteHostClosed,
    HostNotFound,
    Access,
    Resource,
    Timeout,
    DatagramTooLarge,
    Network,
    AddressInUse,
    AddressNotAvailable,
    UnsupportedSocketOperation,
    UnfinishedSocketOperation,
    ProxyAuthenticationRequired,
    SslHandshakeFailed,
    ProxyConnectionRefused,
    ProxyConnectionClosed,
    ProxyConnectionTimeout,
    ProxyNotFound,
    ProxyProtocol,
    Operation,
    SslInternal,
    SslInvalidUserData,
    Temporary,
};

/// "SocketConnectionRefusedError" and the like.
[[nodiscard]] QString nameOf(MqttError error);
/// `code` is libmosquitto's (mosq_err_t), `systemError` the errno that goes with MOSQ_ERR_ERRNO.
[[nodiscard]] MqttError errorOf(int code, int systemError);
/// A broker that answers and doesn't want this client: the return code of CONNACK, 1 to 5.
[[nodiscard]] MqttError errorOfRefusal(int returnCode);

} // namespace zpsg::remote
