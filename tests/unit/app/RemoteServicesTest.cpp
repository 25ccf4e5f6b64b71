// What is reachable over the network, with everything behind it: a real broker, the settings, the simulated
// supply.
#include "app/RemoteServices.h"
#include "app/RingLight.h"
#include "simulator/SimulatedBus.h"
#include "support/MqttBroker.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSignalSpy>

#include <gmock/gmock.h>

using namespace zpsg;
using namespace std::chrono_literals;
using app::Setting;
using test::eventually;
using ::testing::HasSubstr;

namespace {

class RemoteServicesTest : public ::testing::Test {
protected:
    void start(const char *model = "CVX-1000-D") {
        simulator::SupplyModel supplied(model, "SN-4711");
        auto quantities = supplied.quantities();
        quantities.celsius = 47.0;
        quantities.fanRpm = 1024.0;
        supplied.setQuantities(quantities);
        bus->plug(std::move(supplied));
        supply = std::make_unique<app::Supply>(bus->backend(), psu::MonitorTiming{{200ms, 10ms, 5ms}, 5s},
                                               QStringList(dir.path()));
        alarms = std::make_unique<app::Alarms>(settings, dir.filePath(QStringLiteral("alarms.jsonl")),
                                               [] { return 0U; });
        lights = std::make_unique<app::Lighting>(*supply, settings);
        fan = std::make_unique<app::FanControl>(*supply, settings);
        usage = std::make_unique<app::Usage>(*supply, settings, dir.path());
        services = std::make_unique<app::RemoteServices>(
            app::RemoteServices::Parts{*supply, settings, *alarms, *fan, *lights, *usage, [] { return 0U; }});
        supply->identifyModel();
        supply->monitor().readInfo();
    }

    void startWithBroker() {
        ASSERT_TRUE(broker.start());
        watcher = std::make_unique<test::MqttWatcher>(broker);
        ASSERT_TRUE(watcher->ready());
        settings.write({{Setting::MqttHost, QStringLiteral("127.0.0.1")},
                        {Setting::MqttPort, broker.port()},
                        {Setting::MqttPublishPrefix, QStringLiteral("pub")},
                        {Setting::MqttSubscribePrefix, QStringLiteral("sub")},
                        {Setting::MqttAccountId, QStringLiteral("m")},
                        {Setting::MqttProductId, QStringLiteral("p")}});
        start();
        QObject::connect(services.get(), &app::RemoteServices::received, services.get(),
                         &app::RemoteServices::analyse);
        ASSERT_TRUE(watcher->sees(message("05", "online")));
    }

    static QByteArray message(const char *code, const QByteArray &status) {
        return QByteArray(R"(0 pub!m {"comm":")") + code + R"(","m_id":"m","p_id":"p","status":")" + status +
               "\"}";
    }

    bool ask(const char *json) { return broker.send(QStringLiteral("subp"), QLatin1String(json)); }

