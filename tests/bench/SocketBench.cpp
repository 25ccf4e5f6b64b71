// How many commands a second the control socket carries out in order, from one client on this machine.
//   bench_socket [COMMANDS]
// 20,000 a second are asked for: a client that sends a frame for each LED, each millisecond.

#include "remote/SocketFraming.h"
#include "remote/SocketHelper.h"

#include <QCoreApplication>
#include <QTcpSocket>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>

using namespace zpsg;

namespace {

constexpr int kPatience = 60'000; // milliseconds
constexpr int kBurst = 100;

QByteArray command(int number) {
    return remote::framed(R"({"command":3,"Data":{"rColor":255,"gColor":"100","bColor":1,"Brightness":)" +
                          QByteArray::number(number) + "}}");
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const int commands = argc > 1 ? std::atoi(argv[1]) : 200'000;
    remote::SocketHelper helper(0);
    QTcpSocket client;
    int sent = 0, heard = 0, misplaced = 0;
    // A client that never has more than a little on its way, as one that paces itself.
    const auto sendMore = [&] {
        while (sent < commands && client.bytesToWrite() < 65'536) {
            for (int i = 0; i < kBurst && sent < commands; ++i) {
                client.write(command(sent++));
            }
        }
    };
    QObject::connect(&client, &QTcpSocket::connected, &client, sendMore);
    QObject::connect(&client, &QTcpSocket::bytesWritten, &client, sendMore);
    QObject::connect(&helper, &remote::SocketHelper::socketHelperToMain_RGBA, &helper,
                     [&](const QVariantMap &data) {
                         misplaced += data.value(QStringLiteral("Brightness")).toInt() == heard ? 0 : 1;
                         if (++heard == commands) {
                             QCoreApplication::quit();
                         }
                     });
    QTimer::singleShot(kPatience, &application, &QCoreApplication::quit);
    const auto start = std::chrono::steady_clock::now();
    const auto cpuStart = std::clock();
    client.connectToHost(QStringLiteral("127.0.0.1"), helper.port());
    QCoreApplication::exec();
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    const double cpu = static_cast<double>(std::clock() - cpuStart) / CLOCKS_PER_SEC;
    std::printf("%d of %d commands in %.2f s: %.0f a second, %d out of order, %.1f us of CPU time each, the "
                "client's included\n",
                heard, commands, seconds, heard / seconds, misplaced, 1e6 * cpu / commands);
    return heard == commands && misplaced == 0 ? 0 : 1;
}
