#include "remote/HomeAssistantLink.h"
#include "remote/mqttHelper.h"
#include "support/MqttBroker.h"

#include <gtest/gtest.h>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>

using namespace zpsg::remote;
using namespace zpsg::test;
using std::chrono::milliseconds;

namespace {

HaDevice device() {
    return {QStringLiteral("Titan 1250"),
            QStringLiteral("A 1/é"),
            1250.0,
            true,
            {QStringLiteral("Rainbow"), QStringLiteral("Breathe")}};
}

QJsonObject parsed(const QByteArray &json) { return QJsonDocument::fromJson(json).object(); }

} // namespace

TEST(HomeAssistant, topicsHoldNoCharacterThatMqttOrDiscoveryForbids) {
    EXPECT_EQ(device().configTopic(), QStringLiteral("homeassistant/device/zpsg_A_1__/config"));
    EXPECT_EQ((HaDevice{QStringLiteral("T#+"), {}, 0, false, {}}).stateTopic(),
              QStringLiteral("zpsg/zpsg_T__/state"));
}

TEST(HomeAssistant, everyComponentIsCompleteAndReadsWhatTheStateHolds) {
    const auto config = parsed(discoveryConfig(device(), QStringLiteral("prefix!m")));
    const auto components = config.value(QLatin1String("cmps")).toObject();
    const auto state = parsed(statePayload(device(), {}));
    EXPECT_EQ(components.size(), 16);
    QStringList ids;
    for (const auto &value : components) {
        const auto component = value.toObject();
        ids << component.value(QLatin1String("unique_id")).toString();
        const auto read = component.value(QLatin1String("value_template")).toString();
        if (!read.isEmpty()) {
            EXPECT_TRUE(state.contains(read.mid(14).chopped(3))) << read.toStdString();
        }
        if (component.value(QLatin1String("p")) == QLatin1String("sensor")) {
            EXPECT_TRUE(component.contains(QLatin1String("unit_of_measurement")));
            EXPECT_TRUE(component.contains(QLatin1String("state_class")));
        }
    }
    EXPECT_EQ(ids.removeDuplicates(), 0);
    const auto energy = components.value(QLatin1String("energy")).toObject();
    EXPECT_EQ(energy.value(QLatin1String("device_class")), QLatin1String("energy"));
    EXPECT_EQ(energy.value(QLatin1String("state_class")), QLatin1String("total_increasing"));
    const auto light = components.value(QLatin1String("ring")).toObject();
    EXPECT_EQ(light.value(QLatin1String("schema")), QLatin1String("json"));
    EXPECT_EQ(light.value(QLatin1String("effect_list")).toArray().size(), 2);
    EXPECT_EQ(config.value(QLatin1String("state_topic")).toString(), device().stateTopic());
    EXPECT_EQ(config.value(QLatin1String("avty")).toArray().at(1).toObject().value(QLatin1String("topic")),
              QLatin1String("prefix!m"));

    auto plain = device();
    plain.customSpeed = false;
    plain.ringEffects.clear();
    const auto fewer = parsed(discoveryConfig(plain, {})).value(QLatin1String("cmps")).toObject();
    EXPECT_EQ(fewer.size(), 14);
    const auto modes = fewer.value(QLatin1String("fan_mode")).toObject().value(QLatin1String("options"));
    EXPECT_EQ(modes.toArray().size(), 3);
}

TEST(HomeAssistant, stateIsRoundedAndUnknownIsNull) {
    HaState state;
    state.outputWatts = 312.5499;
    state.temperature = std::numeric_limits<double>::quiet_NaN();
    state.fanMode = 2;
    const auto object = parsed(statePayload(device(), state, false));
    EXPECT_EQ(object.value(QLatin1String("output_power")).toDouble(), 312.5);
    EXPECT_EQ(object.value(QLatin1String("load")).toDouble(), 25.0);
    EXPECT_TRUE(object.value(QLatin1String("temperature")).isNull());
    EXPECT_TRUE(object.value(QLatin1String("energy")).isNull());
    EXPECT_EQ(object.value(QLatin1String("fan_mode")), QLatin1String("Zero Fan"));
    EXPECT_EQ(object.value(QLatin1String("status")), QLatin1String("offline"));
    state.fanMode = 7;
    EXPECT_TRUE(parsed(statePayload(device(), state)).value(QLatin1String("fan_mode")).isNull());
}

TEST(HomeAssistant, commandsOutsideTheirRangeAreNone) {
    auto plain = device();
    plain.customSpeed = false;
    EXPECT_EQ(parseFanMode(device(), "Custom"), 3);
    EXPECT_EQ(parseFanMode(plain, "Custom"), std::nullopt);
    EXPECT_EQ(parseFanMode(plain, "Zero Fan"), 2);
    EXPECT_EQ(parseFanMode(device(), ""), std::nullopt);
    EXPECT_EQ(parseFanSpeed("30"), 30);
    EXPECT_EQ(parseFanSpeed("100.0"), 100);
    for (const char *bad : {"29", "101", "45.5", "nan", "inf", "", "4 5", "0x30"}) {
        EXPECT_EQ(parseFanSpeed(bad), std::nullopt) << bad;
    }
    const auto all = parseLight(
        device(), R"({"state":"ON","brightness":0,"color":{"r":1,"g":2,"b":255},"effect":"Breathe"})");
    ASSERT_TRUE(all);
    EXPECT_EQ(all->on, true);
    EXPECT_EQ(all->brightness, 0);
    EXPECT_EQ(all->rgb, (Rgb{1, 2, 255}));
    EXPECT_EQ(all->effect, QStringLiteral("Breathe"));
    EXPECT_EQ(parseLight(device(), R"({"state":"OFF"})")->rgb, std::nullopt);
    for (const char *bad :
         {"", "[]", "{}", R"({"state":"on"})", R"({"brightness":256})", R"({"brightness":-1})",
          R"({"brightness":"9"})", R"({"color":{"r":1,"g":2}})", R"({"color":{"r":1,"g":2,"b":1.5}})",
          R"({"color":3})", R"({"state":"ON","effect":"Nothing"})", R"({"effect":null})"}) {
        EXPECT_FALSE(parseLight(device(), bad)) << bad;
    }
}

