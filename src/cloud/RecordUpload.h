// Sends the archive of the logs to the record service of the user's account.
#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <memory>

class QNetworkReply;

namespace zpsg::cloud {

/// What is sent, as multipart/form-data.
struct RecordParcel {
    QString accountKey;   ///< field "m_key"
    QString crc32Code;    ///< field "crc32_code"
    QString crc32CodeDay; ///< field "crc32_codeDay"
    QString archivePath;  ///< part "zps_record": file name "zpsapp.zip", application/zip
};

enum class UploadOutcome {
    Sent,        ///< the service took it: an HTTP status from 200 to 299
    Off,         ///< there is no address; nothing was sent
    BadAddress,  ///< it is no http or https address
    NoArchive,   ///< the file can't be read
    Refused,     ///< the service answered with another status, or sent on to another origin
    Unreachable, ///< no connection, or it broke
    TimedOut,    ///< nothing came for too long
    Insecure,    ///< the certificate or the encryption is not as it must be
};

struct UploadResult {
    UploadOutcome outcome = UploadOutcome::Sent;
    int httpStatus = 0; ///< 0 when there was no answer
    QString why;        ///< in plain words; empty when it was sent
};

/// Never blocks and never asks: the result is a signal, after send() has returned. Destroying it ends an
/// upload without one.
class RecordUpload : public QObject {
    Q_OBJECT
public:
    static constexpr std::chrono::milliseconds kPatience{30'000};

    /// Posts to `address` as it stands; empty switches uploading off. An upload ends when nothing goes in
    /// either direction for `patience`, and after ten times that in any case.
    explicit RecordUpload(const QString &address, std::chrono::milliseconds patience = kPatience,
                          QObject *parent = nullptr);
    ~RecordUpload() override;

    /// False, and nothing happens, while an upload is under way.
    bool send(const RecordParcel &parcel);
    [[nodiscard]] bool busy() const { return busy_; }

signals:
    void finished(const zpsg::cloud::UploadResult &result);

private slots:
    void answered();
    void finishEarly();

private:
    void post(const QUrl &address);
    void discardReply();
    [[nodiscard]] bool follow(int status);
    [[nodiscard]] UploadResult judge(int status) const;
    void finishLater(UploadOutcome outcome, const QString &why);
    void finish(const UploadResult &result);

    QString address_;
    std::chrono::milliseconds patience_;
    std::unique_ptr<QNetworkAccessManager> network_; // made when it is first needed: it has threads
    RecordParcel parcel_;
    QByteArray archive_;
    QNetworkReply *reply_ = nullptr; // network_ owns it
    QTimer deadline_;
    int redirects_ = 0;
    bool busy_ = false;
    UploadResult early_; // of what ends before anything is sent
};

} // namespace zpsg::cloud
