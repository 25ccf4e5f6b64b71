#include "app/SettingsBackup.h"
#include "app/Languages.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

using namespace zpsg::app;

namespace {

class SettingsBackupTest : public ::testing::Test {
protected:
    QTemporaryDir here, there;
    Settings mine{here.path()};
    Settings other{there.path()};
};

TEST_F(SettingsBackupTest, EveryPreferenceComesBackOnAnotherPc) {
    mine.write({{Setting::Language, QStringLiteral("jp")},
                {Setting::TempType, 1},
                {Setting::CostTip, 0.31},
                {Setting::TimeOfUse, QStringLiteral("67 22:00-06:00 0.21")},
                {Setting::MqttHost, QStringLiteral("büro.example")}});
    mine.write({{Setting::PlusRed, QStringLiteral("1,2,3,4,5,6,7,8,9,10,11,12,13")}});
    mine.write({{Setting::SensorsEnabled, true}});
    const auto values = readSettings(exportSettings(mine));
    ASSERT_TRUE(values);
    ASSERT_TRUE(other.writeAll(*values));
    for (const SettingRow &each : kSettingsTable) {
        if (isPreference(each.id)) {
            EXPECT_EQ(other.value(each.id), mine.value(each.id)) << each.key;
        }
    }
}

TEST_F(SettingsBackupTest, WhatWasCountedAndWhatIsSecretStays) {
    mine.write({{Setting::TotalUsedKwh, 123.0},
                {Setting::RecFileNumber, 7},
                {Setting::MqttPassword, QStringLiteral("hush")},
                {Setting::AccountKey, QStringLiteral("key")}});
    const QByteArray document = exportSettings(mine);
    for (const char *word : {"hush", "\"key\"", "totalUsedKWH", "RecFileNumber"}) {
        EXPECT_FALSE(document.contains(word)) << word;
    }
    mine.writeAll(defaultSettings());
    EXPECT_EQ(mine.real(Setting::TotalUsedKwh), 123.0);
    EXPECT_EQ(mine.integer(Setting::RecFileNumber), 7);
    EXPECT_EQ(mine.text(Setting::MqttPassword), QStringLiteral("hush"));
    // Nor does a document that names them all the same.
    const auto values = readSettings(
        R"({"format":"zpsg-settings","version":1,"settings":{"/Setting/RecFileNumber":0,"/New/Key":1}})");
    ASSERT_TRUE(values);
    EXPECT_TRUE(values->isEmpty());
}

TEST_F(SettingsBackupTest, WhatIsNoSuchDocumentIsRefused) {
    for (const char *text : {"", "{", "[]", "{}", R"({"format":"zpsg-settings"})",
                             R"({"format":"other","version":1,"settings":{}})",
                             R"({"format":"zpsg-settings","version":2,"settings":{}})",
                             R"({"format":"zpsg-settings","version":1,"settings":[]})"}) {
        EXPECT_FALSE(readSettings(text)) << text;
    }
    EXPECT_FALSE(readSettings(QByteArray(2'000'000, ' ') + exportSettings(mine)));
}

TEST_F(SettingsBackupTest, ValuesOutOfTheirRangeAreMended) {
    const auto values = readSettings(R"({"format":"zpsg-settings","version":1,"settings":
        {"/Setting/TempType":9,"/Mqtt/Port":-5,"/Setting/VoltWarning":"perhaps","/Setting/Language":{"a":1}}})");
    ASSERT_TRUE(values);
    mine.writeAll(*values);
    EXPECT_EQ(mine.integer(Setting::TempType), 1);
    EXPECT_EQ(mine.integer(Setting::MqttPort), 1);
    EXPECT_TRUE(mine.flag(Setting::VoltWarning));
    EXPECT_TRUE(mine.text(Setting::Language).isEmpty());
}

TEST(Languages, TheChosenOneElseTheSystems) {
    const QLocale german(QStringLiteral("de_AT"));
    const auto code = [](const char *chosen, const char *system) {
        return std::string(languageFor(QString::fromLatin1(chosen), QLocale(QLatin1String(system))).code);
    };
    EXPECT_EQ(code("sh", "de_AT"), "sh");
    EXPECT_EQ(code("", "de_AT"), "de");
    EXPECT_EQ(code("xx", "ja_JP"), "jp");
    EXPECT_EQ(code("", "zh_HK"), "tc");
    EXPECT_EQ(code("", "zh_TW"), "tc");
    EXPECT_EQ(code("", "zh_CN"), "sc");
    EXPECT_EQ(code("", "es_MX"), "sh");
    EXPECT_EQ(code("", "pl_PL"), "en");
    EXPECT_EQ(code("", "C"), "en");
    // Numbers as in the user's country where it speaks that language, else as where the language is at home.
    EXPECT_EQ(localeFor(languageFor({}, german), german), german);
    EXPECT_EQ(localeFor(languageFor(QStringLiteral("fr"), german), german).name(), QStringLiteral("fr_FR"));
}

} // namespace
