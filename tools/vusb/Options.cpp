#include "vusb/Options.h"

#include <charconv>
#include <system_error>

namespace zpsg::vusb {
namespace {

constexpr std::size_t kLongestText = 62;
constexpr double kMostWatts = 5000.0;

} // namespace

const char *usageText() {
    return R"(Usage: zpsg-vusb [--raw] [--loose] [--model TEXT] [--serial TEXT] [--load WATTS]

Plugs a simulated power supply into this machine as a USB HID device, for as long as it runs. Needs the right
to open /dev/uhid, which usually means root.

  --raw           the product that is read with get-report requests (232A), else the main one (2329)
  --loose         declares short reports, so that those of "fault short" pass kernels that drop them
  --model TEXT    what it reports as its model (default CVX-1000-D)
  --serial TEXT   what it reports as its serial number (default none)
  --load WATTS    a fixed load; without it the load follows a day of idling, work and play

Commands on standard input, one a line ("help" lists them); the end of the input, SIGINT or SIGTERM unplug it.
Exit status: 0, 1 when the supply could not be plugged in, 2 for wrong use.
)";
}

bool isModelText(const std::string &text) { return !text.empty() && text.size() <= kLongestText; }

std::optional<double> parseNumber(const std::string &text, double largest) {
    double value = 0.0;
    const char *end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, value);
    // Also false for what is not a number at all.
    const bool inRange = value >= 0.0 && value <= largest;
    return error == std::errc() && rest == end && inRange ? std::optional(value) : std::nullopt;
}

std::variant<Options, std::string> parseOptions(const std::vector<std::string> &arguments) {
    Options options;
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        if (*argument == "--help" || *argument == "-h") {
            options.help = true;
            return options;
        }
        if (*argument == "--raw") {
            options.product = Product::Raw;
            continue;
        }
        if (*argument == "--loose") {
            options.inputLength = InputLength::Loose;
            continue;
        }
        if (*argument != "--model" && *argument != "--serial" && *argument != "--load") {
            return "unknown argument '" + *argument + "'";
        }
        const std::string &name = *argument;
        if (++argument == arguments.end()) {
            return name + " needs a value";
        }
        if (name == "--load") {
            options.load = parseNumber(*argument, kMostWatts);
            if (!options.load) {
                return "--load takes 0 to 5000 watts, not '" + *argument + "'";
            }
        } else if (!isModelText(*argument)) {
            return name + " takes 1 to 62 bytes of text";
        } else {
            (name == "--model" ? options.model : options.serial) = *argument;
        }
    }
    return options;
}

} // namespace zpsg::vusb
