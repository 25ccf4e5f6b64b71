// From a command's bytes written into the control socket to its report at the simulated supply, telemetry
// running.
//   bench_latency [COMMANDS]

#include "app/Lighting.h"
#include "lighting/LightMessages.h"
#include "remote/SocketHelper.h"
#include "simulator/SimulatedBus.h"

#include <QCoreApplication>
#include <QTcpSocket>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace zpsg;
using Clock = std::chrono::steady_clock;

namespace {

QByteArray command(int red) {
    const QByteArray json = R"({"command":3,"Data":{"rColor":)" + QByteArray::number(red) + "}}";
    return json.toBase64() + '&';
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const int count = argc > 1 ? std::atoi(argv[1]) : 2000;
    const QTemporaryDir dir;
    app::Settings settings(dir.path());
    const auto bus = simulator::SimulatedBus::create();
    bus->plug(simulator::SupplyModel("CVD-0650-F"));
    app::Supply supply(bus->backend(), {}, QStringList(dir.path()));
    app::Lighting lights(supply, settings);
    remote::SocketHelper socket(0);
    QObject::connect(&socket, &remote::SocketHelper::socketHelperToMain_RGBA, &lights,
                     [&lights](const QVariantMap &data) {
                         lights.changeColour(lighting::singleColourIn(data, lights.single().colour));
                     });
    QTimer telemetry;
    QObject::connect(&telemetry, &QTimer::timeout, &supply.monitor(), &psu::SupplyMonitor::readInfo);
    telemetry.start(1000);
    QTcpSocket client;
    client.connectToHost(QHostAddress::LocalHost, socket.port());
    if (count <= 0 || !supply.identifyModel() || !client.waitForConnected()) {
        std::fprintf(stderr, "usage: bench_latency [COMMANDS]\n");
        return 1;
    }
    std::vector<double> milliseconds;
    for (int i = 0; i < count; ++i) {
        const int red = i % 2 == 0 ? 200 : 100;
        const auto begin = Clock::now();
        client.write(command(red));
        client.flush();
        bool arrived = false;
        while (!arrived) {
            QCoreApplication::processEvents();
            bus->withModel([&](simulator::SupplyModel &model) { arrived = model.ledFrame()[1] == red; });
        }
        milliseconds.push_back(std::chrono::duration<double, std::milli>(Clock::now() - begin).count());
    }
    std::sort(milliseconds.begin(), milliseconds.end());
    std::printf("%d commands: median %.3f ms, 99 %% %.3f ms, worst %.3f ms from the write to the report\n",
                count, milliseconds[milliseconds.size() / 2], milliseconds[milliseconds.size() * 99 / 100],
                milliseconds.back());
    return 0;
}
