// The Duo set's streaming beside telemetry: how many frames are with the supply within 5 ms of their time,
// and what it costs. The simulated supply takes 2 ms an exchange; a telemetry pass runs every second.
//   bench_streaming [SECONDS]
// A frame's time is the end of its transaction, held against the grid of 40 ms that fits all frames best. CPU
// time is the whole process's, the simulated supply included.

#include "lighting/ZpsCirqDuo_SendCommand.h"
#include "psu/SupplyMonitor.h"
#include "simulator/SimulatedBus.h"

#include <QCoreApplication>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>

using namespace zpsg;
using namespace std::chrono_literals;

namespace {

double cpuSeconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

std::vector<double> offsets(const std::vector<std::chrono::steady_clock::time_point> &frames) {
    std::vector<double> late;
    for (std::size_t i = 0; i < frames.size(); ++i) {
        const double sinceFirst = std::chrono::duration<double, std::milli>(frames[i] - frames[0]).count();
        late.push_back(sinceFirst - static_cast<double>(i) * lighting::kFrameMilliseconds);
    }
    auto sorted = late;
    std::nth_element(sorted.begin(), sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2),
                     sorted.end());
    const double middle = sorted[sorted.size() / 2];
    std::transform(late.begin(), late.end(), late.begin(),
                   [middle](double offset) { return std::abs(offset - middle); });
    std::sort(late.begin(), late.end());
    return late;
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const int seconds = argc > 1 ? std::atoi(argv[1]) : 20;
    const auto bus = simulator::SimulatedBus::create();
    bus->plug(simulator::SupplyModel());
    bus->withModel([](simulator::SupplyModel &model) {
        model.setFault(simulator::Fault::Slow);
        model.setFaultDelay(2ms);
    });
    psu::SupplyMonitor monitor(bus->backend());
    if (!monitor.openAtStart() || seconds <= 0) {
        std::fprintf(stderr, "usage: bench_streaming [SECONDS]\n");
        return 1;
    }
    std::vector<std::chrono::steady_clock::time_point> frames;
    frames.reserve(static_cast<std::size_t>(seconds) * 26);
    int passes = 0;
    QObject::connect(&monitor, &psu::SupplyMonitor::readingTaken, [&passes] { ++passes; });
    const double before = cpuSeconds();
    {
        lighting::ZpsCirqDuo_SendCommand thread(
            [&frames, sender = monitor.frameSender(200ms)](const psu::Request &frame) mutable {
                const bool sent = sender.send(frame);
                frames.push_back(std::chrono::steady_clock::now());
                return sent;
            });
        thread.setState({});
        QTimer telemetry;
        QObject::connect(&telemetry, &QTimer::timeout, &monitor, &psu::SupplyMonitor::readInfo);
        telemetry.start(1000);
        thread.start();
        QTimer::singleShot(seconds * 1000, &application, &QCoreApplication::quit);
        QCoreApplication::exec();
    }
    const double share = (cpuSeconds() - before) / seconds;
    const auto late = offsets(frames);
    const auto inTime = std::upper_bound(late.begin(), late.end(), 5.0) - late.begin();
    const auto percentile = [&late](double part) {
        return late[static_cast<std::size_t>(part * static_cast<double>(late.size() - 1))];
    };
    std::printf("%zu frames and %d telemetry passes in %d s: %.2f %% within 5 ms (median %.2f ms, 99 %% %.2f "
                "ms, worst %.2f ms), %.2f %% of one core\n",
                late.size(), passes, seconds,
                100.0 * static_cast<double>(inTime) / static_cast<double>(late.size()), percentile(0.5),
                percentile(0.99), late.back(), 100.0 * share);
    return 0;
}
