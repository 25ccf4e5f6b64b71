#include "PlatformFixture.h"

#include "platform/DeviceAccess.h"
#include "platform/linux/DeviceRemedy.h"

#include <array>
#include <fstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zpsg::platform {
namespace {

constexpr uid_t kNobody = 65534;

/// What an ordinary user gets, also when the tests run as root.
DeviceAccess asOrdinaryUser(const std::string &path) {
    const pid_t child = fork();
    if (child == 0) {
        if (geteuid() == 0 && setuid(kNobody) != 0) {
            _exit(99);
        }
        _exit(static_cast<int>(deviceAccess(path)));
    }
    int status = 0;
    waitpid(child, &status, 0);
    return static_cast<DeviceAccess>(WEXITSTATUS(status));
}

class DeviceAccessTest : public PlatformTest {};

TEST_F(DeviceAccessTest, TellsDeniedFromGone) {
    const std::string node = folder() / "hidraw0";
    std::ofstream(node) << "";
    EXPECT_EQ(deviceAccess(node), DeviceAccess::Allowed);
    EXPECT_EQ(deviceAccess(node + "x"), DeviceAccess::Missing);
    EXPECT_EQ(deviceAccess(node + "/x"), DeviceAccess::Missing);

    ASSERT_EQ(chmod(folder().c_str(), 0755), 0);
    ASSERT_EQ(chmod(node.c_str(), 0444), 0);
    EXPECT_EQ(asOrdinaryUser(node), DeviceAccess::Denied) << "reading alone is not enough";
    ASSERT_EQ(chmod(node.c_str(), 0), 0);
    EXPECT_EQ(asOrdinaryUser(node), DeviceAccess::Denied);
}

TEST_F(DeviceAccessTest, TheRemedyIsTheRuleAndThenTheGroup) {
    const std::array<std::string, 2> folders{folder() / "none", folder()};
    const auto remedy = [&folders](const char *user, const char *group) {
        return deviceAccessRemedy("/opt/pat's zpsg", folders, user, group);
    };
    EXPECT_EQ(
        remedy("pat", "plugdev").find(R"(sudo cp '/opt/pat'\''s zpsg/71-zpsg.rules' /etc/udev/rules.d/ && )"),
        0U)
        << remedy("pat", "plugdev");
    std::ofstream(folder() / "71-zpsg.rules") << "";
    EXPECT_NE(remedy("pat", "plugdev").find("usermod -aG plugdev 'pat'"), std::string::npos);
    for (const auto &without : {remedy("", "plugdev"), remedy("pat", "")}) {
        EXPECT_EQ(without, "sudo udevadm trigger --subsystem-match=hidraw");
    }
}

} // namespace
} // namespace zpsg::platform
