#include "records/Archive.h"

#include "RecordFolder.h"
#include "records/CsvLog.h"
#include "support/FullDisk.h"

#include <QDir>
#include <QProcess>

using namespace zpsg;
using namespace zpsg::records;

namespace {

const QString kKey = QStringLiteral("key");
const QString kSerial = QStringLiteral("SN1");

class ArchiveTest : public ::testing::Test {
protected:
    std::optional<PackedLogs> pack(const QString &key = kKey, const QString &serial = kSerial) {
        why.clear();
        auto packed = packLogs(folder.path(), key, serial, why);
        EXPECT_NE(packed.has_value(), !why.isEmpty());
        return packed;
    }

    /// What another program finds in the archive: a line for each entry, in order of their names.
    [[nodiscard]] QString unpacked() const {
        QProcess python;
        python.start(QStringLiteral("python3"),
                     {QStringLiteral("-c"),
                      QStringLiteral("import binascii, sys, zipfile\n"
                                     "with zipfile.ZipFile(sys.argv[1]) as archive:\n"
                                     "    assert archive.testzip() is None\n"
                                     "    for name in sorted(archive.namelist()):\n"
                                     "        data = archive.read(name)\n"
                                     "        print(name, len(data), '%08x' % binascii.crc32(data))\n"),
                      folder.path("zpsapp.zip")});
        return python.waitForFinished() && python.exitCode() == 0
                   ? QString::fromUtf8(python.readAllStandardOutput())
                   : QString::fromUtf8(python.readAllStandardError());
    }

    [[nodiscard]] bool putLogs(const QByteArray &minutes, const QByteArray &days) const {
        return test::putContent(minuteLogPath(folder.path()), minutes) &&
               test::putContent(dayLogPath(folder.path()), days);
    }

    test::RecordFolder folder;
    QString why;
};

TEST_F(ArchiveTest, OtherProgramsFindTheLogsAndTheirSumsInIt) {
    struct Case {
        QByteArray minutes;
        QByteArray days;
        const char *crcMinutes; ///< known ones, where there are some
    };
    // 123456789 is the check value of the polynomial; the second begins with a zero.
    for (const auto &[minutes, days, crcMinutes] :
         {Case{"123456789", "x\n", "cbf43926"}, Case{"", QByteArray(70'000, 'y'), "00000000"},
          Case{QByteArray(1, '\0') + "\xFF\r\n", "", nullptr}}) {
        ASSERT_TRUE(putLogs(minutes, days));
        const auto packed = pack();
        ASSERT_TRUE(packed) << why.toStdString();
        EXPECT_EQ(packed->path, folder.path() + QStringLiteral("/zpsapp.zip"));
        EXPECT_EQ(unpacked(), QStringLiteral("zpsapp.csv %1 %2\nzpsappday.csv %3 %4\n")
                                  .arg(minutes.size())
                                  .arg(packed->crc32_code)
                                  .arg(days.size())
                                  .arg(packed->crc32_codeDay));
        EXPECT_EQ(test::contentOf(folder.path("save/zpsapp.csv")), minutes);
        EXPECT_EQ(test::contentOf(folder.path("save/zpsappday.csv")), days);
        if (crcMinutes != nullptr) {
            EXPECT_EQ(packed->crc32_code, QLatin1String(crcMinutes));
        }
    }
}

TEST_F(ArchiveTest, PacksNothingWithoutAccountOrSerialOrLogs) {
    EXPECT_FALSE(pack()) << "no logs";
    ASSERT_TRUE(test::putContent(dayLogPath(folder.path()), "days\n"));
    EXPECT_FALSE(pack()) << "no minute log";
    EXPECT_TRUE(why.contains(QStringLiteral("zpsapp.csv"))) << why.toStdString();
    ASSERT_TRUE(QDir(folder.path("save")).removeRecursively() && putLogs("minutes\n", "days\n"));
    ASSERT_TRUE(test::putContent(folder.path("zpsapp.zip"), "old"));
    EXPECT_FALSE(pack({}, kSerial));
    EXPECT_FALSE(pack(kKey, {}));
    EXPECT_FALSE(QFile::exists(folder.path("save")));
    EXPECT_EQ(test::contentOf(folder.path("zpsapp.zip")), "old");
}

TEST_F(ArchiveTest, AFullDiskLeavesNoHalfArchive) {
    ASSERT_TRUE(putLogs("minutes\n", "days\n"));
    ASSERT_TRUE(pack());
    const auto whole = static_cast<rlim_t>(test::contentOf(folder.path("zpsapp.zip")).size());
    for (const rlim_t bytes : {rlim_t{0}, rlim_t{5}, rlim_t{8}, whole / 2, whole - 1}) {
        const test::FullDisk disk(bytes);
        EXPECT_FALSE(pack()) << bytes;
        // The old archive is there until the logs are copied; after that there is a whole one or none.
        const QByteArray left = test::contentOf(folder.path("zpsapp.zip"));
        EXPECT_EQ(left.size(), bytes < 8 ? static_cast<int>(whole) : QByteArray("missing").size()) << bytes;
        EXPECT_LE(QDir(folder.path()).entryList({QStringLiteral("zpsapp.zip*")}, QDir::Files).size(), 1);
    }
    EXPECT_TRUE(pack());
}

} // namespace
