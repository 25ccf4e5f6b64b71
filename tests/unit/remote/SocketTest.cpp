#include "SocketFixture.h"

#include "support/DebugLines.h"

#include <sys/socket.h>

using namespace zpsg::remote;

namespace {

using SocketTest = SocketFixture;

TEST_F(SocketTest, TheGreetingTellsWhatIsThere) {
    const QByteArray host = QHostInfo::localHostName().toUtf8();
    helper.setLightingState(QStringLiteral("{\"LightOn\":1}"));
    const auto greeting = [this] {
        const auto socket = connecting();
        eventually([&] { return socket->bytesAvailable() > 0; });
        return socket->readAll();
    };
    const QByteArray none = "NoPower!" + host + '&';
    const QByteArray single = "CvPower!" + host + '&';
    const QByteArray plus = "CvPower_12LED!" + host + R"(!{"LightOn":1}&)";
    const QByteArray duo = "CvPower_Duo!" + host + R"(!{"LightOn":1}&)";
    EXPECT_EQ(greeting(), none);
    for (const auto &[kind, expected] : {std::pair(0, single), {1, plus}, {2, duo}, {7, duo}, {-1, duo}}) {
        helper.messageFromMainGetRGB_State(false, kind);
        EXPECT_EQ(greeting(), none) << kind;
        helper.messageFromMainGetRGB_State(true, kind);
        EXPECT_EQ(greeting(), expected) << kind;
    }
    helper.init_RGB_State_FromMain_12LED(1);
    EXPECT_EQ(greeting(), plus);
    helper.init_RGB_State_FromMain_12LED(2);
    EXPECT_EQ(greeting(), plus);
    helper.init_RGB_State_FromMain(0);
    EXPECT_EQ(greeting(), none);
    helper.init_RGB_State_FromMain(5);
    EXPECT_EQ(greeting(), none);
    helper.init_RGB_State_FromMain(1);
    helper.init_RGB_State_FromMain_12LED(0);
    EXPECT_EQ(greeting(), single);
}

TEST_F(SocketTest, EachKindHasItsCommands) {
    // What a command raises, its number being the place in the list; "D" is its Data.
    const std::array<QList<QByteArray>, 3> kinds{{
        {"ToMain get State", "ToMain_LightOnClick get State", "ToMain_LightModel D", "ToMain_RGBA D",
         "ToMain_Music D", "", "", "", "", "", ""},
        {"ToControlPlus", "ToControlPlus_setupLight D", "ToControlPlus_setLightOn D",
         "ToControlPlus_setDefault D", "ToControlPlus_setBtnAndColor D", "ToControlPlus_setBtnAndBright D",
         "", "ToControlPlus_stopHelloCV|ToControlPlus_Music D",
         "ToControlPlus_stopHelloCV|ToControlPlus_Fan_Sync D", "ToControlPlus_startHelloCV", ""},
        {"ToControl_Duo", "ToControl_setupLight_Duo D", "ToControl_setLightOn_Duo D",
         "ToControl_setDefault_Duo D", "ToControl_setBtnAndColor_Duo D", "ToControl_setBtnAndBright_Duo D",
         "ToControl_ModelMusic_Duo D", "ToControl_ModelSelect_Duo D", "", "", ""},
    }};
    const support::DebugLines log(QStringLiteral("zpsg.remote.debug=true"));
    const auto socket = client();
    for (int kind = 0; kind < 3; ++kind) {
        helper.messageFromMainGetRGB_State(true, kind);
        QStringList expected;
        const auto &commands = kinds.at(static_cast<std::size_t>(kind));
        for (int number = 0; number < commands.size(); ++number) {
            const QByteArray data = R"({"n":)" + QByteArray::number(number) + '}';
            socket->write(command(number, data));
            for (QByteArray signal : commands[number].split('|')) {
                if (!signal.isEmpty()) {
                    expected.append(QString::fromUtf8("socketHelper" + signal.replace(" D", ' ' + data)));
                }
            }
        }
        // The last one shows that the unknown ones before it came through and raised nothing.
        socket->write(command(-1) + command(1, "{}"));
        const int last = expected.size();
        EXPECT_TRUE(heard(last + 1));
        EXPECT_EQ(record.lines.mid(0, last), expected) << record.lines.join(QLatin1Char('\n')).toStdString();
        EXPECT_EQ(record.lines.size(), last + 1);
        record.lines.clear();
    }
    EXPECT_EQ(support::DebugLines::text().count(QStringLiteral("Click Light Button")), 2);
    EXPECT_EQ(support::DebugLines::text().count(QStringLiteral("getResult:")), 2);
    EXPECT_EQ(support::DebugLines::text().count(QStringLiteral("Socket:newConnection")), 1);
}

TEST_F(SocketTest, AMessageMayBeCutAnywhere) {
    const QByteArray both = command(3, R"({"a":"b"})") + command(1);
    const auto socket = client();
    for (int cut = 0; cut <= both.size(); ++cut) {
        record.lines.clear();
        const int before = cut == 0 ? 0 : both.left(cut).count('&');
        socket->write(both.left(cut));
        socket->flush();
        EXPECT_TRUE(heard(before));
        QTest::qWait(1);
        EXPECT_EQ(record.lines.size(), before) << cut;
        socket->write(both.mid(cut));
        EXPECT_TRUE(heard(2));
        EXPECT_EQ(record.lines, QStringList({QStringLiteral("socketHelperToMain_RGBA {\"a\":\"b\"}"),
                                             QStringLiteral("socketHelperToMain_LightOnClick get State")}))
            << cut;
    }
    record.lines.clear();
    for (const char byte : both) {
        socket->write(&byte, 1);
        socket->flush();
        QTest::qWait(1);
    }
    EXPECT_TRUE(heard(2));
}

TEST_F(SocketTest, BadPiecesDoNotHarmTheOthers) {
    const auto socket = client();
    const QByteArray good = command(2);
    for (const QByteArray &bad : {QByteArray("&&&"), QByteArray("not Base64!&"), framed("no JSON"),
                                  framed("[1]"), framed("07"), framed("07ab"), framed(R"({"command":99})"),
                                  QByteArray("\0\xFF&", 3), framed(QByteArray(40'000, '['))}) {
        record.lines.clear();
        socket->write(good + bad + good);
        EXPECT_TRUE(heard(2));
        EXPECT_EQ(record.lines.size(), 2);
    }
    EXPECT_FALSE(closed(socket));
    EXPECT_EQ(socket->bytesAvailable(), 0) << "an error was answered";
}

TEST_F(SocketTest, RepliesAreFramed) {
    const auto socket = client();
    for (const char *notSent : {"", "XX 01 02 255 100 01"}) {
        helper.initMsgFromMain(notSent);
    }
    helper.initMsgFromMain("XX 01 02 255 100 01 50");
    EXPECT_EQ(QJsonDocument::fromJson(reply(socket)), QJsonDocument::fromJson(R"({"command":"1","Data":{
        "Light":"01","LightMode":"02","rColor":"255","gColor":"100","bColor":"01","Brightness":"50"}})"));
    const support::DebugLines log(QStringLiteral("zpsg.remote.debug=true"));
    helper.messageFrom_controlPlus(QString::fromUtf8("  {\n \"k\xC3\xA9y\":\t1 }\n"));
    EXPECT_EQ(reply(socket), "{ \"k\xC3\xA9y\": 1 }");
    helper.init_Duo(QStringLiteral("{}\n"));
    EXPECT_EQ(reply(socket), "{}");
    EXPECT_TRUE(support::DebugLines::text().startsWith(QStringLiteral("data: ")));
}

TEST_F(SocketTest, RepliesGoToWhoAskedAndTheRestToTheNewest) {
    const auto first = client();
    auto newest = client();
    int asked = 0;
    QObject::connect(&helper, &SocketHelper::socketHelperToMain, &helper,
                     [&] { helper.init_Duo(QString::number(++asked)); });
    first->write(command(0));
    EXPECT_EQ(reply(first), "1");
    newest->write(command(0));
    EXPECT_EQ(reply(newest), "2");
    helper.init_Duo(QStringLiteral("unasked"));
    EXPECT_EQ(reply(newest), "unasked");
    newest.reset();
    EXPECT_TRUE(eventually([&] { return helper.clientCount() == 1; }));
    helper.init_Duo(QStringLiteral("to nobody"));
    first->write(command(0));
    EXPECT_EQ(reply(first), "3") << "what is for the newest client must not go to another";
}

TEST_F(SocketTest, OneThatHalfClosesAfterItsQuestionsIsAnswered) {
    QObject::connect(&helper, &SocketHelper::socketHelperToMain, &helper,
                     [&] { helper.init_Duo(QStringLiteral("state")); });
    const auto socket = client();
    socket->write(command(0));
    socket->flush();
    shutdown(static_cast<int>(socket->socketDescriptor()), SHUT_WR);
    EXPECT_EQ(reply(socket), "state");
    EXPECT_TRUE(eventually([&] { return closed(socket); }));
    // More than what one turn carries out.
    const auto hasty = client();
    for (int i = 0; i < 5000; ++i) {
        hasty->write(command(2));
    }
    hasty->disconnectFromHost();
    EXPECT_TRUE(heard(5001));
    EXPECT_TRUE(eventually([&] { return helper.clientCount() == 0; }));
}

TEST_F(SocketTest, ATakenPortIsOnlyADebugLine) {
    const support::DebugLines log(QStringLiteral("zpsg.remote.debug=true"));
    SocketHelper second(helper.port());
    EXPECT_EQ(second.port(), 0);
    second.init_Duo(QStringLiteral("to nobody"));
    EXPECT_TRUE(support::DebugLines::text().startsWith(QStringLiteral("no control socket:")));
}

} // namespace
