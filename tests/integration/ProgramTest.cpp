#include "Program.h"

#include <QDateTime>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <csignal>
#include <vector>

using namespace zpsg::test;

namespace {

QStringList words(const char *text) {
    return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

TEST(Program, ComplainsOnOneLineAndExitsWithTwo) {
    const Home home;
    for (const char *arguments : {"--nonsense", "--data-dir", "--json", "--demo=",
                                  "--headless --data-dir /proc/1/x", "--headless --data-dir /dev/null"}) {
        const auto outcome = home.run(words(arguments));
        EXPECT_EQ(outcome.code, 2) << arguments;
        EXPECT_TRUE(outcome.err.startsWith("zpsg: ")) << outcome.err.constData();
        EXPECT_TRUE(outcome.out.isEmpty());
    }
    const auto noDisplay = home.run({});
    EXPECT_EQ(noDisplay.code, 1);
    EXPECT_THAT(noDisplay.err.toStdString(), ::testing::HasSubstr("--headless"));
    EXPECT_EQ(home.run(words("--version")).out.left(5), "zpsg ");
    EXPECT_EQ(home.run(words("--help")).code, 0);
}

TEST(Program, PrintsAReadingASecondAndEndsCleanly) {
    const Home home;
    for (const int signal : {SIGINT, SIGTERM}) {
        const auto demo = home.start(words("--demo=CVA-0750-G --headless --json"));
        std::vector<QDateTime> times;
        for (int i = 0; i < 3; ++i) {
            const auto line = nextLine(*demo);
            const auto reading = QJsonDocument::fromJson(line).object();
            ASSERT_EQ(reading[QStringLiteral("model")].toString(), QStringLiteral("CVA-0750-G"))
                << line.constData();
            const auto number = [&reading](const char *key) {
                return reading[QLatin1String(key)].toDouble();
            };
            EXPECT_NEAR(number("VVOut12") * number("VIOut12") + number("VVOut5") * number("VIOut5") +
                            number("VVOut33") * number("VIOut33"),
                        number("WATTS"), 0.01);
            EXPECT_GT(number("WATTS"), 15.0);
            EXPECT_LT(number("WATTS"), 750.0);
            const auto time =
                QDateTime::fromString(reading[QStringLiteral("time")].toString(), Qt::ISODateWithMs);
            ASSERT_TRUE(time.isValid());
            times.push_back(time);
        }
        // Three readings span two seconds; a busy machine may print the first one late.
        EXPECT_GE(times.front().msecsTo(times.back()), 1500);
        ::kill(static_cast<pid_t>(demo->processId()), signal);
        const auto outcome = Home::finish(*demo);
        EXPECT_EQ(outcome.code, 0);
        EXPECT_TRUE(outcome.err.isEmpty()) << outcome.err.constData();
    }
}

TEST(Program, EndsWhenNobodyTakesItsReadings) {
    const Home home;
    const auto process = home.make();
    process->setStandardOutputFile(QStringLiteral("/dev/full"));
    process->start(QLatin1String(ZPSG_PROGRAM), words("--demo --headless --json"));
    EXPECT_EQ(Home::finish(*process).code, 1);
}

TEST(Program, ReadsDamagedSettingsAndKeepsThem) {
    Home home;
    home.set("QT_QPA_PLATFORM", QStringLiteral("offscreen"));
    const QDir data(home.path("data/demo"));
    data.mkpath(QStringLiteral("."));
    QFile file(data.filePath(QStringLiteral("config_ZPSG.ini")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Setting]\nLanguage=de\n\x01\x02 no key here\n");
    file.close();
    const auto process =
        home.start({QStringLiteral("--demo"), QStringLiteral("--data-dir"), home.path("data")});
    EXPECT_TRUE(waitUntil([&] {
        return !data.entryList({QStringLiteral("*.damaged-*")}).isEmpty() &&
               QFile(file.fileName()).size() > 60;
    }));
    process->terminate();
    EXPECT_EQ(Home::finish(*process).code, 0);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("Language=de"));
}

} // namespace
