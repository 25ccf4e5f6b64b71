#include "cloud/UpdateCheck.h"

#include <QEventLoop>
#include <QTcpServer>
#include <QTcpSocket>

#include <gtest/gtest.h>

using namespace zpsg::cloud;

namespace {

const QByteArray kOffer = R"({"version":"1.2.0","page":"https://example.org/get","notes":"Better"})";

TEST(UpdateOffer, TakesWhatIsOneAndNothingElse) {
    QString why;
    for (const char *version :
         {"1.2.0", "0.1", "0.0.0.1", "", "1", "1.2.3.4.5", R"(1.2\n)", "1.-2", "1.2-beta", "1.99999999999",
          "\xD9\xA1.\xD9\xA2"}) { // the last are digits too, but not 0 to 9
        const bool good = QByteArray(version) == "1.2.0" || version[0] == '0';
        const auto offer = parseUpdateOffer(QByteArray(kOffer).replace("1.2.0", version), why);
        EXPECT_EQ(offer.has_value(), good) << version;
        if (offer) {
            const auto again = parseUpdateOffer(toJson(*offer), why);
            ASSERT_TRUE(again) << version;
            EXPECT_EQ(again->version.toString(), QLatin1String(version));
            EXPECT_EQ(again->page, QUrl(QStringLiteral("https://example.org/get")));
            EXPECT_EQ(again->notes, QStringLiteral("Better"));
        }
    }
    for (const QByteArray &json :
         {QByteArray(), QByteArray("null"), "[" + kOffer + "]", kOffer.chopped(1), QByteArray(5000, '['),
          QByteArray(R"({"version":1.2,"page":"https://a/"})"), QByteArray(R"({"version":"1.2"})"),
          QByteArray(R"({"version":"1.2","page":["https://a/"]})"),
          QByteArray(R"({"version":"1.2","page":"javascript:alert"})")}) {
        why.clear();
        EXPECT_FALSE(parseUpdateOffer(json, why)) << json.toStdString();
        EXPECT_FALSE(why.isEmpty()) << json.toStdString();
    }
}

TEST(UpdateOffer, NotesBecomeOneShortLineOfPlainCharacters) {
    const auto notes = [](const QString &given) {
        QString why;
        return parseUpdateOffer(toJson({QVersionNumber(1, 2), QUrl(QStringLiteral("https://a/")), given}),
                                why)
            ->notes;
    };
    EXPECT_EQ(notes(QStringLiteral(" two\r\nlines\t\u2028and \u001b[31m\u202Egnp\u200B ")),
              QStringLiteral("two lines and [31mgnp"));
    const QString smile = QString::fromUcs4(U"\U0001F600");
    const QString clipped = notes(QStringLiteral("a") + smile.repeated(500));
    EXPECT_LE(clipped.size(), UpdateOffer::kMostNotes);
    EXPECT_TRUE(clipped.endsWith(smile + QChar(0x2026))) << "no half of a character";
}

TEST(UpdateOffer, SafeIsHttpsOrThisMachine) {
    for (const char *address :
         {"https://example.org", "HTTPS://example.org:8443/a?b#c", "http://127.1.2.3/", "http://[::1]:80/"}) {
        EXPECT_TRUE(isSafeAddress(QString::fromLatin1(address))) << address;
    }
    for (const char *address :
         {"", "http://example.org", "http://127.0.0.1.example.org/", "http://192.168.1.1/",
          "file:///etc/passwd", "file://localhost/etc/passwd", "javascript:alert(1)", "ftp://localhost/",
          "https://", "//example.org", "https://user@example.org/", "https://exa mple.org/",
          "https://example.org/\n"}) {
        EXPECT_FALSE(isSafeAddress(QString::fromLatin1(address))) << address;
    }
}

QByteArray answer(const QByteArray &status, const QByteArray &body, const QByteArray &headers = {}) {
    return "HTTP/1.1 " + status + "\r\n" + headers + "Content-Length: " + QByteArray::number(body.size()) +
           "\r\nConnection: close\r\n\r\n" + body;
}

QByteArray redirect(const QByteArray &to) {
    return answer("302 Found", "{}", "Set-Cookie: a=b\r\nLocation: " + to + "\r\n");
}

struct Page {
    const char *path;
    QByteArray answer; ///< empty: none at all
    UpdateOutcome outcome;
    int requests = 1;
};

const std::vector<Page> &pages() {
    using Outcome = UpdateOutcome;
    constexpr int kMost = UpdateCheck::kMostBytes;
    static const std::vector<Page> all{
        {"/ok", answer("200 OK", kOffer), Outcome::Answered},
        {"/full", answer("200 OK", kOffer.leftJustified(kMost)), Outcome::Answered},
        {"/over", answer("200 OK", kOffer.leftJustified(kMost + 1)), Outcome::Garbled},
        {"/endless", "HTTP/1.1 200 OK\r\n\r\n" + QByteArray(4'000'000, ' '), Outcome::Garbled},
        {"/garbage", answer("200 OK", "<html>\xff"), Outcome::Garbled},
        {"/packed", answer("200 OK", "\x1f\x8b", "Content-Encoding: gzip\r\n"), Outcome::Garbled},
        {"/cut", "HTTP/1.1 200 OK\r\nContent-Length: 900\r\n\r\n{", Outcome::Unreachable},
        {"/none", answer("404 Not Found", kOffer), Outcome::Refused},
        {"/empty", answer("204 No Content", {}), Outcome::Refused},
        {"/login", answer("401 No", {}, "WWW-Authenticate: Basic realm=x\r\n"), Outcome::Refused},
        {"/moved", redirect("/ok"), Outcome::Answered, 2},
        {"/loop", redirect("/loop"), Outcome::Refused, 1 + UpdateCheck::kMostRedirects},
        {"/file", redirect("file:///etc/hostname"), Outcome::Refused},
        {"/http", redirect("http://192.0.2.1/ok"), Outcome::Refused},
        {"/named", redirect("http://a:b@127.0.0.1/ok"), Outcome::Refused},
        {"/silent", {}, Outcome::TimedOut},
    };
    return all;
}

class Publisher : public QTcpServer {
public:
    Publisher() {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            auto *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
                asked = socket->readAll();
                ++requests;
                for (const Page &page : pages()) {
                    if (asked.split(' ').value(1) == page.path && !page.answer.isEmpty()) {
                        socket->write(page.answer);
                        socket->disconnectFromHost();
                    }
                }
            });
        });
    }
    [[nodiscard]] QString address(const char *path, const char *scheme = "http") const {
        return QStringLiteral("%1://127.0.0.1:%2%3")
            .arg(QLatin1String(scheme))
            .arg(serverPort())
            .arg(QLatin1String(path));
    }

    QByteArray asked; ///< the last request
    int requests = 0;
};

