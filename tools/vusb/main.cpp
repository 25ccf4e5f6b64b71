// zpsg-vusb: a simulated power supply on this machine's own USB HID bus.
#include "vusb/Console.h"
#include "vusb/Descriptions.h"
#include "vusb/Descriptor.h"
#include "vusb/Options.h"
#include "vusb/UhidSupply.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <exception>
#include <iostream>
#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

using namespace zpsg::vusb;
using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kTick{250};

/// SIGINT and SIGTERM as a descriptor. To be called before any thread starts, so that they all block the
/// signals.
int endSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    return signalfd(-1, &signals, SFD_CLOEXEC);
}

/// Carries out the whole lines in `input` and takes them off. False when one asks to end.
bool executeLines(Console &console, std::string &input) {
    for (auto end = input.find('\n'); end != std::string::npos; end = input.find('\n')) {
        const std::string line = input.substr(0, end);
        input.erase(0, end + 1);
        if (!console.execute(line)) {
            return false;
        }
    }
    return true;
}

/// Until the end of the input, a signal or "quit".
void run(Console &console, int signals) {
    std::string input;
    auto ticked = Clock::now();
    while (true) {
        std::array<pollfd, 2> waits{pollfd{STDIN_FILENO, POLLIN, 0}, pollfd{signals, POLLIN, 0}};
        const auto wait = std::chrono::ceil<std::chrono::milliseconds>(ticked + kTick - Clock::now());
        if (poll(waits.data(), waits.size(), std::max(0, static_cast<int>(wait.count()))) < 0 &&
            errno != EINTR) {
            return;
        }
        if (const auto now = Clock::now(); now >= ticked + kTick) {
            console.tick(now - ticked);
            ticked = now;
        }
        if (waits[1].revents != 0) {
            return;
        }
        if (waits[0].revents != 0) {
            std::array<char, 4096> buffer{};
            const ssize_t count = read(STDIN_FILENO, buffer.data(), buffer.size());
            if (count <= 0) {
                console.execute(input);
                return;
            }
            input.append(buffer.data(), static_cast<std::size_t>(count));
            if (!executeLines(console, input)) {
                return;
            }
        }
    }
}

} // namespace

int main(int argc, char **argv) try {
    const auto parsed = parseOptions({argv + 1, argv + argc});
    if (const auto *error = std::get_if<std::string>(&parsed)) {
        std::cerr << "zpsg-vusb: " << *error << "; see zpsg-vusb --help\n";
        return 2;
    }
    const auto &options = std::get<Options>(parsed);
    if (options.help) {
        std::cout << usageText();
        return 0;
    }
    const Descriptor signals(endSignals());
    UhidSupply supply(zpsg::simulator::SupplyModel(options.model, options.serial));
    // Before the plug: what a program does right after it is a change already.
    Console console(supply, options, std::cout, std::cerr);
    if (const auto error = supply.plug(options.product, options.inputLength)) {
        std::cerr << "zpsg-vusb: " << *error << '\n';
        return 1;
    }
    std::cout << "plugged in as " << described(options.product) << ": " << options.model << std::endl;
    run(console, signals.get());
    std::cout << "unplugged" << std::endl;
    return 0;
} catch (const std::exception &error) {
    // Out of memory, or no thread to be had.
    std::fprintf(stderr, "zpsg-vusb: %s\n", error.what());
    return 1;
}
