#include "remote/Metrics.h"
#include "remote/MetricsServer.h"

#include <gmock/gmock.h>
#include <QTcpSocket>
#include <QTest>

#include <limits>
#include <memory>

namespace zpsg::remote {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::StartsWith;

constexpr int kPatience = 20'000; // milliseconds; reached only when something hangs

TEST(MetricsText, IsExactWithEverythingKnown) {
    MetricValues values;
    values.mainsVolts = 231.4;
    values.rail12 = {12.05, 20.5};
    values.rail5 = {5.02, 4.0};
    values.rail33 = {3.31, 0.1};
    values.outputWatts = 270.0;
    values.loadRatio = 0.36;
    values.efficiencyRatio = 0.925;
    values.celsius = -1.5;
    values.fanRpm = 0.0;
    values.fanMode = 2;
    values.energyJoules = 3.6e9;
    values.connected = true;
    values.alarms = {false, false, true, false, true};
    values.model = QStringLiteral("A\\B \"c\"\nd \u00e9");
    values.serial = QStringLiteral("S1");
    values.version = QStringLiteral("0.1.0");
    EXPECT_EQ(metricsText(values).toStdString(),
              R"(# HELP zpsg_mains_volts Voltage at the mains input.
# TYPE zpsg_mains_volts gauge
zpsg_mains_volts 231.4
# HELP zpsg_output_watts Power delivered by all rails together.
# TYPE zpsg_output_watts gauge
zpsg_output_watts 270
# HELP zpsg_load_ratio Delivered power as a share of the rated power.
# TYPE zpsg_load_ratio gauge
zpsg_load_ratio 0.36
# HELP zpsg_efficiency_ratio Delivered power as a share of the power taken in.
# TYPE zpsg_efficiency_ratio gauge
zpsg_efficiency_ratio 0.925
# HELP zpsg_temperature_celsius Temperature inside the supply.
# TYPE zpsg_temperature_celsius gauge
zpsg_temperature_celsius -1.5
# HELP zpsg_fan_rpm Revolutions of the supply's fan in a minute.
# TYPE zpsg_fan_rpm gauge
zpsg_fan_rpm 0
# HELP zpsg_rail_volts Voltage of an output rail.
# TYPE zpsg_rail_volts gauge
zpsg_rail_volts{rail="12V"} 12.05
zpsg_rail_volts{rail="5V"} 5.02
zpsg_rail_volts{rail="3.3V"} 3.31
# HELP zpsg_rail_amperes Current of an output rail.
# TYPE zpsg_rail_amperes gauge
zpsg_rail_amperes{rail="12V"} 20.5
zpsg_rail_amperes{rail="5V"} 4
zpsg_rail_amperes{rail="3.3V"} 0.1
# HELP zpsg_energy_joules_total Energy delivered.
# TYPE zpsg_energy_joules_total counter
zpsg_energy_joules_total 3.6e+09
# HELP zpsg_fan_mode 1 for the mode that the fan is in, 0 for the others.
# TYPE zpsg_fan_mode gauge
zpsg_fan_mode{mode="silent"} 0
zpsg_fan_mode{mode="performance"} 0
zpsg_fan_mode{mode="zero"} 1
zpsg_fan_mode{mode="custom"} 0
# HELP zpsg_alarm 1 while the alarm holds.
# TYPE zpsg_alarm gauge
zpsg_alarm{alarm="rail12"} 0
zpsg_alarm{alarm="rail5"} 0
zpsg_alarm{alarm="rail33"} 1
zpsg_alarm{alarm="fan"} 0
zpsg_alarm{alarm="temperature"} 1
# HELP zpsg_connected 1 while a supply answers.
# TYPE zpsg_connected gauge
zpsg_connected 1
# HELP zpsg_info The supply and the program, in the labels.
# TYPE zpsg_info gauge
zpsg_info{model="A\\B \"c\"\nd é",serial="S1",version="0.1.0"} 1
)");
}

TEST(MetricsText, LeavesOutWhatIsNotKnown) {
    constexpr const char *kRest = R"(# HELP zpsg_connected 1 while a supply answers.
# TYPE zpsg_connected gauge
zpsg_connected 0
# HELP zpsg_info The supply and the program, in the labels.
# TYPE zpsg_info gauge
zpsg_info 1
)";
    MetricValues values;
    EXPECT_EQ(metricsText(values).toStdString(), kRest);
    values.mainsVolts = std::numeric_limits<double>::quiet_NaN();
    values.celsius = std::numeric_limits<double>::infinity();
    EXPECT_EQ(metricsText(values).toStdString(), kRest);
    values.rail5.volts = 5.0;
    EXPECT_THAT(metricsText(values).toStdString(),
                StartsWith("# HELP zpsg_rail_volts Voltage of an output rail.\n"
                           "# TYPE zpsg_rail_volts gauge\nzpsg_rail_volts{rail=\"5V\"} 5\n# HELP zpsg_conn"));
}

