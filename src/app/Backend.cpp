#include "app/Backend.h"

#include "psu/HidApiBackend.h"
#include "simulator/DemoSupply.h"

namespace zpsg::app {

std::unique_ptr<psu::HidBackend> makeBackend(const CommandLine &line) {
    if (!line.demo) {
        return psu::makeHidApiBackend();
    }
    const std::string model = line.demoModel.isEmpty() ? simulator::kDemoModel : line.demoModel.toStdString();
    return simulator::makeDemoBus(model)->backend();
}

} // namespace zpsg::app
