#include "remote/MqttErrors.h"

#include <mosquitto.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace zpsg::remote {
namespace {

constexpr std::array kNames{"UnknownError",
                            "SocketConnectionRefusedError",
                            "SocketRemoteHostClosedError",
                            "SocketHostNotFoundError",
                            "SocketAccessError",
                            "SocketResourceError",
                            "SocketTimeoutError",
                            "SocketDatagramTooLargeError",
                            "SocketNetworkError",
                            "SocketAddressInUseError",
                            "SocketAddressNotAvailableError",
                            "SocketUnsupportedSocketOperationError",
                            "SocketUnfinishedSocketOperationError",
                            "SocketProxyAuthenticationRequiredError",
                            "SocketSslHandshakeFailedError",
                            "SocketProxyConnectionRefusedError",
                            "SocketProxyConnectionClosedError",
                            "SocketProxyConnectionTimeoutError",
                            "SocketProxyNotFoundError",
                            "SocketProxyProtocolError",
                            "SocketOperationError",
                            "SocketSslInternalError",
                            "SocketSslInvalidUserDataError",
                            "SocketTemporaryError"};

using Row = std::pair<int, MqttError>;

constexpr std::array kCodes{
    Row{MOSQ_ERR_NOMEM, MqttError::Resource},
    Row{MOSQ_ERR_CONN_REFUSED, MqttError::ConnectionRefused},
    Row{MOSQ_ERR_CONN_LOST, MqttError::RemoteHostClosed},
    Row{MOSQ_ERR_TLS, MqttError::SslHandshakeFailed},
    Row{MOSQ_ERR_TLS_HANDSHAKE, MqttError::SslHandshakeFailed},
    Row{MOSQ_ERR_PAYLOAD_SIZE, MqttError::DatagramTooLarge},
    Row{MOSQ_ERR_OVERSIZE_PACKET, MqttError::DatagramTooLarge},
    Row{MOSQ_ERR_AUTH, MqttError::Access},
    Row{MOSQ_ERR_ACL_DENIED, MqttError::Access},
    Row{MOSQ_ERR_EAI, MqttError::HostNotFound},
    Row{MOSQ_ERR_LOOKUP, MqttError::HostNotFound},
    Row{MOSQ_ERR_PROXY, MqttError::ProxyProtocol},
    Row{MOSQ_ERR_KEEPALIVE, MqttError::Timeout},
    Row{MOSQ_ERR_TIMEOUT, MqttError::Timeout},
    Row{MOSQ_ERR_INVAL, MqttError::Operation},
    Row{MOSQ_ERR_NOT_SUPPORTED, MqttError::UnsupportedSocketOperation},
};

constexpr std::array kSystem{
    Row{ECONNREFUSED, MqttError::ConnectionRefused},
    Row{ECONNRESET, MqttError::RemoteHostClosed},
    Row{ECONNABORTED, MqttError::RemoteHostClosed},
    Row{EPIPE, MqttError::RemoteHostClosed},
    Row{EACCES, MqttError::Access},
    Row{EPERM, MqttError::Access},
    Row{EMFILE, MqttError::Resource},
    Row{ENFILE, MqttError::Resource},
    Row{ENOBUFS, MqttError::Resource},
    Row{ENOMEM, MqttError::Resource},
    Row{ETIMEDOUT, MqttError::Timeout},
    Row{EMSGSIZE, MqttError::DatagramTooLarge},
    Row{ENETDOWN, MqttError::Network},
    Row{ENETUNREACH, MqttError::Network},
    Row{ENETRESET, MqttError::Network},
    Row{EHOSTUNREACH, MqttError::Network},
    Row{EADDRINUSE, MqttError::AddressInUse},
    Row{EADDRNOTAVAIL, MqttError::AddressNotAvailable},
    Row{EAFNOSUPPORT, MqttError::UnsupportedSocketOperation},
    Row{EPROTONOSUPPORT, MqttError::UnsupportedSocketOperation},
    Row{EOPNOTSUPP, MqttError::UnsupportedSocketOperation},
    Row{EINPROGRESS, MqttError::UnfinishedSocketOperation},
    Row{EALREADY, MqttError::UnfinishedSocketOperation},
    Row{EAGAIN, MqttError::Temporary},
    Row{EINTR, MqttError::Temporary},
};

// CONNACK's return codes have no socket error of their own: the nearest one.
constexpr std::array kRefusals{
    Row{1, MqttError::UnsupportedSocketOperation}, // protocol version
    Row{2, MqttError::Operation},                  // client identifier
    Row{3, MqttError::ConnectionRefused},          // broker not available
    Row{4, MqttError::Access},                     // user name or password
    Row{5, MqttError::Access},                     // not authorised
};

template <typename Table>
MqttError find(const Table &table, int value) {
    const auto *const row = std::find_if(table.begin(), table.end(),
                                         [value](const Row &candidate) { return candidate.first == value; });
    return row == table.end() ? MqttError::Unknown : row->second;
}

} // namespace

QString nameOf(MqttError error) {
    static_assert(kNames.size() == static_cast<std::size_t>(MqttError::Temporary) + 1);
    return QLatin1String(kNames.at(static_cast<std::size_t>(error)));
}

MqttError errorOf(int code, int systemError) {
    return code == MOSQ_ERR_ERRNO ? find(kSystem, systemError) : find(kCodes, code);
}

MqttError errorOfRefusal(int returnCode) { return find(kRefusals, returnCode); }

} // namespace zpsg::remote
