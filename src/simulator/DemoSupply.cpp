#include "simulator/DemoSupply.h"

#include "simulator/DayScript.h"

#include <ctime>

namespace zpsg::simulator {
namespace {

struct LocalMoment {
    double secondOfDay;
    unsigned dayOfYear;
};

LocalMoment localMoment(std::chrono::system_clock::time_point now) {
    const auto whole = std::chrono::floor<std::chrono::seconds>(now);
    const std::time_t seconds = std::chrono::system_clock::to_time_t(whole);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &seconds);
#else
    localtime_r(&seconds, &local);
#endif
    const std::chrono::duration<double> fraction = now - whole;
    return {local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec + fraction.count(),
            static_cast<unsigned>(local.tm_yday) + 1U};
}

double loadAt(std::chrono::system_clock::time_point now, const SupplyModel &model) {
    const auto moment = localMoment(now);
    return scriptedLoad(moment.secondOfDay, model.ratedWatts(), moment.dayOfYear);
}

} // namespace

std::shared_ptr<SimulatedBus> makeDemoBus(const std::string &modelText, WallClock clock) {
    SupplyModel model(modelText);
    auto last = clock();
    // A PC that has been on for an hour: heat sink and fan have settled.
    model.advance(std::chrono::hours(1), loadAt(last, model));
    auto bus = SimulatedBus::create();
    bus->plug(std::move(model));
    bus->onReport([clock = std::move(clock), last](SupplyModel &supply) mutable {
        const auto now = clock();
        constexpr std::chrono::milliseconds kStep(200);
        if (now - last >= kStep || now < last) {
            supply.advance(now > last ? now - last : kStep, loadAt(now, supply));
            last = now;
        }
    });
    return bus;
}

} // namespace zpsg::simulator