    QTemporaryDir dir;
    app::Settings settings{dir.path()};
    std::shared_ptr<simulator::SimulatedBus> bus = simulator::SimulatedBus::create();
    test::MqttBroker broker;
    std::unique_ptr<test::MqttWatcher> watcher;
    std::unique_ptr<app::Supply> supply;
    std::unique_ptr<app::Alarms> alarms;
    std::unique_ptr<app::Lighting> lights;
    std::unique_ptr<app::FanControl> fan;
    std::unique_ptr<app::Usage> usage;
    std::unique_ptr<app::RemoteServices> services;
};

TEST_F(RemoteServicesTest, AnswersTheCommandsOfTheBroker) {
    startWithBroker();
    QSignalSpy power(services.get(), &app::RemoteServices::powerRequested);
    EXPECT_TRUE(ask(R"({"clientID":"c","comm":4,"status":"shutdown"})"));
    EXPECT_TRUE(ask(R"({"comm":1})"));
    EXPECT_TRUE(watcher->sees(message("01", "online")));
    EXPECT_EQ(power.count(), 0) << "not without the setting";
    settings.write({{Setting::RemotePower, 1}});
    EXPECT_TRUE(ask(R"({"clientID":"c","comm":4,"status":"shutdown"})"));
    for (const char *ignored : {R"({"comm":2})", R"({"comm":99})", "[1]", "{", R"({"comm":"x"})"}) {
        EXPECT_TRUE(ask(ignored));
    }
    EXPECT_TRUE(ask(R"({"comm":6})"));
    EXPECT_TRUE(watcher->sees(message("06", "online")));
    ASSERT_EQ(power.count(), 1);
    EXPECT_EQ(power.front().front().toString(), QStringLiteral("shutdown"));
    EXPECT_EQ(watcher->count("0 pub!m"), 3) << "05, 01 and 06";

    const auto &record = supply->monitor().record();
    const double watts = record.number(QStringLiteral("WATTS"));
    EXPECT_TRUE(ask(R"({"comm":7})"));
    EXPECT_TRUE(eventually([&] { return watcher->count(R"("comm":"07")") > 0; }));
    EXPECT_THAT(
        watcher->output().toStdString(),
        HasSubstr(
            QStringLiteral("\"status\":\"47!%1!").arg(record.text(QStringLiteral("WATTS"))).toStdString()));
    EXPECT_THAT(
        watcher->output().toStdString(),
        HasSubstr(QStringLiteral("!1024!%1\"}").arg(watts / 1000.0 * 100.0, 0, 'g', 6).toStdString()));

    services->tellAlarm({psu::AlarmKind::Fan, 0.0, {}, {}, true});
    services->tellAlarm({psu::AlarmKind::Temperature, 61.0, {}, {}, true});
    EXPECT_TRUE(watcher->sees(message("03", "PSU_Temp_Error")));
    EXPECT_EQ(watcher->count(R"("comm":"03")"), 1);
    services.reset();
}

TEST_F(RemoteServicesTest, HomeAssistantDrivesFanAndLights) {
    settings.write({{Setting::MqttDiscovery, true}});
    startWithBroker();
    EXPECT_TRUE(eventually([&] { return watcher->count("homeassistant/device/") > 0; }));
    services->takeReading();
    EXPECT_TRUE(eventually([&] { return watcher->count("/state ") > 0; }));
    const QByteArray seen = watcher->output();
    const int from = seen.indexOf("\n0 zpsg/") + 3;
    const QString base = QString::fromLatin1(seen.mid(from, seen.indexOf("/state ", from) - from));
    EXPECT_TRUE(broker.send(base + QStringLiteral("/fan_mode/set"), QStringLiteral("Performance")));
    EXPECT_TRUE(eventually([&] { return fan->mode() == fan::FanMode::Performance; }));
    EXPECT_TRUE(broker.send(base + QStringLiteral("/fan_speed/set"), QStringLiteral("70")));
    EXPECT_TRUE(eventually([&] { return fan->customPercent() == 70; }));
    EXPECT_TRUE(broker.send(
        base + QStringLiteral("/light/set"),
        QStringLiteral(R"({"state":"ON","brightness":51,"color":{"r":1,"g":2,"b":3},"effect":"Scan"})")));
    EXPECT_TRUE(eventually([&] { return lights->duo().lightMode[1] == 17; }));
    EXPECT_THAT(lights->duo().singleBlue, ::testing::Each(3));
    EXPECT_DOUBLE_EQ(lights->duo().singleBrightness[0], 0.2);
    EXPECT_TRUE(broker.send(base + QStringLiteral("/light/set"), QStringLiteral(R"({"state":"OFF"})")));
    EXPECT_TRUE(eventually([&] { return !lights->duo().on; }));
    EXPECT_EQ(lights->duo().lightMode[0], 17) << "off is not another effect";
}

TEST_F(RemoteServicesTest, ServesMetricsOfWhatIsKnown) {
    settings.write({{Setting::MetricsPort, test::freePort()}});
    start("CVG-0850-Z");
    ASSERT_NE(services->metricsPort(), 0);
    const auto page = [&] {
        QNetworkAccessManager manager;
        const auto *reply = manager.get(QNetworkRequest(
            QUrl(QStringLiteral("http://127.0.0.1:%1/metrics").arg(services->metricsPort()))));
        EXPECT_TRUE(eventually([&] { return reply->isFinished(); }));
        return const_cast<QNetworkReply *>(reply)->readAll().toStdString();
    };
    const auto text = page();
    EXPECT_THAT(text, HasSubstr("\nzpsg_temperature_celsius 47\n"));
    EXPECT_THAT(text, HasSubstr("\nzpsg_fan_rpm 1024\n"));
    EXPECT_THAT(text, HasSubstr("\nzpsg_connected 1\n"));
    EXPECT_THAT(text, HasSubstr("CVG-0850-Z"));
    EXPECT_THAT(text, HasSubstr("SN-4711"));
    bus->unplug();
    supply->connectPsu();
    const auto gone = page();
    EXPECT_THAT(gone, HasSubstr("\nzpsg_connected 0\n"));
    EXPECT_THAT(gone, ::testing::Not(HasSubstr("zpsg_temperature_celsius")));
}

TEST_F(RemoteServicesTest, NothingIsReachedOrServedUnlessItIsSet) {
    start();
    EXPECT_EQ(services->mqtt(), nullptr);
    EXPECT_EQ(services->metricsPort(), 0);
    services->analyse(QStringLiteral(R"({"comm":1})"));
    services->takeReading();
}

// One light for home automation, whatever the ring.
TEST_F(RemoteServicesTest, EachRingIsALight) {
    for (const char *model : {"CVD-0650-F", "CVG-0850-Z", "CVX-1000-D"}) {
        SCOPED_TRACE(model);
        services.reset();
        usage.reset();
        fan.reset();
        lights.reset();
        start(model);
        const auto effects = app::ringEffects(*lights);
        ASSERT_FALSE(effects.isEmpty());
        const app::RingLight wanted{true, 0.2, {10, 20, 30}, effects.first()};
        app::setRingLight(*lights, wanted, true);
        const auto light = app::ringLight(*lights);
        EXPECT_TRUE(light.on);
        EXPECT_NEAR(light.brightness, 0.2, 1e-6);
        EXPECT_EQ(light.colour, wanted.colour);
        EXPECT_EQ(light.effect, effects.first());
        app::setRingLight(*lights, {false, 0.2, {10, 20, 30}, QStringLiteral("no such effect")}, false);
        EXPECT_FALSE(app::ringLight(*lights).on);
        EXPECT_EQ(app::ringLight(*lights).effect, effects.first());
    }
}

} // namespace
