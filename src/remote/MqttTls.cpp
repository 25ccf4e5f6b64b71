#include "remote/MqttTls.h"

#include <QFile>
#include <QHostAddress>

#include <openssl/ssl.h>
#include <openssl/x509_vfy.h>

namespace zpsg::remote {
namespace {

/// Before the first message is made, and after libmosquitto has put in the bare address.
void nameHost(const SSL *ssl, int where, int) {
    if ((where & SSL_CB_HANDSHAKE_START) != 0) {
        const void *host = SSL_CTX_get_app_data(SSL_get_SSL_CTX(ssl));
        SSL_set_tlsext_host_name(const_cast<SSL *>(ssl), static_cast<const char *>(host));
    }
}

} // namespace

void TlsContextDeleter::operator()(SSL_CTX *context) const { SSL_CTX_free(context); }

TlsContext makeTlsContext(const QString &caFile, const QByteArray &host, MqttError &error) {
    TlsContext context(SSL_CTX_new(TLS_client_method()));
    if (!context) {
        error = MqttError::SslInternal;
        return nullptr;
    }
    auto *const demands = SSL_CTX_get0_param(context.get());
    const bool isAddress = !QHostAddress(QString::fromUtf8(host)).isNull();
    const int named = isAddress ? X509_VERIFY_PARAM_set1_ip_asc(demands, host.constData())
                                : X509_VERIFY_PARAM_set1_host(demands, host.constData(), 0);
    if (named != 1 ||
        SSL_CTX_load_verify_locations(context.get(), QFile::encodeName(caFile).constData(), nullptr) != 1) {
        error = MqttError::SslInvalidUserData;
        return nullptr;
    }
    SSL_CTX_set_verify(context.get(), SSL_VERIFY_PEER, nullptr);
    SSL_CTX_set_min_proto_version(context.get(), TLS1_2_VERSION);
    SSL_CTX_set_mode(context.get(), SSL_MODE_ENABLE_PARTIAL_WRITE | SSL_MODE_ACCEPT_MOVING_WRITE_BUFFER);
    if (!isAddress) {
        SSL_CTX_set_app_data(context.get(), const_cast<char *>(host.constData()));
        SSL_CTX_set_info_callback(context.get(), nameHost);
    }
    return context;
}

} // namespace zpsg::remote
