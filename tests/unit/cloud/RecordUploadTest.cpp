#include "cloud/RecordUpload.h"

#include "records/Archive.h"
#include "records/CsvLog.h"
#include "storage/WholeFile.h"

#include <QEventLoop>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTcpServer>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace zpsg;
using namespace zpsg::cloud;

namespace {

constexpr int kLongWait = 60'000; // milliseconds; nothing takes so long

QByteArray read(const QString &name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

/// The service as a process of its own; it ends with its input.
class Service {
public:
    explicit Service(const QStringList &arguments) {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QStringLiteral("python3"),
                       QStringList{QStringLiteral(ZPSG_RECORD_SERVICE)} + arguments);
        while (!process_.canReadLine() && process_.waitForReadyRead(kLongWait)) {
        }
        port_ = process_.readLine().trimmed().toInt();
        EXPECT_GT(port_, 0) << "the service did not start";
    }
    ~Service() {
        process_.closeWriteChannel();
        process_.waitForFinished(kLongWait);
    }
    Service(const Service &) = delete;
    Service &operator=(const Service &) = delete;

    [[nodiscard]] QString address(const char *path, const char *scheme = "http") const {
        return QStringLiteral("%1://127.0.0.1:%2/%3")
            .arg(QLatin1String(scheme))
            .arg(port_)
            .arg(QLatin1String(path));
    }

private:
    QProcess process_;
    int port_ = 0;
};

class RecordUploadTest : public ::testing::Test {
protected:
    RecordUploadTest() {
        QString why;
        QByteArray rows; // longer than what fits into one piece of anything
        for (int i = 0; i < 20'000; ++i) {
            rows += QByteArray::number(i * 7919) + '\n';
        }
        EXPECT_TRUE(storage::replaceFile(records::minuteLogPath(dir.path()), rows, why));
        EXPECT_TRUE(storage::replaceFile(records::dayLogPath(dir.path()), "days\r\n--boundary\r\n", why));
        packed = records::packLogs(dir.path(), QStringLiteral("key"), QStringLiteral("SN"), why);
        EXPECT_TRUE(packed) << why.toStdString();
    }

    UploadResult upload(const QString &address, std::chrono::milliseconds patience = RecordUpload::kPatience,
                        const QString &archive = {}) {
        RecordUpload upload(address, patience);
        UploadResult result;
        int ended = 0;
        QEventLoop loop;
        QObject::connect(&upload, &RecordUpload::finished, &loop, [&](const UploadResult &got) {
            result = got;
            ++ended;
            loop.quit();
        });
        EXPECT_TRUE(upload.send(
            {key, packed->crc32_code, packed->crc32_codeDay, archive.isEmpty() ? packed->path : archive}));
        EXPECT_EQ(ended, 0) << "send() must not wait";
        EXPECT_TRUE(upload.busy());
        EXPECT_FALSE(upload.send({}));
        QTimer::singleShot(kLongWait, &loop, SLOT(quit()));
        loop.exec();
        EXPECT_EQ(ended, 1);
        EXPECT_FALSE(upload.busy());
        EXPECT_EQ(result.why.isEmpty(), result.outcome == UploadOutcome::Sent);
        return result;
    }

    [[nodiscard]] QJsonObject fields() const {
        return QJsonDocument::fromJson(read(dir.filePath(QStringLiteral("fields.json")))).object();
    }

