#include "storage/IniFile.h"

#include "support/FullDisk.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using zpsg::storage::changeIniFile;

namespace {

class IniFileTest : public ::testing::Test {
protected:
    [[nodiscard]] QByteArray content() const {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }

    [[nodiscard]] bool put(const QString &key, const QVariant &value) const {
        return changeIniFile(path, [&](QSettings &file) {
            file.setIniCodec("UTF-8");
            file.setValue(key, value);
            return true;
        });
    }

    [[nodiscard]] QVariant get(const QString &key) const {
        return QSettings(path, QSettings::IniFormat).value(key);
    }

    QTemporaryDir dir;
    QString path = dir.filePath(QStringLiteral("a file.ini"));
};

// Long enough that the lock beside the file still fits when the file itself does not.
TEST_F(IniFileTest, AFullDiskLeavesTheOldFileWhole) {
    ASSERT_TRUE(put(QStringLiteral("Group/first"), QString(150, QLatin1Char('x'))));
    ASSERT_TRUE(put(QStringLiteral("Group/list"),
                    QStringList{QStringLiteral("a"), QStringLiteral("b, \"\u00C4\" =]")}));
    const QByteArray before = content();
    const int after = before.size() + 16; // "\nsecond=12345678"
    for (int bytes = 0; bytes < after; ++bytes) {
        const zpsg::test::FullDisk disk(static_cast<rlim_t>(bytes));
        ASSERT_FALSE(put(QStringLiteral("Group/second"), 12345678)) << bytes;
        ASSERT_EQ(content(), before) << bytes;
    }
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).size(), 1) << "nothing is left lying about";
    EXPECT_TRUE(put(QStringLiteral("Group/second"), 12345678));
    EXPECT_EQ(get(QStringLiteral("Group/second")).toInt(), 12345678);
    EXPECT_EQ(get(QStringLiteral("Group/list")).toStringList().size(), 2);
}

TEST_F(IniFileTest, AChangeIsSeenHoweverSoonItIsRead) {
    for (int i = 10; i < 99; ++i) {
        ASSERT_TRUE(put(QStringLiteral("number"), i));
        ASSERT_EQ(get(QStringLiteral("number")).toInt(), i);
    }
}

TEST_F(IniFileTest, CleansUpAfterARunThatWasKilledAndSaysWhereItCannotWrite) {
    QFile leftOver(path + QStringLiteral(".new"));
    ASSERT_TRUE(leftOver.open(QIODevice::WriteOnly));
    leftOver.write("[Group]\nhalf=");
    leftOver.close();
    ASSERT_TRUE(put(QStringLiteral("Group/whole"), 1));
    EXPECT_FALSE(get(QStringLiteral("Group/half")).isValid());
    EXPECT_FALSE(changeIniFile(path + QStringLiteral("/below.ini"), [](QSettings &file) {
        file.setValue(QStringLiteral("a"), 1);
        return true;
    }));
}

} // namespace
