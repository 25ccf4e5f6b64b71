// What zpsg-vusb is asked for on its command line.
#pragma once

#include "vusb/UhidSupply.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace zpsg::vusb {

struct Options {
    Product product = Product::Main;
    InputLength inputLength = InputLength::Exact;
    std::string model = "CVX-1000-D";
    std::string serial;
    /// Watts; without it the load follows the day.
    std::optional<double> load;
    bool help = false;
};

/// Either the options or what is wrong with the arguments, one line. `arguments` is without the program's
/// name.
std::variant<Options, std::string> parseOptions(const std::vector<std::string> &arguments);

/// The text for --help.
const char *usageText();

/// What a supply can report as its model: 1 to 62 bytes.
bool isModelText(const std::string &text);

/// The whole of `text` as a finite number of at least zero and at most `largest`.
std::optional<double> parseNumber(const std::string &text, double largest);

} // namespace zpsg::vusb