TEST(HomeAssistant, throttleSendsChangesOnceASecondAndTheSameEveryTen) {
    StateThrottle throttle;
    throttle.offer("a");
    EXPECT_EQ(throttle.wait(milliseconds(5)).count(), 0);
    EXPECT_EQ(throttle.take(milliseconds(5)), "a");
    EXPECT_EQ(throttle.wait(milliseconds(105)).count(), 9'900);
    throttle.offer("b");
    throttle.offer("c");
    EXPECT_EQ(throttle.wait(milliseconds(105)).count(), 900);
    EXPECT_EQ(throttle.wait(milliseconds(1'005)).count(), 0);
    EXPECT_EQ(throttle.take(milliseconds(1'005)), "c");
    throttle.forget();
    EXPECT_EQ(throttle.wait(milliseconds(1'006)).count(), 0);
}

TEST(HomeAssistantLink, introducesTheSupplyAndTakesCommandsFromTheBroker) {
    MqttBroker broker;
    ASSERT_TRUE(broker.start());
    MqttWatcher watcher(broker);
    ASSERT_TRUE(watcher.ready());
    mqttHelper helper(nullptr, QStringLiteral("pub"), QStringLiteral("sub"));
    HomeAssistantLink link(helper);
    const QSignalSpy modes(&link, &HomeAssistantLink::fanModeRequested);
    const QSignalSpy speeds(&link, &HomeAssistantLink::fanSpeedRequested);
    QList<LightCommand> lights;
    QObject::connect(&link, &HomeAssistantLink::lightRequested, &link,
                     [&lights](const LightCommand &command) { lights << command; });
    const auto supply = device();
    link.setDevice(supply.model, supply.serial, supply.ratedWatts, true, supply.ringEffects);
    HaState state;
    state.outputWatts = 100.0;
    state.light = HaLight{true, 128, {1, 2, 3}, QStringLiteral("Rainbow")};
    link.setState(state);
    helper.setBroker(QStringLiteral("127.0.0.1"), broker.port());
    helper.Connect({QStringLiteral("m"), QStringLiteral("p")});
    ASSERT_TRUE(watcher.sees("0 " + supply.lightTopic().toLatin1() + ' ' + lightPayload(*state.light)));
    EXPECT_TRUE(watcher.sees("0 " + supply.stateTopic().toLatin1() + ' ' + statePayload(supply, state)));
    const QByteArray config =
        ' ' + supply.configTopic().toLatin1() + ' ' + discoveryConfig(supply, QStringLiteral("pub!m"));
    EXPECT_TRUE(watcher.sees('0' + config));
    EXPECT_LT(watcher.output().indexOf("\"comm\":\"05\""), watcher.output().indexOf(config));
    MqttWatcher late(broker);
    EXPECT_TRUE(late.sees('1' + config)) << "the configuration is retained";
    EXPECT_EQ(late.count("/state "), 0) << "the state is not";

    // Ten changes in one go are one message, with the last of them.
    const int before = watcher.count("/state ");
    for (int i = 1; i <= 10; ++i) {
        state.outputWatts = 100.0 + i;
        link.setState(state);
    }
    EXPECT_TRUE(watcher.sees("0 " + supply.stateTopic().toLatin1() + ' ' + statePayload(supply, state)));
    EXPECT_EQ(watcher.count("/state "), before + 1);

    EXPECT_TRUE(broker.send(supply.fanModeCommand(), QStringLiteral("Nonsense")));
    EXPECT_TRUE(broker.send(supply.fanModeCommand(), QStringLiteral("Performance")));
    EXPECT_TRUE(broker.send(supply.fanSpeedCommand(), QStringLiteral("55")));
    EXPECT_TRUE(broker.send(supply.lightCommand(), QStringLiteral(R"({"state":"ON","brightness":9})")));
    EXPECT_TRUE(eventually([&] { return modes.count() == 1 && speeds.count() == 1 && lights.size() == 1; }));
    EXPECT_EQ(modes.first().first().toInt(), 1);
    EXPECT_EQ(speeds.first().first().toInt(), 55);
    EXPECT_EQ(lights.first().brightness, 9);

    EXPECT_TRUE(broker.send(QStringLiteral("homeassistant/status"), QStringLiteral("online")));
    EXPECT_TRUE(eventually([&] { return watcher.count(config) == 2; }));
    helper.Disconnect();
    EXPECT_TRUE(
        watcher.sees("0 " + supply.stateTopic().toLatin1() + ' ' + statePayload(supply, state, false)));
}
