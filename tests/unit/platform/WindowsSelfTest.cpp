// Calls every platform service once, so that linking it shows what is missing; on a Windows machine it can be
// run, touches no setting, and ends with 0 when all is as it should be on a machine without a supply.
#include "platform/AudioCapture.h"
#include "platform/Autostart.h"
#include "platform/DeviceAccess.h"
#include "platform/DeviceWatch.h"
#include "platform/ExitRequest.h"
#include "platform/PcSensors.h"
#include "platform/RawHid.h"
#include "platform/SessionWatch.h"
#include "platform/SystemMenu.h"
#include "platform/WindowRendezvous.h"
#include "simulator/DayScript.h"
#include "simulator/LinearEncoding.h"
#include "simulator/SupplyModel.h"

#include <chrono>
#include <future>
#include <iostream>
#include <span>
#include <utility>
#include <vector>

using namespace zpsg::platform;

namespace {

int failures = 0;

void expect(bool condition, const char *what) {
    if (!condition) {
        std::cerr << "failed: " << what << '\n';
        ++failures;
    }
}

void titles() {
    constexpr const char *kTitle = "zpsg self-test";
    auto claim = TitleClaim::tryTake(kTitle);
    expect(claim != nullptr, "a free title can be taken");
    expect(TitleClaim::tryTake(kTitle) == nullptr, "a taken one can't");
    expect(windowExists(kTitle), "its holder counts as there");
    expect(sendToWindow(kTitle, {kShowRequest, 0, 1}, std::chrono::milliseconds(50)) == Delivery::NoAnswer,
           "a holder without a window doesn't answer");
    claim.reset();
    expect(sendToWindow(kTitle, {kShowRequest, 0, 1}) == Delivery::NoWindow, "the title is free again");
    expect(!trimSystemMenu(kTitle), "no window, no system menu");
}

void devices() {
    expect(RawHid::open(0x264A, 0xFFFF) == nullptr, "no such product");
    expect(DeviceWatch::start([](const WindowMessage &) { return true; }) != nullptr, "device notices");
    expect(deviceAccess("x") == DeviceAccess::Allowed && deviceAccessRemedy("x").empty(),
           "no permissions here");
}

void notices() {
    expect(SessionWatch::start([](SessionEvent) {}) != nullptr, "notice of lock and sleep");
    std::promise<AudioState> told;
    const auto capture = AudioCapture::start({[](std::span<const float>) {},
                                              [&, first = true](AudioState state) mutable {
                                                  if (std::exchange(first, false)) {
                                                      told.set_value(state);
                                                  }
                                              }});
    expect(told.get_future().wait_for(std::chrono::seconds(10)) == std::future_status::ready,
           "sound is there or not");
}

void settings() {
    std::string error;
    if (!autostartEnabled()) {
        expect(setAutostart(Autostart::Off, "", error), "nothing to remove");
    }
    onExitRequest([] {});
}

void sensors() {
    expect(pcSensorAccess() == PcSensorAccess::Memory && openPcChips() == nullptr,
           "chips are left to HWiNFO");
    expect(!processorName().empty(), "the processor has a name");
    const auto memory = openPcSensorMemory();
    std::vector<std::byte> block;
    constexpr std::size_t kHeader = 44;
    expect(memory->copy(block) != MemoryState::Copied || block.size() > kHeader,
           "HWiNFO's block has a header");
    memory->close();
}

void simulatedSupply() {
    zpsg::simulator::SupplyModel model;
    model.advance(std::chrono::seconds(1), zpsg::simulator::scriptedLoad(0, model.ratedWatts()));
    expect(model.quantities().outputWatts() > 0, "the simulated supply delivers");
    expect(zpsg::simulator::encodeLinear(0) == 0, "zero is zero");
}

} // namespace

int main() {
    titles();
    devices();
    notices();
    settings();
    sensors();
    simulatedSupply();
    return failures == 0 ? 0 : 1;
}
