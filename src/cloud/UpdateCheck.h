// Asks a publisher's address for the program's newest version. Nothing else is fetched, and nothing is run.
#pragma once

#include "cloud/UpdateOffer.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>

class QNetworkReply;

namespace zpsg::cloud {

enum class UpdateOutcome {
    Answered,    ///< there is an offer
    BadAddress,  ///< it is none that may be asked
    Unreachable, ///< no connection, or it broke
    TimedOut,    ///< the answer took too long
    Insecure,    ///< the certificate or the encryption is not as it must be
    Refused,     ///< another HTTP status than 200, or sent on too often or to where it must not go
    Garbled,     ///< what came is too large, or no offer
};

struct UpdateResult {
    UpdateOutcome outcome = UpdateOutcome::Answered;
    std::optional<UpdateOffer> offer;
    QString why; ///< in plain words; empty when there is an offer
};

/// Never blocks: the result is a signal, after ask() has returned. Says who asks only by the program's name
/// and version, keeps no cookies and gives no passwords. Destroying it ends a request without a result.
class UpdateCheck : public QObject {
    Q_OBJECT
public:
    static constexpr std::chrono::milliseconds kPatience{10'000};
    static constexpr int kMostBytes = 65'536;
    static constexpr int kMostRedirects = 3;

    /// `patience` is for the whole of a request.
    explicit UpdateCheck(std::chrono::milliseconds patience = kPatience, QObject *parent = nullptr);
    ~UpdateCheck() override;

    /// False, and nothing happens, while a request is under way.
    bool ask(const QString &address);
    /// Ends a request; there is no result.
    void cancel();
    [[nodiscard]] bool busy() const { return busy_; }

signals:
    void finished(const zpsg::cloud::UpdateResult &result);

private slots:
    void refuseAddress();

private:
    void get(const QUrl &address);
    void collect();
    void giveUp(UpdateOutcome outcome, const QString &why);
    void answered();
    void discardReply();
    [[nodiscard]] std::optional<QUrl> redirection() const;
    [[nodiscard]] UpdateResult judge() const;
    void finish(const UpdateResult &result);

    std::chrono::milliseconds patience_;
    std::unique_ptr<QNetworkAccessManager> network_; // made when it is first needed: it has threads
    QNetworkReply *reply_ = nullptr;                 // network_ owns it
    QTimer deadline_;
    QByteArray body_;
    int redirects_ = 0;
    std::optional<UpdateResult> givenUp_; ///< why this program itself ended the request
    bool busy_ = false;
};

} // namespace zpsg::cloud