UpdateOutcome ask(const QString &address, std::chrono::milliseconds patience = UpdateCheck::kPatience) {
    UpdateCheck check(patience);
    UpdateResult result;
    int ended = 0;
    QEventLoop loop;
    QObject::connect(&check, &UpdateCheck::finished, &loop, [&](const UpdateResult &got) {
        result = got;
        ++ended;
        loop.quit();
    });
    EXPECT_TRUE(check.ask(address));
    EXPECT_FALSE(check.ask(address)) << "one at a time";
    EXPECT_EQ(ended, 0) << "ask() must not wait";
    QTimer::singleShot(2 * UpdateCheck::kPatience, &loop, SLOT(quit()));
    loop.exec();
    EXPECT_EQ(ended, 1);
    EXPECT_FALSE(check.busy());
    EXPECT_EQ(result.offer.has_value(), result.outcome == UpdateOutcome::Answered);
    EXPECT_EQ(result.why.isEmpty(), result.offer.has_value());
    return result.outcome;
}

TEST(UpdateCheck, EndsWellOrSaysWhyNot) {
    constexpr std::chrono::milliseconds kShort(300);
    Publisher publisher;
    for (const auto &[path, content, outcome, requests] : pages()) {
        publisher.requests = 0;
        EXPECT_EQ(ask(publisher.address(path), content.isEmpty() ? kShort : UpdateCheck::kPatience), outcome)
            << path;
        // The toolkit asks once more where a connection ended before it had read the answer.
        EXPECT_GE(publisher.requests, requests) << path;
        EXPECT_LE(publisher.requests, 2 * requests) << path;
        EXPECT_TRUE(publisher.asked.contains("\r\nUser-Agent: zpsg/")) << publisher.asked.toStdString();
        EXPECT_FALSE(publisher.asked.contains("Cookie")) << publisher.asked.toStdString();
    }
    EXPECT_NE(ask(publisher.address("/ok", "https"), kShort), UpdateOutcome::Answered) << "no fall back";
    EXPECT_EQ(ask(QStringLiteral("http://192.0.2.1/")), UpdateOutcome::BadAddress);
    publisher.close();
    EXPECT_EQ(ask(publisher.address("/ok")), UpdateOutcome::Unreachable);
}

} // namespace
