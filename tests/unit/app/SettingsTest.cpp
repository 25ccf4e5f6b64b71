#include "app/Settings.h"

#include "support/FullDisk.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <unistd.h>

using namespace zpsg::app;

namespace {

class SettingsTest : public ::testing::Test {
protected:
    [[nodiscard]] QString general() const { return dir.filePath(QStringLiteral("config_ZPSG.ini")); }

    void put(const QByteArray &content) const {
        QFile file(general());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    [[nodiscard]] QByteArray content() const {
        QFile file(general());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }

    QTemporaryDir dir;
};

TEST_F(SettingsTest, GivesDefaultsAndKeepsWhatIsWritten) {
    const QStringList day{QStringLiteral("0"), QStringLiteral("12.5"), QStringLiteral("1e+06")};
    {
        Settings settings(dir.path());
        EXPECT_EQ(settings.text(Setting::Language), QString());
        EXPECT_FALSE(settings.flag(Setting::Autostart));
        EXPECT_TRUE(settings.write({{Setting::Language, QStringLiteral("jp")},
                                    {Setting::TotalUsedKwh, 12.5},
                                    {Setting::Account, QStringLiteral("a;b, \"Ä\" =]")},
                                    {Setting::FanDuty, 99}}));
        EXPECT_TRUE(settings.list(Setting::DayWatts).isEmpty());
        EXPECT_TRUE(settings.write({{Setting::DayWatts, day}, {Setting::DayDate, QStringLiteral("11-21")}}));
    }
    const Settings again(dir.path());
    EXPECT_EQ(again.text(Setting::Language), QStringLiteral("jp"));
    EXPECT_EQ(again.real(Setting::TotalUsedKwh), 12.5);
    EXPECT_EQ(again.text(Setting::Account), QStringLiteral("a;b, \"Ä\" =]"));
    EXPECT_EQ(again.integer(Setting::FanDuty), 3); // the highest there is
    EXPECT_EQ(again.list(Setting::DayWatts), day);
    EXPECT_EQ(again.text(Setting::DayDate), QStringLiteral("11-21"));
    EXPECT_TRUE(content().contains("[Setting]"));
    EXPECT_TRUE(content().contains("Language=jp"));
}

TEST_F(SettingsTest, BadValuesBecomeTheNearestGoodOnes) {
    struct Case {
        const char *line;
        int duty;
    };
    for (const auto &[line, duty] : {Case{"FanDuty=2", 2}, Case{"FanDuty=-7", -1}, Case{"FanDuty=1e99", 3},
                                     Case{"FanDuty=fast", -1}, Case{"FanDuty=", -1}, Case{"FanDuty=nan", -1},
                                     Case{"FanDuty=1, 2, 3", -1}, Case{"FanDuty=@Invalid()", -1}}) {
        QFile::remove(
            general()); // the settings library takes a file of the same size and millisecond for the same
        EXPECT_EQ(Settings(dir.path()).integer(Setting::FanDuty), -1);
        put(QByteArray("[FanSetting]\n") + line + "\n");
        EXPECT_EQ(Settings(dir.path()).integer(Setting::FanDuty), duty) << line;
    }
    put("[Setting]\nAutostart=maybe\nAskLogin=0\nLanguage=a, b\n");
    const Settings settings(dir.path());
    EXPECT_FALSE(settings.flag(Setting::Autostart));
    EXPECT_FALSE(settings.flag(Setting::AskLogin));
    EXPECT_EQ(settings.text(Setting::Language), QStringLiteral("a,b"));
}

TEST_F(SettingsTest, NothingIsLostFromADamagedFile) {
    QByteArray binary;
    for (int i = 0; i < 4096; ++i) {
        binary.append(static_cast<char>(i * 37 + i / 7));
    }
    struct Case {
        QByteArray content;
        bool damaged;
    };
    for (const auto &[bytes, damaged] :
         {Case{"", false}, Case{"\0\0\0", false}, Case{"[Setting]\nLanguage=de\nTempType", true},
          Case{binary, true}, Case{"[Setting]\nLanguage=de\n[Fan", true}}) {
        put(bytes);
        {
            Settings settings(dir.path());
            EXPECT_TRUE(settings.write({{Setting::TotalUsedTime, 77}}));
            EXPECT_EQ(settings.integer(Setting::TotalUsedTime), 77);
        }
        const QDir folder(dir.path());
        const auto kept = folder.entryList({QStringLiteral("*.damaged-*")});
        ASSERT_EQ(kept.size(), damaged ? 1 : 0) << bytes.left(40).constData();
        if (damaged) {
            QFile copy(folder.filePath(kept.first()));
            ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
            EXPECT_EQ(copy.readAll(), bytes);
            copy.remove();
        }
        EXPECT_EQ(Settings(dir.path()).integer(Setting::TotalUsedTime), 77);
        QFile::remove(general());
    }
}

TEST_F(SettingsTest, AFullDiskLeavesTheFileWholeAndTheValueIsWrittenLater) {
    Settings settings(dir.path());
    // Long enough that a small file beside it still fits when it does not.
    ASSERT_TRUE(settings.write({{Setting::Account, QString(120, QLatin1Char('x'))}}));
    const QByteArray before = content();
    const auto longest = static_cast<rlim_t>(before.size()) + 5; // the new line is longer than that
    for (rlim_t bytes = 0; bytes < longest; ++bytes) {
        const zpsg::test::FullDisk disk(bytes);
        ASSERT_FALSE(settings.write({{Setting::TotalUsedTime, 123456}})) << bytes;
        ASSERT_EQ(content(), before) << bytes;
    }
    EXPECT_EQ(settings.integer(Setting::TotalUsedTime), 123456);
    EXPECT_TRUE(settings.write({{Setting::TempType, 1}}));
    EXPECT_EQ(Settings(dir.path()).integer(Setting::TotalUsedTime), 123456);
}

} // namespace
