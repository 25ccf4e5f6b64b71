// Tries what runs on Windows only. Links without Qt, so that it can be made on Linux and run under wine
// there; on a Windows machine it leaves every setting as it was. Ends with 0 when all is as it should be on a
// machine without a supply. Asking the system to switch the PC off is not tried: it would.
#include "simulator/DayScript.h"
#include "simulator/LinearEncoding.h"
#include "simulator/SupplyModel.h"
#include "windows/SelfTest.h"

#include <array>
#include <iostream>
#include <string>

namespace zpsg::selftest {
namespace {

void checkSimulatedSupply() {
    simulator::SupplyModel model;
    model.advance(std::chrono::seconds(1), simulator::scriptedLoad(0, model.ratedWatts()));
    expect(model.quantities().outputWatts() > 0, "the simulated supply delivers");
    expect(simulator::encodeLinear(0) == 0, "zero is zero");
}

struct Group {
    const char *name;
    void (*check)();
};
constexpr std::array kGroups{
    Group{"texts", checkTexts},
    Group{"terminal", checkTerminal},
    Group{"autostart", checkAutostart},
    Group{"sensors", checkSensors},
    Group{"sound", checkSound},
    Group{"titles", checkTitles},
    Group{"messages", checkMessages},
    Group{"system menu", checkSystemMenu},
    Group{"devices", checkDevices},
    Group{"session notices", checkSessionNotices},
    Group{"exit requests", checkExitRequests},
    Group{"simulated supply", checkSimulatedSupply},
};

int run() {
    for (const Group &group : kGroups) {
        std::cout << group.name << std::endl;
        group.check();
    }
    std::cout << (allWell() ? "all well" : "not all well") << std::endl;
    return allWell() ? 0 : 1;
}

} // namespace
} // namespace zpsg::selftest

int main(int argc, char **argv) {
    const std::string role = argc > 1 ? argv[1] : "";
    if (role == "window") {
        return zpsg::selftest::showWindow();
    }
    if (role == "control-c" || role == "control-c-twice") {
        return zpsg::selftest::pressControlC(role == "control-c-twice");
    }
    return zpsg::selftest::run();
}
