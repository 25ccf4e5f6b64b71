#include "vusb/Console.h"

#include "simulator/DayScript.h"
#include "vusb/Descriptions.h"

#include <ctime>
#include <iomanip>
#include <ostream>
#include <sstream>

namespace zpsg::vusb {

using simulator::Fault;
using simulator::SupplyModel;

namespace {

constexpr double kMostWatts = 5000.0;
constexpr double kMostVolts = 300.0;
constexpr double kLongestDelay = 60000.0; // milliseconds
constexpr double kReportSize = 64.0;

struct LocalTime {
    double secondOfDay;
    unsigned dayOfYear;
};

LocalTime localTime() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {(local.tm_hour * 60.0 + local.tm_min) * 60.0 + local.tm_sec,
            static_cast<unsigned>(local.tm_yday) + 1U};
}

} // namespace

struct Console::Command {
    const char *word;
    const char *arguments;
    const char *effect;
    bool (Console::*action)(const std::string &rest);
};

const std::array<Console::Command, 9> Console::kCommands{{
    {"load", "WATTS", "a fixed load", &Console::setLoad},
    {"day", "", "a load that follows the time of day", &Console::followDay},
    {"mains", "VOLTS", "the input voltage", &Console::setMains},
    {"fault", "none|silent|slow|short|wrong-echo|garbage [N]",
     "how answers are wrong; N: milliseconds of slow, bytes of short", &Console::setFault},
    {"unplug", "", "pull the plug", &Console::unplug},
    {"plug", "[main|raw]", "plug in, as the same product or another", &Console::plug},
    {"model", "TEXT", "become another model", &Console::setModel},
    {"status", "", "what the supply is doing", &Console::status},
    {"help", "", "this list; \"quit\" ends the program", &Console::help},
}};

Console::Console(UhidSupply &supply, const Options &options, std::ostream &out, std::ostream &err)
    : supply_(supply)
    , out_(out)
    , err_(err)
    , serial_(options.serial)
    , load_(options.load)
    , product_(options.product)
    , inputLength_(options.inputLength) {
    supply_.withModel([this](const SupplyModel &model) {
        fanMode_ = model.fanMode();
        fanPercent_ = model.customFanPercent();
        ledFrame_ = model.ledFrame();
    });
}

bool Console::execute(const std::string &line) {
    std::istringstream words(line);
    std::string word, rest;
    words >> word;
    std::getline(words >> std::ws, rest);
    rest.erase(rest.find_last_not_of(" \t\r") + 1);
    if (word.empty()) {
        return true;
    }
    if (word == "quit") {
        return false;
    }
    for (const Command &command : kCommands) {
        if (word == command.word) {
            if (!(this->*command.action)(rest)) {
                err_ << "usage: " << command.word << ' ' << command.arguments << std::endl;
            }
            return true;
        }
    }
    err_ << "unknown command '" << word << "'; try help" << std::endl;
    return true;
}

bool Console::setLoad(const std::string &rest) {
    const auto watts = parseNumber(rest, kMostWatts);
    if (!watts) {
        return false;
    }
    load_ = watts;
    return true;
}

bool Console::followDay(const std::string &rest) {
    load_.reset();
    return rest.empty();
}

bool Console::setMains(const std::string &rest) {
    const auto volts = parseNumber(rest, kMostVolts);
    if (!volts) {
        return false;
    }
    supply_.withModel([&](SupplyModel &model) { model.setMains(*volts); });
    return true;
}

bool Console::setFault(const std::string &rest) {
    std::istringstream words(rest);
    std::string name, number, more;
    words >> name >> number >> more;
    const auto fault = faultNamed(name);
    const bool takesNumber = fault == Fault::Slow || fault == Fault::Short;
    const auto value = parseNumber(number, fault == Fault::Slow ? kLongestDelay : kReportSize);
    if (!fault || !more.empty() || (!number.empty() && !(takesNumber && value))) {
        return false;
    }
    supply_.withModel([&](SupplyModel &model) {
        model.setFault(*fault);
        if (value && *fault == Fault::Slow) {
            model.setFaultDelay(std::chrono::milliseconds(static_cast<int>(*value)));
        } else if (value && *fault == Fault::Short) {
            model.setFaultLength(static_cast<std::size_t>(*value));
        }
    });
    return true;
}

bool Console::unplug(const std::string &rest) {
    if (!rest.empty()) {
        return false;
    }
    supply_.unplug();
    out_ << "unplugged" << std::endl;
    return true;
}

bool Console::plug(const std::string &rest) {
    if (!rest.empty() && rest != "main" && rest != "raw") {
        return false;
    }
    if (!rest.empty()) {
        product_ = rest == "raw" ? Product::Raw : Product::Main;
    }
    plugIn(product_);
    return true;
}

void Console::plugIn(Product product) {
    if (const auto error = supply_.plug(product, inputLength_)) {
        err_ << *error << std::endl;
    } else {
        out_ << "plugged in as " << described(product) << std::endl;
    }
}

bool Console::setModel(const std::string &rest) {
    if (!isModelText(rest)) {
        return false;
    }
    // A supply does not change its model while it is plugged in: this is another one.
    const auto plugged = supply_.plugged();
    supply_.unplug();
    supply_.withModel([&](SupplyModel &model) {
        const double mains = model.quantities().acVolts;
        model = SupplyModel(rest, serial_);
        model.setMains(mains);
    });
    if (plugged) {
        plugIn(*plugged);
    }
    return true;
}

bool Console::status(const std::string &rest) {
    if (!rest.empty()) {
        return false;
    }
    const auto plugged = supply_.plugged();
    out_ << (plugged ? "plugged in as " + described(*plugged) : "unplugged")
         << (supply_.inUse() ? ", in use\n" : ", not in use\n");
    const double watts = load();
    out_ << std::fixed << std::setprecision(0) << "load " << watts << " W"
         << (load_ ? std::string()
                   : std::string(", by the time of day: ") +
                         simulator::scriptedActivity(localTime().secondOfDay))
         << '\n';
    supply_.withModel([this](const SupplyModel &model) { describe(out_, model); });
    out_ << std::flush;
    return true;
}

bool Console::help(const std::string &rest) {
    for (const Command &command : kCommands) {
        const std::string use = std::string(command.word) + ' ' + command.arguments;
        out_ << "  " << std::left << std::setw(14) << use << "  " << command.effect << '\n';
    }
    out_ << std::flush;
    return rest.empty();
}

double Console::load() {
    if (load_) {
        return *load_;
    }
    const auto [secondOfDay, dayOfYear] = localTime();
    double rated = 0.0;
    supply_.withModel([&](const SupplyModel &model) { rated = model.ratedWatts(); });
    return simulator::scriptedLoad(secondOfDay, rated, dayOfYear);
}

void Console::tick(std::chrono::duration<double> elapsed) {
    const double watts = load();
    supply_.withModel([&](SupplyModel &model) {
        model.advance(elapsed, watts);
        if (model.fanMode() != fanMode_ || model.customFanPercent() != fanPercent_) {
            fanMode_ = model.fanMode();
            fanPercent_ = model.customFanPercent();
            out_ << "fan: " << describedFan(model) << std::endl;
        }
        if (model.ledFrame() != ledFrame_) {
            // Streamed frames change many times a second: only the first is worth a line.
            const bool streaming = isStreamed(model.ledFrame()) && isStreamed(ledFrame_);
            ledFrame_ = model.ledFrame();
            if (!streaming) {
                out_ << "LEDs: " << describedLeds(ledFrame_) << std::endl;
            }
        }
    });
}

} // namespace zpsg::vusb
