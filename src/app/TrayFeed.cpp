#include "app/TrayFeed.h"

#include "app/RingLight.h"
#include "ui/AlarmText.h"

namespace zpsg::app {

using fan::FanMode;

TrayFeed::TrayFeed(const Parts &parts, Tray &tray, QObject *parent)
    : QObject(parent), parts_(parts), tray_(tray) {
    connect(&tray_, &Tray::fanModeChosen, this, &TrayFeed::chooseMode);
    connect(&tray_, &Tray::lightsToggled, this, &TrayFeed::switchLights);
    connect(&parts_.fan, &FanControl::changed, this, &TrayFeed::tick);
    connect(&parts_.lighting, &Lighting::changed, this, &TrayFeed::tick);
    takeSettings();
}

void TrayFeed::takeSettings() {
    figure_ = static_cast<ui::TrayFigure>(parts_.settings.integer(Setting::TrayFigure));
    tick();
}

void TrayFeed::tick() {
    const auto &supply = parts_.supply;
    ui::TrayShown shown;
    shown.figure = figure_;
    shown.state = supply.monitor().state();
    shown.model = supply.monitor().modelText();
    shown.watts = supply.fresh("WATTS");
    shown.ratedWatts = static_cast<double>(supply.profile().ratedWatts);
    shown.efficiency = supply.fresh("EFF");
    shown.celsius = supply.fresh("Temp");
    shown.rpm = supply.fresh("FanSpeed");
    const auto holding = parts_.alarms.log().holding();
    if (!holding.empty()) {
        shown.alarm = ui::alarmTitle(holding.front().kind);
    }
    if (supply.present()) {
        shown.fanModes = {FanMode::Silent, FanMode::Performance, FanMode::ZeroFan};
        if (parts_.fan.takesCustomSpeed()) {
            shown.fanModes.push_back(FanMode::Custom);
        }
        shown.fanMode = parts_.fan.mode();
    }
    shown.hasLights = parts_.lighting.ring().has_value();
    shown.lightsOn = shown.hasLights && ringLight(parts_.lighting).on;
    tray_.showState(shown);
}

void TrayFeed::chooseMode(int mode) {
    if (mode == static_cast<int>(FanMode::Custom)) {
        emit speedWanted();
    }
    const QStringList chosen{QString::number(mode)};
    if (parts_.fan.variant() == 0) {
        parts_.fan.selectMode(chosen);
    } else {
        parts_.fan.selectLightingFanMode(chosen);
    }
}

void TrayFeed::switchLights(bool on) {
    RingLight light = ringLight(parts_.lighting);
    light.on = on;
    setRingLight(parts_.lighting, light, false);
}

void TrayFeed::tellOnce() {
    if (!parts_.settings.flag(Setting::TrayTold)) {
        parts_.settings.write({{Setting::TrayTold, true}});
        tray_.tellWhereItWent();
    }
}

} // namespace zpsg::app
