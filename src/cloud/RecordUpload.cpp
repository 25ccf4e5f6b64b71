#include "cloud/RecordUpload.h"

#include "cloud/Logging.h"

#include <QFile>
#include <QHttpMultiPart>
#include <QNetworkReply>

namespace zpsg::cloud {
namespace {

constexpr int kMostRedirects = 5;
constexpr int kLongestInPatiences = 10;
constexpr qint64 kMostBufferedBytes = 65'536; // of an answer nobody reads

QHttpPart field(const char *name, const QString &value) {
    QHttpPart part;
    part.setHeader(QNetworkRequest::ContentDispositionHeader,
                   QStringLiteral("form-data; name=\"%1\"").arg(QLatin1String(name)));
    part.setBody(value.toUtf8());
    return part;
}

QHttpPart archivePart(const QByteArray &content) {
    QHttpPart part;
    part.setHeader(QNetworkRequest::ContentDispositionHeader,
                   QStringLiteral("form-data; name=\"zps_record\"; filename=\"zpsapp.zip\""));
    part.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/zip"));
    part.setBody(content);
    return part;
}

bool sameOrigin(const QUrl &a, const QUrl &b) {
    const auto port = [](const QUrl &url) {
        return url.port(url.scheme() == QLatin1String("https") ? 443 : 80);
    };
    return a.scheme() == b.scheme() && a.host() == b.host() && port(a) == port(b);
}

bool isHttp(const QUrl &url) {
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http"));
}

} // namespace

RecordUpload::RecordUpload(const QString &address, std::chrono::milliseconds patience, QObject *parent)
    : QObject(parent), address_(address.trimmed()), patience_(patience) {
    deadline_.setSingleShot(true);
}

RecordUpload::~RecordUpload() { discardReply(); }

bool RecordUpload::send(const RecordParcel &parcel) {
    if (busy_) {
        return false;
    }
    busy_ = true;
    redirects_ = 0;
    parcel_ = parcel;
    const QUrl address(address_, QUrl::StrictMode);
    if (address_.isEmpty()) {
        finishLater(UploadOutcome::Off, QStringLiteral("uploading is off: there is no address"));
        return true;
    }
    if (!isHttp(address)) {
        finishLater(UploadOutcome::BadAddress,
                    QStringLiteral("%1 is no http or https address").arg(address_));
        return true;
    }
    // Read at once: a new archive may take its place while this one is sent.
    QFile file(parcel.archivePath);
    if (!file.open(QIODevice::ReadOnly)) {
        finishLater(UploadOutcome::NoArchive,
                    QStringLiteral("%1: %2").arg(parcel.archivePath, file.errorString()));
        return true;
    }
    archive_ = file.readAll();
    if (!network_) {
        network_ = std::make_unique<QNetworkAccessManager>();
    }
    deadline_.start(patience_ * kLongestInPatiences);
    post(address);
    return true;
}

void RecordUpload::post(const QUrl &address) {
    QNetworkRequest request(address);
    request.setTransferTimeout(static_cast<int>(patience_.count()));
    // The toolkit would follow with a GET, which sends nothing and may still be answered with success.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("zpsg"));
    auto *parts = new QHttpMultiPart(QHttpMultiPart::FormDataType);
    parts->append(field("m_key", parcel_.accountKey));
    parts->append(field("crc32_code", parcel_.crc32Code));
    parts->append(field("crc32_codeDay", parcel_.crc32CodeDay));
    parts->append(archivePart(archive_));
    reply_ = network_->post(request, parts);
    parts->setParent(reply_);
    reply_->setReadBufferSize(kMostBufferedBytes);
    connect(reply_, &QNetworkReply::readyRead, reply_, [reply = reply_] { reply->readAll(); });
    connect(&deadline_, &QTimer::timeout, reply_, &QNetworkReply::abort);
    connect(reply_, &QNetworkReply::finished, this, &RecordUpload::answered);
}

void RecordUpload::discardReply() {
    if (reply_ != nullptr) {
        reply_->disconnect(this);
        reply_->deleteLater();
        reply_ = nullptr;
    }
}

void RecordUpload::answered() {
    const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (!follow(status)) {
        finish(judge(status));
    }
}

bool RecordUpload::follow(int status) {
    const bool sameRequestElsewhere = status == 301 || status == 302 || status == 307 || status == 308;
    if (reply_->error() != QNetworkReply::NoError || !sameRequestElsewhere || redirects_ >= kMostRedirects) {
        return false;
    }
    const QUrl from = reply_->url();
    const QUrl to = from.resolved(reply_->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl());
    if (!isHttp(to) || !sameOrigin(from, to)) {
        return false;
    }
    ++redirects_;
    discardReply();
    post(to);
    return true;
}

UploadResult RecordUpload::judge(int status) const {
    const auto error = reply_->error();
    const auto result = [&](UploadOutcome outcome, const QString &why) {
        return UploadResult{outcome, status, why};
    };
    if (error == QNetworkReply::OperationCanceledError || error == QNetworkReply::TimeoutError) {
        return result(UploadOutcome::TimedOut, QStringLiteral("the service did not answer in time"));
    }
    if (error == QNetworkReply::SslHandshakeFailedError) {
        return result(UploadOutcome::Insecure,
                      QStringLiteral("no safe connection: %1").arg(reply_->errorString()));
    }
    // Below are errors of the connection, from there on answers of the service.
    if (error != QNetworkReply::NoError && (error < QNetworkReply::ContentAccessDenied || status == 0)) {
        return result(UploadOutcome::Unreachable, reply_->errorString());
    }
    if (error == QNetworkReply::NoError && status >= 200 && status < 300) {
        return result(UploadOutcome::Sent, {});
    }
    if (status >= 300 && status < 400) {
        return result(UploadOutcome::Refused,
                      QStringLiteral("the service sends on to another address (HTTP %1)").arg(status));
    }
    return result(UploadOutcome::Refused, QStringLiteral("the service answered with HTTP %1").arg(status));
}

void RecordUpload::finishLater(UploadOutcome outcome, const QString &why) {
    early_ = {outcome, 0, why};
    QMetaObject::invokeMethod(this, "finishEarly", Qt::QueuedConnection);
}

void RecordUpload::finishEarly() { finish(early_); }

void RecordUpload::finish(const UploadResult &result) {
    discardReply();
    deadline_.stop();
    archive_.clear();
    parcel_ = {};
    busy_ = false;
    const UploadResult kept = result; // the receiver may send again
    qCDebug(lcCloud).noquote() << "upload ended:" << static_cast<int>(kept.outcome) << kept.why;
    emit finished(kept);
}

} // namespace zpsg::cloud
