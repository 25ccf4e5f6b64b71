#include "cloud/UpdateCheck.h"

#include "cloud/Logging.h"

#include <QCoreApplication>
#include <QNetworkReply>

namespace zpsg::cloud {
namespace {

bool isLessSafe(const QUrl &address, const QUrl &than) {
    return than.scheme() == QLatin1String("https") && address.scheme() != than.scheme();
}

} // namespace

UpdateCheck::UpdateCheck(std::chrono::milliseconds patience, QObject *parent)
    : QObject(parent), patience_(patience) {
    deadline_.setSingleShot(true);
    connect(&deadline_, &QTimer::timeout, this,
            [this] { giveUp(UpdateOutcome::TimedOut, QStringLiteral("the answer did not come in time")); });
}

UpdateCheck::~UpdateCheck() { discardReply(); }

bool UpdateCheck::ask(const QString &address) {
    if (busy_) {
        return false;
    }
    busy_ = true;
    if (!isSafeAddress(address)) {
        QMetaObject::invokeMethod(this, "refuseAddress", Qt::QueuedConnection);
        return true;
    }
    if (!network_) {
        network_ = std::make_unique<QNetworkAccessManager>();
    }
    deadline_.start(patience_);
    get(QUrl(address, QUrl::StrictMode));
    return true;
}

void UpdateCheck::refuseAddress() {
    if (busy_ && reply_ == nullptr) {
        finish({UpdateOutcome::BadAddress, {}, QStringLiteral("the address is no https address")});
    }
}

void UpdateCheck::get(const QUrl &address) {
    QNetworkRequest request(address);
    request.setHeader(QNetworkRequest::UserAgentHeader,
                      QStringLiteral("zpsg/%1").arg(QCoreApplication::applicationVersion()));
    request.setRawHeader("Accept", "application/json");
    // Unpacked it could be a thousand times what was sent, before anybody counts it.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    // The toolkit's own rule would let http on this machine lead to http anywhere.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    reply_ = network_->get(request);
    reply_->setReadBufferSize(kMostBytes + 1);
    connect(reply_, &QNetworkReply::readyRead, this, &UpdateCheck::collect);
    connect(reply_, &QNetworkReply::finished, this, &UpdateCheck::answered);
}

void UpdateCheck::collect() {
    body_ += reply_->readAll();
    if (body_.size() > kMostBytes) {
        giveUp(UpdateOutcome::Garbled, QStringLiteral("the answer is longer than %1 bytes").arg(kMostBytes));
    }
}

void UpdateCheck::giveUp(UpdateOutcome outcome, const QString &why) {
    if (!givenUp_) {
        givenUp_ = UpdateResult{outcome, {}, why};
        reply_->abort(); // ends in answered()
    }
}

void UpdateCheck::answered() {
    if (reply_->isOpen()) {
        collect();
    }
    const auto target = redirection();
    if (!target) {
        finish(judge());
    } else if (++redirects_ > kMostRedirects) {
        finish({UpdateOutcome::Refused, {}, QStringLiteral("it leads on and on")});
    } else if (!isSafeAddress(*target) || isLessSafe(*target, reply_->url())) {
        finish({UpdateOutcome::Refused, {}, QStringLiteral("it leads to an address that is not safe")});
    } else {
        discardReply();
        body_.clear();
        get(*target);
    }
}

/// Where the publisher sends on to, if it does.
std::optional<QUrl> UpdateCheck::redirection() const {
    const QUrl target = reply_->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (givenUp_ || reply_->error() != QNetworkReply::NoError || target.isEmpty()) {
        return std::nullopt;
    }
    return reply_->url().resolved(target);
}

UpdateResult UpdateCheck::judge() const {
    if (givenUp_) {
        return *givenUp_;
    }
    const auto failed = [](UpdateOutcome outcome, const QString &why) {
        return UpdateResult{outcome, {}, why};
    };
    const auto error = reply_->error();
    const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (error == QNetworkReply::SslHandshakeFailedError) {
        return failed(UpdateOutcome::Insecure, reply_->errorString());
    }
    // Below are errors of the connection, from there on answers of the service.
    if (error != QNetworkReply::NoError && (error < QNetworkReply::ContentAccessDenied || status == 0)) {
        return failed(UpdateOutcome::Unreachable, reply_->errorString());
    }
    constexpr int kOk = 200;
    if (error != QNetworkReply::NoError || status != kOk) {
        return failed(UpdateOutcome::Refused, QStringLiteral("the answer is HTTP %1").arg(status));
    }
    QString why;
    const auto offer = parseUpdateOffer(body_, why);
    return {offer ? UpdateOutcome::Answered : UpdateOutcome::Garbled, offer, why};
}

void UpdateCheck::discardReply() {
    if (reply_ != nullptr) {
        reply_->disconnect(this);
        reply_->abort();
        reply_->deleteLater();
        reply_ = nullptr;
    }
}

void UpdateCheck::cancel() {
    deadline_.stop();
    discardReply();
    body_.clear();
    givenUp_.reset();
    redirects_ = 0;
    busy_ = false;
}

void UpdateCheck::finish(const UpdateResult &result) {
    const UpdateResult kept = result; // the receiver may ask again
    cancel();
    qCDebug(lcCloud).noquote() << "update check ended:" << static_cast<int>(kept.outcome) << kept.why;
    emit finished(kept);
}

} // namespace zpsg::cloud
