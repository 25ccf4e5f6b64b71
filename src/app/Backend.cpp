#include "app/Backend.h"

#include "psu/HidApiBackend.h"
#include "simulator/DemoSupply.h"

namespace zpsg::app {

std::shared_ptr<simulator::FastClock> makeFastClock(const CommandLine &line) {
    constexpr int kDays = 3;
    return line.fastClock > 0
               ? std::make_shared<simulator::FastClock>(QDate::currentDate().addDays(-kDays).startOfDay())
               : nullptr;
}

std::unique_ptr<psu::HidBackend> makeBackend(const CommandLine &line,
                                             const std::shared_ptr<simulator::FastClock> &clock) {
    if (!line.demo) {
        return psu::makeHidApiBackend();
    }
    const std::string model = line.demoModel.isEmpty() ? simulator::kDemoModel : line.demoModel.toStdString();
    const auto bus = clock ? simulator::makeDemoBus(model, [clock] { return clock->timePoint(); })
                           : simulator::makeDemoBus(model);
    return bus->backend();
}

} // namespace zpsg::app
