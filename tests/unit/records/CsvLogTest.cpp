#include "records/CsvLog.h"

#include "RecordFolder.h"
#include "support/FullDisk.h"

using namespace zpsg;
using namespace zpsg::records;

namespace {

const QDateTime kNight{QDate(2026, 3, 1), QTime(23, 59)};

// Other programs find their columns by these names and places.
const QByteArray kMinuteHeader(
    "DataTime,SN,12V_V,12V_I,5V_V,5V_I,3.3V_V,3.3V_I,Watts,Efficiency,KW_H,Cost,FAN Speed,Temp.,"
    "CPU_V,CPU_I,CPU_W,CPU_T,VGA_V,VGA_I,VGA_W,VGA_T\n");
const QByteArray
    kDayHeader("DataTime,SN,12V_V,12V_I,5V_V,5V_I,3.3V_V,3.3V_I,Watts,KW_H,Efficiency,Cost,FAN Speed,Temp.,"
               "CPU_V,CPU_I,CPU_W,CPU_T,VGA_V,VGA_I,VGA_W,VGA_T,count_time\n");

class CsvLogTest : public ::testing::Test {
protected:
    [[nodiscard]] QByteArray minutes() const { return test::contentOf(folder.path("zpsapp.csv")); }
    [[nodiscard]] QByteArray days() const { return test::contentOf(folder.path("zpsappday.csv")); }

    test::RecordFolder folder;
};

TEST_F(CsvLogTest, WritesTheRowsOfOneFileBelowTheColumns) {
    const QStringList rows{test::minute(kNight, 60.0F), test::minute(kNight.addSecs(60), 120.0F),
                           test::minute(kNight.addSecs(120), 180.0F)};
    folder.put(3, rows, true);
    folder.put(4, {}, true);
    ASSERT_TRUE(exportMinuteLog(folder.path(), QStringLiteral("3")));
    EXPECT_EQ(minutes(), kMinuteHeader + rows.join(QLatin1Char('\n')).toUtf8() + '\n');
    ASSERT_TRUE(exportDayLog(folder.path(), QStringLiteral("3")));
    const auto lines = days().split('\n');
    ASSERT_EQ(lines.size(), 4);
    EXPECT_EQ(lines[0] + '\n', kDayHeader);
    EXPECT_TRUE(lines[1].startsWith("01.03.2026,SN1,") && lines[1].endsWith(",1"));
    EXPECT_TRUE(lines[2].contains(",300.000000,0.005000,180.000000,0,") && lines[2].endsWith(",2"));
    EXPECT_TRUE(lines[3].isEmpty());

    EXPECT_TRUE(exportMinuteLog(folder.path(), QStringLiteral("4")));
    EXPECT_TRUE(exportDayLog(folder.path(), QStringLiteral("4")));
    EXPECT_EQ(minutes(), kMinuteHeader) << "a file without rows";
    EXPECT_EQ(days(), kDayHeader);
}

TEST_F(CsvLogTest, AFileThatIsNotThereLeavesTheColumnsAlone) {
    folder.put(1, {test::minute(kNight)}, true);
    for (const char *number : {"2", "", "0", "-1", "01", "1x", "../Rec1", "99999999999"}) {
        ASSERT_TRUE(exportMinuteLog(folder.path(), QStringLiteral("1")));
        EXPECT_FALSE(exportMinuteLog(folder.path(), QLatin1String(number))) << number;
        EXPECT_FALSE(exportDayLog(folder.path(), QLatin1String(number))) << number;
        EXPECT_EQ(minutes(), kMinuteHeader) << number;
        EXPECT_EQ(days(), kDayHeader) << number;
    }
}

TEST_F(CsvLogTest, AFullDiskLeavesTheOldLog) {
    folder.put(1, {test::minute(kNight)});
    folder.put(2, {test::minute(kNight), test::minute(kNight.addSecs(60))});
    ASSERT_TRUE(exportMinuteLog(folder.path(), QStringLiteral("1")));
    const QByteArray before = minutes();
    const auto whole = static_cast<rlim_t>(kMinuteHeader.size() + 2 * test::minute(kNight).size() + 2);
    for (const rlim_t bytes : {rlim_t{0}, rlim_t{1}, whole / 2, whole - 1}) {
        const test::FullDisk disk(bytes);
        EXPECT_FALSE(exportMinuteLog(folder.path(), QStringLiteral("2"))) << bytes;
        EXPECT_EQ(minutes(), before) << bytes;
    }
    const test::FullDisk disk(whole);
    EXPECT_TRUE(exportMinuteLog(folder.path(), QStringLiteral("2")));
}

} // namespace
