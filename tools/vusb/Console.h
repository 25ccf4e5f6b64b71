// What a person at zpsg-vusb can do to the supply, and gets told of it.
#pragma once

#include "vusb/Options.h"
#include "vusb/UhidSupply.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>

namespace zpsg::vusb {

/// Not thread-safe; the supply and the streams must outlive it.
class Console {
public:
    /// Replies go to `out`, what went wrong to `err`.
    Console(UhidSupply &supply, const Options &options, std::ostream &out, std::ostream &err);

    /// Carries out one line. False when it asks to end.
    bool execute(const std::string &line);

    /// Lets `elapsed` pass for the supply, and tells when its fan mode or its LEDs have changed.
    void tick(std::chrono::duration<double> elapsed);

    /// Watts now, as set or by the local time of day.
    double load();

private:
    struct Command;
    static const std::array<Command, 9> kCommands;

    // One each: what follows the command's word is `rest`; false when it makes no sense.
    bool setLoad(const std::string &rest);
    bool followDay(const std::string &rest);
    bool setMains(const std::string &rest);
    bool setFault(const std::string &rest);
    bool unplug(const std::string &rest);
    bool plug(const std::string &rest);
    bool setModel(const std::string &rest);
    bool status(const std::string &rest);
    bool help(const std::string &rest);

    void plugIn(Product product);

    UhidSupply &supply_;
    std::ostream &out_;
    std::ostream &err_;
    std::string serial_;
    std::optional<double> load_;
    Product product_;
    InputLength inputLength_;
    simulator::FanMode fanMode_;
    int fanPercent_;
    std::array<std::uint8_t, 62> ledFrame_;
};

} // namespace zpsg::vusb
