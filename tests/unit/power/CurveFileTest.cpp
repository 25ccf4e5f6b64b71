#include "power/CurveFile.h"

#include "cipher/TextCipher.h"
#include "support/FullDisk.h"

#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>

using namespace zpsg::power;

namespace {

QJsonObject json(const char *text) { return QJsonDocument::fromJson(text).object(); }

const char *const kGood = R"({"dataSize": 2, "AC115": {"1": 70.25, "2": "80"}, "AC230": {"1": 71, "2": 82}})";

class CurveFileTest : public ::testing::Test {
protected:
    /// A new file each time: the settings library takes one of the same name, size and millisecond for the
    /// same.
    QString put(const QByteArray &content) {
        QString path = dir.filePath(QString::number(++files) + QStringLiteral(".ini"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        return path;
    }

    static QByteArray content(const QString &path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }

    QTemporaryDir dir;
    QString why;
    int files = 0;
};

TEST_F(CurveFileTest, WhatWasWrittenIsRead) {
    const QString path = dir.filePath(QStringLiteral("EFF_1.ini"));
    ASSERT_TRUE(writeCurveFile(path, json(kGood), why)) << qPrintable(why);
    EXPECT_EQ(readCurveFile(path, why), json(kGood)) << qPrintable(why);
    EXPECT_FALSE(content(path).contains("dataSize"));
}

TEST_F(CurveFileTest, WhatCannotBeReadIsExplained) {
    const auto sealed = [](const QByteArray &plain) {
        return "[EFF]\neff_value=\"" + zpsg::cipher::encipher(plain) + "\"\n";
    };
    const QByteArray good = sealed(kGood);
    ASSERT_TRUE(readCurveFile(put(good), why)) << qPrintable(why);
    QByteArray altered = good;
    altered[60] = static_cast<char>(altered.at(60) ^ 1);
    struct Case {
        QByteArray content;
        const char *why;
    };
    for (const auto &[content, expected] :
         {Case{"", R"(no "eff_value")"}, Case{"[EFF]\n", R"(no "eff_value")"},
          Case{"[EFF]\neff_value=\n", R"(no "eff_value")"}, Case{"[EFF]\neff_value=a, b\n", "deciphered"},
          Case{good.mid(5), R"(no "eff_value")"}, Case{"[EFF]\neff_value=85\n", "deciphered"},
          Case{QByteArray("[EFF]\neff_value=") + kGood, "deciphered"}, Case{altered, "deciphered"},
          Case{good.left(good.size() - 9), "deciphered"}, Case{sealed("[1, 2]"), "no JSON object"},
          Case{sealed(R"({"dataSize": 2)"), "no JSON object"}, Case{sealed(""), "no JSON object"},
          Case{good + QByteArray(1024 * 1024, '\n'), "larger"}}) {
        why.clear();
        EXPECT_FALSE(readCurveFile(put(content), why)) << content.left(80).constData();
        EXPECT_THAT(why.toStdString(), ::testing::HasSubstr(expected)) << content.left(80).constData();
    }
    EXPECT_FALSE(readCurveFile(dir.filePath(QStringLiteral("none.ini")), why));
    EXPECT_FALSE(readCurveFile(dir.path(), why));
}

TEST_F(CurveFileTest, TakesWhatABandHolds) {
    struct Case {
        const char *document;
        int steps;
        std::optional<std::vector<float>> band;
    };
    using Entries = std::vector<float>;
    for (const auto &[document, steps, band] :
         {Case{kGood, 2, Entries{70.25F, 80}},
          Case{R"({"dataSize": 4, "AC115": {"1": null, "3": [9], "4": true}})", 4, Entries{0, 0, 0, 0}},
          Case{
              R"({"dataSize": 5, "AC115": {"1": "nan", "2": "-inf", "3": "85 %", "4": 1e300, "5": "8.5e1"}})",
              5, Entries{0, 0, 0, 0, 85}},
          Case{R"({"dataSize": 1, "AC115": {"01": 85, "0": 85}})", 1, Entries{0}},
          Case{R"({"dataSize": "2", "AC115": {"1": 85, "2": 85}})", 0, Entries{}},
          Case{R"({"dataSize": 1.5, "AC115": {"1": 85}})", 0, Entries{}},
          Case{R"({"AC115": {"1": 85}})", 0, Entries{}}, Case{R"({"dataSize": -1, "AC115": {}})", -1, {}},
          Case{R"({"dataSize": 2001, "AC115": {}})", 2001, {}},
          Case{R"({"dataSize": 1e18, "AC115": {}})", std::numeric_limits<int>::max(), {}},
          Case{R"({"dataSize": -1e300, "AC115": {}})", std::numeric_limits<int>::min(), {}},
          Case{R"({"dataSize": 2, "AC115": [70, 80]})", 2, {}}, Case{R"({"dataSize": 2})", 2, {}}}) {
        why.clear();
        EXPECT_EQ(curveSteps(json(document)), steps) << document;
        EXPECT_EQ(curveBand(json(document), QStringLiteral("AC115"), why), band) << document;
        EXPECT_EQ(why.isEmpty(), band.has_value()) << document;
    }
}

TEST_F(CurveFileTest, OnlyAWholeCurveIsWritten) {
    const QString path = put("as before");
    struct Case {
        const char *document;
        const char *why;
    };
    for (const auto &[document, expected] :
         {Case{R"({"dataSize": 0, "AC115": {}, "AC230": {}})", "dataSize"},
          Case{R"({"dataSize": "1", "AC115": {"1": 1}, "AC230": {"1": 1}})", "dataSize"},
          Case{R"({"dataSize": 2001, "AC115": {"1": 1}, "AC230": {"1": 1}})", "dataSize"},
          Case{R"({"dataSize": 1, "AC115": {"1": 1}})", R"("AC230")"},
          Case{R"({"dataSize": 1, "AC115": {"1": 1}, "AC230": {}})", R"("1" of "AC230" is missing)"},
          Case{R"({"dataSize": 1, "AC115": {"1": 100.1}, "AC230": {"1": 1}})", R"("1" of "AC115")"},
          Case{R"({"dataSize": 1, "AC115": {"1": "x"}, "AC230": {"1": 1}})", R"("1" of "AC115")"},
          Case{R"({"dataSize": 1, "AC115": {"1": 1, "2": 1}, "AC230": {"1": 1}})", R"("2" of "AC115")"},
          Case{R"({"dataSize": 1, "AC115": {"1": 1, "01": 1}, "AC230": {"1": 1}})", R"("01" of "AC115")"}}) {
        EXPECT_FALSE(writeCurveFile(path, json(document), why)) << document;
        EXPECT_THAT(why.toStdString(), ::testing::HasSubstr(expected)) << document;
        EXPECT_EQ(content(path), "as before");
    }
    EXPECT_FALSE(writeCurveFile(dir.filePath(QStringLiteral("none/EFF.ini")), json(kGood), why));
    EXPECT_FALSE(writeCurveFile(dir.path(), json(kGood), why));
}

TEST_F(CurveFileTest, AFullDiskLeavesTheOldFile) {
    const QString path = put("as before");
    const bool written = [&] {
        const zpsg::test::FullDisk disk(20);
        return writeCurveFile(path, json(kGood), why);
    }();
    EXPECT_FALSE(written);
    EXPECT_FALSE(why.isEmpty());
    EXPECT_EQ(content(path), "as before");
}

/// Limits of a certification in percent at 10, 20, 50 and 100 % load; 0 where it has none.
using Limits = std::array<float, 4>;

struct Shipped {
    const char *name;
    int ratedWatts;
    Limits ac115;
    Limits ac230;
};

/// Between the middles of two steps, where the entries apply exactly.
double at(const std::vector<float> &band, double watts) {
    const double steps = watts / static_cast<double>(kCurveStepWatts) - 0.5;
    const auto before = static_cast<std::size_t>(steps);
    return std::lerp(static_cast<double>(band.at(before)), static_cast<double>(band.at(before + 1)),
                     steps - std::floor(steps));
}

class ShippedCurves : public ::testing::TestWithParam<Shipped> {};

TEST_P(ShippedCurves, MeetTheLimitsAndNothingElseIsOdd) {
    const Shipped &curve = GetParam();
    QString why;
    const auto document =
        readCurveFile(QStringLiteral(ZPSG_CURVES "/%1.ini").arg(QLatin1String(curve.name)), why);
    ASSERT_TRUE(document) << qPrintable(why);
    EXPECT_EQ(curveProblem(*document), QString());
    const auto ac115 = curveBand(*document, QStringLiteral("AC115"), why).value();
    const auto ac230 = curveBand(*document, QStringLiteral("AC230"), why).value();
    ASSERT_GE(static_cast<double>(ac115.size()) * 10, 1.2 * curve.ratedWatts);
    for (const auto &[band, limits] : {std::pair(ac115, curve.ac115), std::pair(ac230, curve.ac230)}) {
        constexpr std::array kLoads{0.1, 0.2, 0.5, 1.0};
        for (std::size_t i = 0; i < limits.size(); ++i) {
            const double efficiency = at(band, curve.ratedWatts * kLoads.at(i));
            EXPECT_TRUE(limits.at(i) == 0 || std::abs(efficiency - limits.at(i)) <= 0.1)
                << 100 * kLoads.at(i) << " %: " << efficiency;
        }
        const auto best = std::max_element(band.begin(), band.end());
        EXPECT_TRUE(std::is_sorted(band.begin(), best)) << "rises to one maximum";
        EXPECT_TRUE(std::is_sorted(best, band.end(), std::greater<>())) << "and falls from there";
        EXPECT_GT(band.front(), 0.0F);
        EXPECT_LT(*best, 100.0F);
        EXPECT_GT(band.back(), limits.back() - 4) << "an overloaded supply heats, it does not collapse";
    }
    for (std::size_t i = 0; i < ac115.size(); ++i) {
        EXPECT_GE(ac230.at(i), ac115.at(i)) << "entry " << i;
    }
}

constexpr Limits kBronze115{0, 82, 85, 82}, kBronze230{0, 85, 88, 85};
constexpr Limits kGold115{0, 87, 90, 87}, kGold230{0, 90, 92, 89};
constexpr Limits kPlatinum115{0, 90, 92, 89}, kPlatinum230{0, 92, 94, 90};
constexpr Limits kTitanium115{90, 92, 94, 90}, kTitanium230{90, 94, 96, 94};

INSTANTIATE_TEST_SUITE_P(All, ShippedCurves,
                         ::testing::Values(Shipped{"GPS_EFF_35", 350, kBronze115, kBronze230},
                                           Shipped{"GPS_EFF_45", 450, kBronze115, kBronze230},
                                           Shipped{"GPS_EFF_50", 500, kBronze115, kBronze230},
                                           Shipped{"GPS_EFF_60", 600, kBronze115, kBronze230},
                                           Shipped{"GPS_EFF_65", 650, kBronze115, kBronze230},
                                           Shipped{"GPS_EFF_70", 700, kBronze115, kBronze230},
                                           Shipped{"GPS_EFF_75", 750, kBronze115, kBronze230},
                                           Shipped{"EFF_45", 450, kGold115, kGold230},
                                           Shipped{"EFF_55", 550, kGold115, kGold230},
                                           Shipped{"EFF_65", 650, kGold115, kGold230},
                                           Shipped{"EFF_75", 750, kGold115, kGold230},
                                           Shipped{"EFF_85", 850, kGold115, kGold230},
                                           Shipped{"EFF_105", 1050, kGold115, kGold230},
                                           Shipped{"EFF_125", 1250, kGold115, kGold230},
                                           Shipped{"ZPSG_EFF_85", 850, kPlatinum115, kPlatinum230},
                                           Shipped{"ZPSG_EFF_105", 1050, kPlatinum115, kPlatinum230},
                                           Shipped{"ZPSG_EFF_120", 1200, kPlatinum115, kPlatinum230},
                                           Shipped{"ZPSG_DUO_75", 750, kTitanium115, kTitanium230},
                                           Shipped{"ZPSG_DUO_85", 850, kTitanium115, kTitanium230},
                                           Shipped{"ZPSG_DUO_100", 1000, kTitanium115, kTitanium230}),
                         [](const auto &test) { return std::string(test.param.name); });

} // namespace
