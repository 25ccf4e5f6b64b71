// What is chosen in the tray's menu reaches the supply.
#include "app/TrayFeed.h"
#include "app/RingLight.h"
#include "simulator/SimulatedBus.h"

#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace zpsg;

namespace {

TEST(TrayFeed, FanAndLightsFollowTheMenu) {
    const QTemporaryDir dir;
    const auto bus = simulator::SimulatedBus::create();
    bus->plug(simulator::SupplyModel("CVX-1000-D"));
    app::Settings settings(dir.path());
    app::Supply supply(bus->backend(), {}, QStringList(dir.path()));
    const app::Alarms alarms(settings, dir.filePath(QStringLiteral("alarms.jsonl")), [] { return 0U; });
    app::FanControl fan(supply, settings);
    app::Lighting lights(supply, settings);
    app::Tray tray{QIcon()};
    const app::TrayFeed feed({supply, alarms, fan, lights, settings}, tray);
    ASSERT_TRUE(supply.identifyModel());
    int asked = 0;
    QObject::connect(&feed, &app::TrayFeed::speedWanted, &feed, [&asked] { ++asked; });

    for (const auto mode : {fan::FanMode::Performance, fan::FanMode::ZeroFan, fan::FanMode::Silent}) {
        emit tray.fanModeChosen(static_cast<int>(mode));
        EXPECT_EQ(fan.mode(), mode);
        EXPECT_TRUE(QTest::qWaitFor([&] {
            int taken = -1;
            bus->withModel(
                [&taken](simulator::SupplyModel &model) { taken = static_cast<int>(model.fanMode()); });
            return taken == fan::kFanModes.at(static_cast<std::size_t>(mode)).modeByte;
        })) << static_cast<int>(mode);
    }
    EXPECT_EQ(asked, 0);
    emit tray.fanModeChosen(static_cast<int>(fan::FanMode::Custom));
    EXPECT_EQ(asked, 1) << "a custom speed has to be entered in the window";

    for (const bool on : {false, true}) {
        emit tray.lightsToggled(on);
        EXPECT_EQ(app::ringLight(lights).on, on);
    }
}

} // namespace
