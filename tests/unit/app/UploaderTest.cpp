#include "app/Uploader.h"
#include "records/RecordFile.h"
#include "records/RecordRow.h"

#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>

using namespace zpsg;
using app::Setting;

namespace {

/// Answers each request with one status, and remembers what it got.
class Service : public QTcpServer {
public:
    explicit Service(QByteArray status) : status_(std::move(status)) {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            auto *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
                got += socket->readAll();
                if (got.endsWith("--\r\n")) {
                    ++requests;
                    socket->write("HTTP/1.1 " + status_ +
                                  "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
                    socket->disconnectFromHost();
                }
            });
        });
    }
    [[nodiscard]] QString address() const {
        return QStringLiteral("http://127.0.0.1:%1/record").arg(serverPort());
    }

    QByteArray got;
    int requests = 0;

private:
    QByteArray status_;
};

class UploaderTest : public ::testing::Test {
protected:
    UploaderTest() {
        const QDateTime noon(QDate(2026, 11, 21), QTime(12, 0));
        const QString row = records::makeRow({}, noon, QStringLiteral("SN"), {}, [] { return 0U; });
        for (int number = 1; number <= 2; ++number) {
            EXPECT_TRUE(records::writeFile(records::recordPath(dir.path(), number), {row}, noon));
            EXPECT_TRUE(records::writeFile(records::dayPath(dir.path(), number), {row}, noon));
        }
        settings.write({{Setting::RecFiledayNumber, 2}, {Setting::AccountKey, QStringLiteral("key")}});
    }

    int uploaded() { return settings.integer(Setting::UploadedFile); }

    QTemporaryDir dir;
    app::Settings settings{dir.path()};
};

TEST_F(UploaderTest, DoesNothingWithoutAnAddressAKeyOrASerialNumber) {
    app::Uploader(settings, dir.path()).checkUploadState(QStringLiteral("SN"));
    EXPECT_FALSE(QFile::exists(dir.filePath(QStringLiteral("zpsapp.csv"))));
    Service service("200 OK");
    settings.write({{Setting::CloudAddress, service.address()}});
    app::Uploader uploader(settings, dir.path());
    uploader.checkUploadState({});
    settings.write({{Setting::AccountKey, QString()}});
    uploader.checkUploadState(QStringLiteral("SN"));
    QTest::qWait(50);
    EXPECT_TRUE(service.got.isEmpty());
}

TEST_F(UploaderTest, SendsEachSettledFileOnceAndARefusedOneAgain) {
    Service angry("500 No");
    settings.write({{Setting::CloudAddress, angry.address()}});
    {
        app::Uploader uploader(settings, dir.path());
        uploader.checkUploadState(QStringLiteral("SN"));
        ASSERT_TRUE(QTest::qWaitFor([&angry] { return angry.requests == 1; }, 20000));
        QTest::qWait(50);
    }
    EXPECT_EQ(uploaded(), 0);
    Service service("200 OK");
    settings.write({{Setting::CloudAddress, service.address()}});
    app::Uploader uploader(settings, dir.path());
    for (int number = 1; number <= 2; ++number) {
        uploader.checkUploadState(QStringLiteral("SN"));
        uploader.checkUploadState(QStringLiteral("SN")); // one at a time
        ASSERT_TRUE(QTest::qWaitFor([this, number] { return uploaded() == number; }, 20000));
    }
    uploader.checkUploadState(QStringLiteral("SN"));
    QTest::qWait(50);
    EXPECT_EQ(service.requests, 2);
    EXPECT_TRUE(service.got.contains("name=\"m_key\"") && service.got.contains("name=\"zps_record\""));
}

} // namespace
