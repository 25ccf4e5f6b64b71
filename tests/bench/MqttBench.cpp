// The remote control against a real broker: readings asked for a thousand times a second, and what it costs
// to show ten quantities a second.

#include "remote/HomeAssistantLink.h"
#include "remote/MqttCommands.h"
#include "remote/mqttHelper.h"
#include "support/MqttBroker.h"

#include <QCoreApplication>
#include <QTextStream>

#include <ctime>

using namespace zpsg;
using namespace zpsg::remote;
using zpsg::test::eventually;

namespace {

double cpuMs() { return static_cast<double>(std::clock()) * 1000.0 / CLOCKS_PER_SEC; }

void run(int milliseconds) {
    QEventLoop loop;
    QTimer end;
    QObject::connect(&end, &QTimer::timeout, &loop, &QEventLoop::quit);
    end.start(milliseconds);
    loop.exec();
}

struct Desk {
    explicit Desk(quint16 port) {
        client.settings().host = QStringLiteral("127.0.0.1");
        client.settings().port = port;
        client.settings().clientId = QStringLiteral("desk");
        client.connectToBroker();
    }
    MqttClient client;
};

/// `count` questions, one a millisecond, as if from outside.
void askReadings(QTextStream &out, const test::MqttBroker &broker, mqttHelper &helper, int count) {
    const psu::TelemetryRecord record;
    QObject::connect(&helper, &mqttHelper::mqttHelperToMain, &helper, [&](const QString &text) {
        if (const auto command = parseCommand(text)) {
            helper.sentMqttMessage({QStringLiteral("01"), readingsText(record, 1250.0, 90.0)});
        }
    });
    Desk desk(broker.port());
    int answers = 0;
    QObject::connect(&desk.client, &MqttClient::received, &desk.client, [&answers] { ++answers; });
    eventually([&] { return desk.client.isConnected() && helper.client().isConnected(); });
    desk.client.subscribe(helper.answerTopic());
    run(200);
    QElapsedTimer clock;
    clock.start();
    const double before = cpuMs();
    int asked = 0;
    QTimer pace;
    QObject::connect(&pace, &QTimer::timeout, &desk.client, [&] {
        while (asked < count && asked < clock.elapsed()) {
            desk.client.publish(helper.commandTopic(), R"({"comm":1,"clientID":"desk","status":""})");
            ++asked;
        }
    });
    pace.start(1);
    eventually([&] { return answers >= count; }, std::chrono::milliseconds(2 * count));
    out << "readings: " << answers << " of " << asked << " answered in " << clock.elapsed() << " ms, "
        << (cpuMs() - before) / asked * 1000.0 << " us of CPU each, the asking side included\n";
}

void showQuantities(QTextStream &out, mqttHelper &helper, int seconds) {
    HomeAssistantLink link(helper);
    link.setDevice(QStringLiteral("Titan 1250"), QStringLiteral("1"), 1250.0, true, {});
    HaState state;
    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout, &link, [&] {
        for (auto value : {&HaState::mainsVolts, &HaState::volts12, &HaState::amps12, &HaState::volts5,
                           &HaState::amps5, &HaState::volts33, &HaState::amps33, &HaState::outputWatts,
                           &HaState::temperature, &HaState::fanRpm}) {
            state.*value = (state.*value).value_or(10.0) + 1.0;
        }
        link.setState(state);
    });
    tick.start(1'000);
    run(1'500);
    const double before = cpuMs();
    run(seconds * 1'000);
    out << "ten quantities a second: " << (cpuMs() - before) / seconds / 10.0 << " % of one core\n";
}

} // namespace

/// Seconds to measure for, 10 unless an argument says otherwise.
int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const int seconds = argc > 1 ? QByteArray(argv[1]).toInt() : 10;
    QTextStream out(stdout);
    zpsg::test::MqttBroker broker;
    mqttHelper helper(nullptr, QStringLiteral("pub"), QStringLiteral("sub"));
    helper.setBroker(QStringLiteral("127.0.0.1"), broker.port());
    if (seconds <= 0 || !broker.start()) {
        return 1;
    }
    helper.Connect({QStringLiteral("m"), QStringLiteral("p")});
    askReadings(out, broker, helper, seconds * 1'000);
    helper.disconnect();
    showQuantities(out, helper, seconds);
    return 0;
}
