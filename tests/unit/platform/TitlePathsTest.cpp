#include "PlatformFixture.h"

#include "platform/linux/TitlePaths.h"

#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace zpsg::platform {
namespace {

namespace fs = std::filesystem;

class TitlePathsTest : public PlatformTest {};

TEST_F(TitlePathsTest, TitlesBecomeDistinctHarmlessFileNames) {
    const std::vector<std::pair<const char *, const char *>> cases = {
        {"CorvaneZPSPOWER", "CorvaneZPSPOWER"},
        {"CV RGB Plus", "CV%20RGB%20Plus"},
        {"CV%20RGB%20Plus", "CV%2520RGB%2520Plus"},
        {"../../etc/x", "%2E%2E%2F%2E%2E%2Fetc%2Fx"},
        {"\xC3\xA4", "%C3%A4"},
    };
    for (const auto &[title, name] : cases) {
        EXPECT_EQ(titleFileName(title), name);
    }
}

TEST_F(TitlePathsTest, OnlyATrustworthyRuntimeFolderIsUsed) {
    const auto isIn = [](const fs::path &place) {
        const auto paths = titlePaths("x");
        return paths && fs::path(paths->socket).parent_path() == place;
    };
    EXPECT_TRUE(isIn(folder()));

    const auto refused = [&](const fs::path &place) {
        qputenv("XDG_RUNTIME_DIR", place.c_str());
        return !isIn(place);
    };
    std::error_code ignored;
    const fs::path file = folder() / "file";
    ASSERT_NE(std::fopen(file.c_str(), "w"), nullptr);
    const fs::path open = folder() / "open";
    fs::create_directory(open);
    ASSERT_EQ(chmod(open.c_str(), 0777), 0);
    const fs::path deep = folder() / std::string(100, 'd');
    fs::create_directory(deep);
    EXPECT_TRUE(refused("")) << "unset";
    EXPECT_TRUE(refused("relative"));
    EXPECT_TRUE(refused(folder() / "missing"));
    EXPECT_TRUE(refused(file));
    EXPECT_TRUE(refused(open)) << "everybody may write there";
    EXPECT_TRUE(refused(deep)) << "the socket's path would be cut off";
    if (geteuid() == 0) {
        const fs::path foreign = folder() / "foreign";
        fs::create_directory(foreign);
        ASSERT_EQ(chown(foreign.c_str(), 12345, 12345), 0);
        EXPECT_TRUE(refused(foreign));
    }
    EXPECT_FALSE(titlePaths(std::string(120, 't')));
}

TEST_F(TitlePathsTest, AFolderInAPublicPlaceMustBeOursAlone) {
    const fs::path place = folder() / "private";
    EXPECT_TRUE(ensurePrivateDirectory(place)) << "made";
    struct stat info {};
    ASSERT_EQ(lstat(place.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & ALLPERMS, 0700U);
    EXPECT_TRUE(ensurePrivateDirectory(place)) << "found";

    const fs::path link = folder() / "link";
    fs::create_directory_symlink(place, link);
    EXPECT_FALSE(ensurePrivateDirectory(link));

    ASSERT_EQ(chmod(place.c_str(), 0750), 0);
    EXPECT_FALSE(ensurePrivateDirectory(place)) << "others may look in";
    ASSERT_EQ(chmod(place.c_str(), 0700), 0);
    if (geteuid() == 0) {
        ASSERT_EQ(chown(place.c_str(), 12345, 12345), 0);
        EXPECT_FALSE(ensurePrivateDirectory(place)) << "somebody else made it first";
    }

    const fs::path file = folder() / "file";
    fs::create_symlink("nowhere", file);
    EXPECT_FALSE(ensurePrivateDirectory(file)) << "a link to nowhere";
}

} // namespace
} // namespace zpsg::platform
