#include "power/EfficiencyTable.h"
#include "power/CurveFile.h"
#include "power/Efficiency.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <cmath>

using namespace zpsg;
using power::EfficiencyTable;
using power::ModelKind;
using ::testing::ElementsAre;

namespace {

QString codeOf(const power::ModelRow &row) {
    return QString::fromLatin1(row.code.data(), static_cast<int>(row.code.size()));
}

class EfficiencyTableTest : public ::testing::Test {
protected:
    EfficiencyTableTest() { QDir(dir.path()).mkdir(QStringLiteral("BOX")); }

    /// A curve whose entries are `base`, `base` + 1, ... at 115 V and 10 more at 230 V.
    void writeCurve(const QString &name, int steps, double base) {
        QJsonObject low;
        QJsonObject high;
        for (int k = 1; k <= steps; ++k) {
            low.insert(QString::number(k), base + k - 1);
            high.insert(QString::number(k), base + k + 9);
        }
        QString why;
        ASSERT_TRUE(power::writeCurveFile(path(name),
                                          {{QStringLiteral("dataSize"), steps},
                                           {QStringLiteral("AC115"), low},
                                           {QStringLiteral("AC230"), high}},
                                          why))
            << why.toStdString();
    }

    [[nodiscard]] QString path(const QString &name) const {
        return dir.filePath(QStringLiteral("BOX/") + name + QStringLiteral(".ini"));
    }

    void setOutput(float watts) {
        for (const char *key : {"VVOut5", "VVOut33", "VIOut5", "VIOut33"}) {
            record.store(QLatin1String(key), 0.0F);
        }
        record.store(QStringLiteral("VVOut12"), 1.0F);
        record.store(QStringLiteral("VIOut12"), watts);
        record.deriveWatts();
    }

    float efficiencyAt(float watts) {
        setOutput(watts);
        table.complete(record);
        return record.text(QStringLiteral("EFF")).toFloat();
    }

