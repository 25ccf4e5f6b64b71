// From an answer of the publisher to what the user sees of it.
#include "app/UpdateFeed.h"
#include "ui/AboutPage.h"
#include "ui/MainView.h"
#include "ui/NavigationRail.h"
#include "ui/SettingsPage.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace zpsg;
using app::Setting;

namespace {

class UpdateFeedTest : public ::testing::Test {
public:
    ~UpdateFeedTest() override { QCoreApplication::setApplicationVersion({}); }

protected:
    UpdateFeedTest() {
        QCoreApplication::setApplicationVersion(QStringLiteral("0.1.0"));
        publisher.listen(QHostAddress::LocalHost);
        QObject::connect(&publisher, &QTcpServer::newConnection, &publisher, [this] {
            auto *socket = publisher.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, &publisher, [this, socket] {
                ++requests;
                socket->write("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n" + content);
                socket->disconnectFromHost();
            });
        });
        const QString address = QStringLiteral("http://127.0.0.1:%1/").arg(publisher.serverPort());
        settings.write({{Setting::UpdateAddress, address}});
        feed = std::make_unique<app::UpdateFeed>(parts, view);
    }
    void publish(const char *version) {
        content = QByteArray(R"({"page":"https://example.org/","notes":"<i>New</i>","version":"V"})")
                      .replace("V", version);
    }
    void change(Setting setting, const QVariant &value) {
        settings.write({{setting, value}});
        feed->takeSettings();
    }
    /// By what stands on the about page, which the navigation's dot goes with.
    [[nodiscard]] bool shown() const {
        const auto *button = view.about()->findChild<QPushButton *>(QStringLiteral("btnUpdatePage"));
        const auto *about = view.navigation()->findChildren<QAbstractButton *>().last();
        const bool there = button->isVisibleTo(view.about());
        EXPECT_EQ(about->accessibleName() == QLatin1String("NAV_UPDATE"), there);
        return there;
    }
    [[nodiscard]] bool reads(const char *key) const {
        const auto labels = view.settings()->findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
                           [key](const QLabel *label) { return label->text() == QLatin1String(key); });
    }

    QTemporaryDir dir;
    app::Settings settings{dir.path()};
    app::Tray tray{QIcon()};
    ui::MainView view;
    QTcpServer publisher;
    QByteArray content;
    int requests = 0;
    app::UpdateFeed::Parts parts{settings, tray};
    std::unique_ptr<app::UpdateFeed> feed;
};

TEST_F(UpdateFeedTest, ByHandEveryEndIsShown) {
    const auto check = [this](const char *end) {
        emit view.settings()->updateCheckRequested();
        EXPECT_TRUE(reads("UPDATE_STR_ASKING"));
        EXPECT_TRUE(QTest::qWaitFor([&] { return reads(end); })) << end;
    };
    check("UPDATE_STR_NO_VERSION");
    publish("0.1.0");
    check("UPDATE_STR_NEWEST");
    EXPECT_FALSE(shown());
    publish("0.2.0");
    check("UPDATE_STR_FOUND");
    EXPECT_TRUE(shown());
    const auto *notes = view.about()->findChild<QLabel *>(QStringLiteral("lblUpdateNotes"));
    EXPECT_EQ(notes->text(), QStringLiteral("<i>New</i>"));
    EXPECT_EQ(notes->textFormat(), Qt::PlainText);
    publisher.close();
    check("UPDATE_STR_UNREACHABLE");
}

TEST_F(UpdateFeedTest, OnItsOwnItAsksOnlyWhenSwitchedOnAndRemembersTheAnswer) {
    publish("0.2.0");
    const auto later = QDateTime::currentDateTimeUtc().addSecs(3600);
    feed->tick(later);
    change(Setting::UpdateEnabled, true);
    feed->tick(later);
    ASSERT_TRUE(QTest::qWaitFor([this] { return shown(); }));
    EXPECT_EQ(requests, 1);
    EXPECT_EQ(settings.text(Setting::UpdateTold), QStringLiteral("0.2.0"));
    feed = std::make_unique<app::UpdateFeed>(parts, view); // a restart
    EXPECT_TRUE(shown());
    for (const bool on : {false, true}) {
        change(Setting::UpdateEnabled, on);
        EXPECT_EQ(shown(), on);
    }
    change(Setting::UpdateAddress, QStringLiteral("https://elsewhere.example/"));
    EXPECT_FALSE(shown());
}

} // namespace
