#include "simulator/DemoSupply.h"

#include "simulator/DayScript.h"

#include <QDateTime>

namespace zpsg::simulator {
namespace {

double loadAt(std::chrono::system_clock::time_point now, const SupplyModel &model) {
    const auto sinceEpoch = std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch());
    const auto local = QDateTime::fromMSecsSinceEpoch(sinceEpoch.count());
    return scriptedLoad(local.time().msecsSinceStartOfDay() / 1000.0, model.ratedWatts(),
                        static_cast<unsigned>(local.date().dayOfYear()));
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