class MetricsServerTest : public testing::Test {
protected:
    MetricsServerTest() { EXPECT_TRUE(server_.listen(0)); }

    [[nodiscard]] std::unique_ptr<QTcpSocket>
    connectTo(const MetricsServer &server,
              const QHostAddress &address = QHostAddress(QHostAddress::LocalHost)) const {
        auto socket = std::make_unique<QTcpSocket>();
        socket->connectToHost(address, server.port());
        bool connected = false; // it may be ended again before anybody looks
        QObject::connect(socket.get(), &QTcpSocket::connected, socket.get(),
                         [&connected] { connected = true; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return connected; }, kPatience));
        socket->disconnect(SIGNAL(connected()));
        return socket;
    }
    /// All that comes until the server ends the connection.
    static std::string rest(QTcpSocket &socket) {
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return socket.state() == QAbstractSocket::UnconnectedState; }, kPatience))
            << "the connection stays open";
        return socket.readAll().toStdString();
    }
    std::string ask(const QByteArray &request,
                    const QHostAddress &address = QHostAddress(QHostAddress::LocalHost)) {
        const auto socket = connectTo(server_, address);
        socket->write(request);
        return rest(*socket);
    }
    std::string get(const QByteArray &host) {
        return ask("GET /metrics HTTP/1.1\r\nHost: " + host + "\r\n\r\n");
    }

    static MetricValues values() {
        MetricValues values;
        values.celsius = 41.0;
        return values;
    }
    int asked_ = 0;
    MetricsServer server_{[this] {
        ++asked_;
        return values();
    }};
};

TEST_F(MetricsServerTest, ServesTheTextOnBothAddressesAndNoOther) {
    const std::string body = metricsText(values()).toStdString();
    for (const auto address : {QHostAddress::LocalHost, QHostAddress::LocalHostIPv6}) {
        const std::string answer =
            ask("GET /metrics?name=x HTTP/1.1\r\nHost: localhost\r\n\r\n", QHostAddress(address));
        EXPECT_THAT(answer, StartsWith("HTTP/1.1 200 OK\r\n"));
        EXPECT_THAT(answer, HasSubstr("\r\nContent-Type: text/plain; version=0.0.4; charset=utf-8\r\n"));
        EXPECT_THAT(answer, HasSubstr("\r\nContent-Length: " + std::to_string(body.size()) + "\r\n"));
        EXPECT_THAT(answer, testing::EndsWith("\r\n\r\n" + body));
        EXPECT_THAT(answer, testing::Not(HasSubstr("Access-Control")));
    }
    EXPECT_EQ(asked_, 2);
    // All of 127.0.0.0/8 is this machine; what is listening on every address would answer here.
    QTcpSocket other;
    other.connectToHost(QHostAddress(QStringLiteral("127.0.0.2")), server_.port());
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return other.state() == QAbstractSocket::UnconnectedState; }, kPatience));
    EXPECT_EQ(other.error(), QAbstractSocket::ConnectionRefusedError);
}