    QTemporaryDir dir;
    psu::TelemetryRecord record;
    EfficiencyTable table{{dir.path()}};
};

// The sheet in its own words: what each position sets, and what it leaves as the one before had it.
TEST_F(EfficiencyTableTest, AppliesEachRowOverTheOneBefore) {
    struct Expected {
        float watts;
        const char *curve;
        bool lighting, speed, leds;
        int series, number;
    };
    const std::vector<Expected> sheet{
        {1250, "EFF_125", true, true, false, 0, 0},        {750, "GPS_EFF_75", true, true, false, 0, 0},
        {650, "GPS_EFF_65", true, true, false, 0, 0},      {700, "GPS_EFF_70", true, true, false, 0, 0},
        {600, "GPS_EFF_60", true, true, false, 0, 0},      {450, "EFF_45", true, true, false, 0, 0},
        {550, "EFF_55", true, true, false, 0, 0},          {650, "EFF_65", true, true, false, 0, 0},
        {750, "EFF_75", true, true, false, 0, 0},          {850, "EFF_85", true, true, false, 0, 0},
        {1050, "EFF_105", true, true, false, 0, 0},        {700, "GPS_EFF_70", true, true, false, 0, 0},
        {600, "GPS_EFF_60", true, true, false, 0, 0},      {500, "GPS_EFF_50", true, true, false, 0, 0},
        {450, "GPS_EFF_45", true, true, false, 0, 0},      {350, "GPS_EFF_35", true, true, false, 0, 0},
        {650, "EFF_65", true, true, false, 0, 0},          {750, "EFF_75", true, true, false, 0, 0},
        {850, "EFF_85", true, true, false, 0, 0},          {1250, "EFF_75", true, true, true, 1, 0},
        {850, "ZPSG_EFF_85", true, true, true, 1, 1470},   {1050, "ZPSG_EFF_105", true, true, true, 1, 1470},
        {1200, "ZPSG_EFF_120", true, true, true, 1, 1772}, {1250, "EFF_125", true, true, true, 1, 1464},
        {1000, "ZPSG_DUO_100", true, true, true, 2, 1855}, {750, "ZPSG_DUO_75", true, true, true, 2, 1481},
        {850, "ZPSG_DUO_85", true, true, true, 2, 1481},   {1000, "ZPSG_DUO_100", true, true, true, 2, 1855}};
    ASSERT_EQ(sheet.size(), power::kCurveModels.size());
    for (std::size_t i = 0; i < sheet.size(); ++i) {
        SCOPED_TRACE(i);
        ASSERT_TRUE(table.selectEfficiencyProfile(codeOf(power::kCurveModels.at(i))));
        const auto &profile = table.profile();
        const auto &expected = sheet[i];
        EXPECT_EQ(profile.ratedWatts, expected.watts);
        EXPECT_EQ(profile.efficiencyFile, QLatin1String(expected.curve));
        EXPECT_EQ(std::make_tuple(profile.fanLighting, profile.customFanSpeed, profile.addressableLeds),
                  std::make_tuple(expected.lighting, expected.speed, expected.leds));
        EXPECT_EQ(profile.seriesCode, expected.series);
        EXPECT_EQ(profile.seriesNumber, expected.number);
    }
    // A row that writes little, on a fresh profile and after a rich one.
    EfficiencyTable fresh({dir.path()});
    fresh.selectEfficiencyProfile(codeOf(power::kCurveModels[3]));
    EXPECT_FALSE(fresh.profile().fanLighting);
    table.selectEfficiencyProfile(codeOf(power::kCurveModels[5]));
    EXPECT_EQ(table.profile().seriesNumber, 1855);
    const int before = table.revision();
    EXPECT_FALSE(table.selectEfficiencyProfile(QStringLiteral("cvx1000d")));
    EXPECT_FALSE(table.selectEnhancedProfile(QStringLiteral("CVX1000D")));
    EXPECT_EQ(table.revision(), before);
}

TEST_F(EfficiencyTableTest, FindsAModelInWhatTheSupplyReports) {
    struct Case {
        const char *text;
        const char *code; ///< null: no listed model
    };
    for (const auto &[text, code] :
         {Case{"CVX-1000-D", "CVX1000D"}, Case{"CVX1000D", "CVX1000D"}, Case{"--CVX--1000D-", "CVX1000D"},
          Case{"CVX-1000-D-EU2", "CVX1000D"}, Case{"PSU CVA-0750-P", "CVA0750P"}, Case{"CVX 1000 D", nullptr},
          Case{"cvx-1000-d", nullptr}, Case{"CVX-1000", nullptr}, Case{"", nullptr}, Case{"-", nullptr},
          Case{"CVE-0850-A", nullptr}, Case{"\u96FB\u6E90", nullptr}}) {
        const auto *row = power::findCurveModel(power::normalisedModel(QString::fromUtf8(text)));
        ASSERT_EQ(row != nullptr, code != nullptr) << text;
        EXPECT_TRUE(row == nullptr || row->code == code) << text;
    }
    EXPECT_EQ(power::findCurveModel(QString(62, QLatin1Char('C'))), nullptr);
    EXPECT_NE(power::findEnhancedModel(QStringLiteral("CVE1500F")), nullptr);
}

TEST_F(EfficiencyTableTest, ChoosesTheBandByTheMainsVoltage) {
    writeCurve(QStringLiteral("EFF_45"), 3, 60.0);
    struct Case {
        float volts;
        const char *band;
        float first;
    };
    for (const auto &[volts, band, first] :
         {Case{130.0F, "AC115", 60.0F}, Case{130.1F, "AC230", 70.0F}, Case{0.0F, "AC115", 60.0F}}) {
        EfficiencyTable fresh({dir.path()});
        record.store(QStringLiteral("VIN"), volts);
        fresh.loadEfficiencyTable(QStringLiteral("CVB-0450-S"), ModelKind::CurveBacked, record);
        EXPECT_EQ(fresh.bandKey(), QLatin1String(band));
        EXPECT_EQ(fresh.CWTwattsValueList().at(0), first);
    }
}

// A fresh record's 200 V are no measurement: the first pass may show that the other band applies.
TEST_F(EfficiencyTableTest, LoadsTheOtherBandWhenTheFirstMeasuredVoltageAsksForIt) {
    writeCurve(QStringLiteral("EFF_45"), 3, 60.0);
    table.loadEfficiencyTable(QStringLiteral("CVB0450S"), ModelKind::CurveBacked, record);
    EXPECT_EQ(table.bandKey(), QStringLiteral("AC230"));
    record.store(QStringLiteral("VIN"), 117.0F);
    EXPECT_EQ(efficiencyAt(5.0F), 60.0F);
    EXPECT_EQ(table.bandKey(), QStringLiteral("AC115"));
    // What stands behind the curve is never reached.
    EXPECT_THAT(table.CWTwattsValueList(), ElementsAre(60, 61, 62, 0, 0, 0));
    EXPECT_THAT(table.curve(), ElementsAre(60, 61, 62));
    EXPECT_EQ(efficiencyAt(1e6F), 62.0F);
    record.store(QStringLiteral("VIN"), 230.0F); // mains that change under way load nothing
    EXPECT_EQ(efficiencyAt(5.0F), 60.0F);
}

TEST_F(EfficiencyTableTest, LooksTheEntryOfTheOutputPowerUp) {
    writeCurve(QStringLiteral("EFF_125"), 90, 1.0);
    record.store(QStringLiteral("VIN"), 115.0F);
    table.loadEfficiencyTable(QStringLiteral("CVA1250P"), ModelKind::CurveBacked, record);
    for (const auto &[watts, entry] : {std::pair{0.0F, 0},
                                       {9.99F, 0},
                                       {10.0F, 1},
                                       {849.99F, 84},
                                       {850.0F, 85},
                                       {899.0F, 89},
                                       {900.0F, 89},
                                       {1e9F, 89},
                                       {-3.0F, 0}}) {
        EXPECT_EQ(efficiencyAt(watts), 1.0F + static_cast<float>(entry)) << watts;
    }
    EXPECT_EQ(record.text(QStringLiteral("WATTS")), QStringLiteral("-3"));
    setOutput(123.4567F);
    table.complete(record);
    EXPECT_EQ(record.text(QStringLiteral("WATTS")), QStringLiteral("123.457"));
}

TEST_F(EfficiencyTableTest, WithoutItsCurveTheDuosServesAndWithoutThatNothingChanges) {
    table.loadEfficiencyTable(QStringLiteral("CVB0450S"), ModelKind::CurveBacked, record);
    EXPECT_TRUE(table.curve().empty());
    EXPECT_EQ(efficiencyAt(200.0F), 60.2F); // as a fresh record has it
    EXPECT_FALSE(record.measured(QStringLiteral("EFF")));
    writeCurve(QLatin1String(power::kFallbackCurve), 4, 80.0);
    // An unknown code has no file of its own either.
    EfficiencyTable unknown({dir.path()});
    unknown.loadEfficiencyTable(QStringLiteral("WHATEVER"), ModelKind::CurveBacked, record);
    EXPECT_EQ(unknown.curve().size(), 4U);
    EXPECT_EQ(unknown.profile().ratedWatts, 0.0F);
    // The user's own folder goes first.
    QTemporaryDir own;
    QDir(own.path()).mkdir(QStringLiteral("BOX"));
    writeCurve(QStringLiteral("EFF_45"), 5, 30.0);
    ASSERT_TRUE(
        QFile::rename(path(QStringLiteral("EFF_45")), own.filePath(QStringLiteral("BOX/EFF_45.ini"))));
    writeCurve(QStringLiteral("EFF_45"), 6, 50.0);
    EfficiencyTable both({own.path(), dir.path()});
    both.loadEfficiencyTable(QStringLiteral("CVB0450S"), ModelKind::CurveBacked, record);
    EXPECT_EQ(both.curve().size(), 5U);
}

TEST_F(EfficiencyTableTest, ADamagedCurveLeavesTheListAsItWas) {
    writeCurve(QStringLiteral("EFF_45"), 3, 60.0);
    table.loadEfficiencyTable(QStringLiteral("CVB0450S"), ModelKind::CurveBacked, record);
    const auto before = table.CWTwattsValueList();
    QFile file(path(QStringLiteral("EFF_55")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[EFF]\neff_value=AAAA\n");
    file.close();
    table.loadEfficiencyTable(QStringLiteral("CVB0550S"), ModelKind::CurveBacked, record);
    EXPECT_EQ(table.CWTwattsValueList(), before);
    EXPECT_EQ(table.profile().ratedWatts, 550.0F);
}

TEST_F(EfficiencyTableTest, ASupplyThatMeasuresItsOwnEfficiencyGetsNoCurve) {
    writeCurve(QLatin1String(power::kFallbackCurve), 4, 80.0);
    for (const auto &row : power::kEnhancedModels) {
        EfficiencyTable fresh({dir.path()});
        fresh.loadEfficiencyTable(codeOf(row), ModelKind::Enhanced, record);
        EXPECT_EQ(fresh.profile().ratedWatts, static_cast<float>(row.ratedWatts));
        EXPECT_TRUE(fresh.profile().fanLighting);
        EXPECT_EQ(fresh.profile().customFanSpeed, row.code.back() == 'F');
        EXPECT_TRUE(fresh.CWTwattsValueList().empty());
    }
    table.loadEfficiencyTable(QStringLiteral("CVX1000D"), ModelKind::Unknown, record);
    EXPECT_EQ(table.revision(), 0);
}

TEST(EfficiencyTest, IsNeverImplausible) {
    const auto random = [] { return 4600U + 4599U; };
    struct Case {
        const char *text;
        const char *recorded;
    };
    for (const auto &[text, recorded] : {Case{"99.6", "95.99"}, Case{"39.9", "95.99"}, Case{"0", "95.99"},
                                         Case{"99.5", "99.50"}, Case{"40", "40.00"}, Case{"91.237", "91.24"},
                                         Case{"", "95.99"}, Case{"nan", "0.00"}, Case{"inf", "95.99"}}) {
        EXPECT_EQ(power::recordedEfficiency(QLatin1String(text), random), QLatin1String(recorded)) << text;
    }
    EXPECT_EQ(power::plausibleEfficiency(12.0, [] { return 0U; }), 50.0);
}

} // namespace