    QTemporaryDir dir;
    std::optional<records::PackedLogs> packed;
    QString key = QString::fromUtf8("k\xC3\xA9y & \"quoted\"; name=x");
};

TEST_F(RecordUploadTest, TheServiceGetsTheFieldsAndTheArchive) {
    const Service service({dir.path()});
    for (const char *path : {"take", "to/301", "to/302", "to/307", "to/308"}) {
        QFile::remove(dir.filePath(QStringLiteral("fields.json")));
        QFile::remove(dir.filePath(QStringLiteral("got.zip")));
        const auto result = upload(service.address(path));
        EXPECT_EQ(result.outcome, UploadOutcome::Sent) << path << result.why.toStdString();
        EXPECT_EQ(result.httpStatus, 200);
        const QJsonObject expected{
            {QStringLiteral("m_key"), key},
            {QStringLiteral("crc32_code"), packed->crc32_code},
            {QStringLiteral("crc32_codeDay"), packed->crc32_codeDay},
            {QStringLiteral("file name"), QStringLiteral("zpsapp.zip")},
            {QStringLiteral("file type"), QStringLiteral("application/zip")},
            {QStringLiteral("crc of zpsapp.csv"), packed->crc32_code},
            {QStringLiteral("crc of zpsappday.csv"), packed->crc32_codeDay},
        };
        EXPECT_EQ(fields(), expected) << path << QJsonDocument(fields()).toJson().toStdString();
        EXPECT_EQ(read(dir.filePath(QStringLiteral("got.zip"))), read(packed->path)) << path;
    }
}

TEST_F(RecordUploadTest, SaysWhatWentWrong) {
    const Service service({dir.path()});
    struct Case {
        const char *path;
        UploadOutcome outcome;
        int status;
    };
    for (const auto &[path, outcome, status] :
         {Case{"500", UploadOutcome::Refused, 500}, Case{"404", UploadOutcome::Refused, 404},
          Case{"401", UploadOutcome::Refused, 401}, Case{"413", UploadOutcome::Refused, 413},
          Case{"304", UploadOutcome::Refused, 304}, Case{"204", UploadOutcome::Sent, 204},
          Case{"to/303", UploadOutcome::Refused, 303}, Case{"elsewhere", UploadOutcome::Refused, 307},
          Case{"loop", UploadOutcome::Refused, 307}, Case{"307", UploadOutcome::Refused, 307},
          Case{"drop", UploadOutcome::Unreachable, 0}, Case{"cut", UploadOutcome::Unreachable, 200},
          Case{"garbage", UploadOutcome::Unreachable, 0}, Case{"long", UploadOutcome::Sent, 200}}) {
        const auto result = upload(service.address(path));
        EXPECT_EQ(result.outcome, outcome) << path << ": " << result.why.toStdString();
        EXPECT_EQ(result.httpStatus, status) << path;
    }
    EXPECT_TRUE(fields().isEmpty()) << "nothing went to another origin, or without its content";
    EXPECT_EQ(upload(service.address("silent"), std::chrono::milliseconds(200)).outcome,
              UploadOutcome::TimedOut);
    {
        RecordUpload given(service.address("silent")); // is destroyed while it waits
        EXPECT_TRUE(given.send({key, {}, {}, packed->path}));
    }
}

TEST_F(RecordUploadTest, SendsNothingWithoutAPlaceOrAnArchive) {
    EXPECT_EQ(upload({}).outcome, UploadOutcome::Off);
    EXPECT_EQ(upload(QStringLiteral("  ")).outcome, UploadOutcome::Off);
    for (const char *address :
         {"records.example", "file:///tmp/x", "http://", "ftp://127.0.0.1/", "http://a b/"}) {
        EXPECT_EQ(upload(QLatin1String(address)).outcome, UploadOutcome::BadAddress) << address;
    }
    QTcpServer place;
    ASSERT_TRUE(place.listen(QHostAddress::LocalHost));
    const QString address = QStringLiteral("http://127.0.0.1:%1/").arg(place.serverPort());
    EXPECT_EQ(upload(address, RecordUpload::kPatience, dir.filePath(QStringLiteral("none.zip"))).outcome,
              UploadOutcome::NoArchive);
    EXPECT_FALSE(place.hasPendingConnections());
    place.close();
    EXPECT_EQ(upload(address).outcome, UploadOutcome::Unreachable);
}

TEST_F(RecordUploadTest, TrustsNoCertificateThatNobodyVouchesFor) {
    const QString certificate = dir.filePath(QStringLiteral("certificate.pem"));
    const QString privateKey = dir.filePath(QStringLiteral("key.pem"));
    ASSERT_EQ(QProcess::execute(
                  QStringLiteral("sh"),
                  {QStringLiteral("-c"),
                   QStringLiteral("openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=127.0.0.1 "
                                  "-addext subjectAltName=IP:127.0.0.1 -out \"$1\" -keyout \"$2\" "
                                  "2>/dev/null"),
                   QStringLiteral("sh"), certificate, privateKey}),
              0);
    const Service service({dir.path(), certificate, privateKey});
    const auto refused = upload(service.address("take", "https"));
    EXPECT_EQ(refused.outcome, UploadOutcome::Insecure) << refused.why.toStdString();
    EXPECT_EQ(upload(service.address("take")).outcome, UploadOutcome::Unreachable) << "no fall back to http";
    EXPECT_TRUE(fields().isEmpty());
}

} // namespace