TEST_F(MetricsServerTest, RefusesWhateverElseIsAsked) {
    struct Case {
        const char *request;
        const char *answer;
    };
    const std::array cases{
        Case{"GET / HTTP/1.1\r\nHost: localhost\r\n\r\n", "HTTP/1.1 404 "},
        Case{"GET /metrics/ HTTP/1.1\r\nHost: localhost\r\n\r\n", "HTTP/1.1 404 "},
        Case{"GET http://localhost/metrics HTTP/1.1\r\nHost: localhost\r\n\r\n", "HTTP/1.1 404 "},
        Case{"POST /metrics HTTP/1.1\r\nHost: localhost\r\nContent-Length: 3\r\n\r\nabc", "HTTP/1.1 405 "},
        Case{"HEAD /metrics HTTP/1.1\r\nHost: localhost\r\n\r\n", "HTTP/1.1 405 "},
        Case{"OPTIONS /metrics HTTP/1.1\r\nHost: localhost\r\nOrigin: http://a\r\n\r\n", "HTTP/1.1 405 "},
        Case{"GET /metrics HTTP/1.0\r\n\r\n", "HTTP/1.1 403 "},
        Case{"GET /metrics HTTP/1.1\r\n\r\n", "HTTP/1.1 4"},
        Case{"\x16\x03\x01\x02 garbage\r\n\r\n", ""},
    };
    for (const Case &c : cases) {
        EXPECT_THAT(ask(c.request), StartsWith(c.answer)) << c.request;
    }
    const QByteArray tooMuch = "GET /metrics HTTP/1.1\r\nHost: localhost\r\nX: " + QByteArray(100'000, 'x');
    EXPECT_THAT(ask(tooMuch), testing::Not(StartsWith("HTTP/1.1 200")));
    EXPECT_EQ(asked_, 0);

    const QByteArray port = QByteArray::number(server_.port());
    for (const QByteArray &host : {QByteArray("LocalHost"), "127.0.0.1:" + port, "[::1]:" + port}) {
        EXPECT_THAT(get(host), StartsWith("HTTP/1.1 200 ")) << host.constData();
    }
    for (const char *host : {"evil.example", "localhost.evil.example", "localhost:x", "127.0.0.1.nip.example",
                             "[::1].example", "::1", "127.0.0.2", "localhost@evil"}) {
        EXPECT_THAT(get(host), StartsWith("HTTP/1.1 403 ")) << host;
    }
    EXPECT_EQ(asked_, 3);
}

TEST_F(MetricsServerTest, ClosesConnectionsThatAreTooManyAndAnswersAgainAfterwards) {
    std::vector<std::unique_ptr<QTcpSocket>> clients;
    for (unsigned i = 0; i < MetricsServer::kMostConnections; ++i) {
        clients.push_back(connectTo(server_));
        clients.back()->write("GET /metr");
    }
    EXPECT_EQ(rest(*connectTo(server_)), "");
    clients.front()->write("ics HTTP/1.1\r\nHost: localhost\r\n\r\n");
    EXPECT_THAT(rest(*clients.front()), StartsWith("HTTP/1.1 200 ")) << "those that are there are served";
    for (auto &client : clients) {
        client->abort(); // some of them in the midst of things
    }
    for (int i = 0; i < 50; ++i) {
        const auto gone = connectTo(server_);
        gone->write("GET /metrics HTTP/1.1\r\nHost: localhost\r\n\r\n");
        gone->flush();
        gone->abort(); // before there is an answer
    }
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return get("localhost").find("200 OK") != std::string::npos; }, kPatience));
}

TEST_F(MetricsServerTest, EndsAConnectionThatKeepsItselfBusy) {
    MetricsServer server([] { return MetricValues(); }, nullptr, 200ms);
    ASSERT_TRUE(server.listen(0));
    const auto silent = connectTo(server);
    const auto busy = connectTo(server);
    QTimer drip;
    QObject::connect(&drip, &QTimer::timeout, &drip, [&] { busy->write("x"); });
    drip.start(10);
    EXPECT_TRUE(rest(*silent).find("200") == std::string::npos);
    EXPECT_TRUE(rest(*busy).find("200") == std::string::npos);
}

TEST_F(MetricsServerTest, ClosesAndOpensAgainOnTheSamePort) {
    const quint16 port = server_.port();
    ASSERT_NE(port, 0);
    MetricsServer second([] { return MetricValues(); });
    EXPECT_FALSE(second.listen(port)) << "taken";
    EXPECT_EQ(second.port(), 0);
    const auto open = connectTo(server_);
    server_.close();
    EXPECT_EQ(rest(*open), "");
    EXPECT_EQ(server_.port(), 0);
    EXPECT_TRUE(second.listen(port));
    second.close();
    EXPECT_TRUE(server_.listen(port));
    EXPECT_THAT(get("localhost"), StartsWith("HTTP/1.1 200 "));
}

} // namespace
} // namespace zpsg::remote
