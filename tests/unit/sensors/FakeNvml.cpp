// Stands for libnvidia-ml.so.1.
#include "unit/sensors/FakeNvml.h"

#include <chrono>
#include <cstring>
#include <thread>

namespace {

zpsg::sensors::FakeNvml state;

int answer() {
    ++state.asked;
    std::this_thread::sleep_for(std::chrono::milliseconds(state.milliseconds));
    return state.answerResult;
}

} // namespace

extern "C" {

zpsg::sensors::FakeNvml *zpsgFakeNvml() { return &state; }

int nvmlInit_v2() {
    ++state.inits;
    return state.initResult;
}

int nvmlShutdown() {
    ++state.shutdowns;
    return 0;
}

int nvmlDeviceGetCount_v2(unsigned *count) {
    *count = state.count;
    return 0;
}

int nvmlDeviceGetHandleByIndex_v2(unsigned index, void **device) {
    *device = &state.cards.at(index);
    return 0;
}

int nvmlDeviceGetName(void *device, char *text, unsigned length) {
    std::strncpy(text, static_cast<zpsg::sensors::FakeNvml::Card *>(device)->name, length);
    return 0;
}

int nvmlDeviceGetTemperature(void *device, unsigned sensor, unsigned *celsius) {
    *celsius = static_cast<zpsg::sensors::FakeNvml::Card *>(device)->celsius;
    return sensor == 0 ? answer() : 2; // there is no other
}

int nvmlDeviceGetPowerUsage(void *device, unsigned *milliwatts) {
    *milliwatts = static_cast<zpsg::sensors::FakeNvml::Card *>(device)->milliwatts;
    return answer();
}
}
