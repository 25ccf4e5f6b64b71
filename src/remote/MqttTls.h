// The encryption of the connection to the broker.
#pragma once

#include "remote/MqttErrors.h"

#include <QByteArray>
#include <QString>

#include <memory>

using SSL_CTX = struct ssl_ctx_st;

namespace zpsg::remote {

struct TlsContextDeleter {
    void operator()(SSL_CTX *context) const;
};
using TlsContext = std::unique_ptr<SSL_CTX, TlsContextDeleter>;

/// The client is led to an address that was looked up before, so by itself it could only compare the
/// certificate with that. This context demands the name the user gave (or the address, if it is one), asks
/// for it by SNI, and trusts nothing but `caFile` (PEM). Null, and why in `error`, when it can't be made.
/// `host` is not copied and must outlive the context and its connections.
[[nodiscard]] TlsContext makeTlsContext(const QString &caFile, const QByteArray &host, MqttError &error);

} // namespace zpsg::remote
