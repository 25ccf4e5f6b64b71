#include "app/Paths.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace zpsg::app;

namespace {

class PathsTest : public ::testing::Test {
protected:
    PathsTest() {
        qputenv("XDG_DATA_HOME", dir.filePath(QStringLiteral("home")).toUtf8());
        executable = dir.filePath(QStringLiteral("app/bin/zpsg"));
        QDir(dir.path()).mkpath(QStringLiteral("app/bin"));
    }
    void TearDown() override { qunsetenv("XDG_DATA_HOME"); }

    QTemporaryDir dir;
    QString executable;
    QString error;
};

TEST_F(PathsTest, PortableUseNeedsTheShippedFoldersBesideTheProgram) {
    const auto installed = findPaths(executable, std::nullopt, false, error);
    ASSERT_TRUE(installed);
    EXPECT_EQ(installed->data, dir.filePath(QStringLiteral("home/zpsg")));
    EXPECT_EQ(installed->resources, dir.filePath(QStringLiteral("app/share/zpsg")));
    QDir(dir.path()).mkpath(QStringLiteral("app/bin/Language"));
    const auto portable = findPaths(executable, std::nullopt, false, error);
    ASSERT_TRUE(portable);
    EXPECT_EQ(portable->data, dir.filePath(QStringLiteral("app/bin")));
    EXPECT_EQ(portable->resources, portable->data);
    EXPECT_EQ(findPaths(executable, std::nullopt, true, error)->data,
              dir.filePath(QStringLiteral("app/bin/demo")));
    QFile list(dir.filePath(QStringLiteral("app/bin/installed.ini")));
    ASSERT_TRUE(list.open(QIODevice::WriteOnly));
    const auto bySetup = findPaths(executable, std::nullopt, false, error);
    ASSERT_TRUE(bySetup);
    EXPECT_EQ(bySetup->data, dir.filePath(QStringLiteral("home/zpsg")));
    EXPECT_EQ(bySetup->resources, portable->resources);
}

TEST_F(PathsTest, AGivenDirectoryIsMadeOrRefusedInPlainWords) {
    const QString fresh = dir.filePath(QStringLiteral("deep/er"));
    ASSERT_TRUE(findPaths(executable, fresh, false, error));
    EXPECT_TRUE(QDir(fresh).exists());
    EXPECT_TRUE(QDir(fresh).isEmpty()); // no probe is left behind
    const QString file = dir.filePath(QStringLiteral("file"));
    QFile plain(file);
    ASSERT_TRUE(plain.open(QIODevice::WriteOnly));
    for (const QString &bad : {file, file + QStringLiteral("/below"), QStringLiteral("/proc/1/x"),
                               QStringLiteral("/sys/kernel")}) {
        error.clear();
        EXPECT_FALSE(findPaths(executable, bad, false, error)) << bad.toStdString();
        EXPECT_TRUE(error.contains(bad)) << error.toStdString();
    }
}

} // namespace
