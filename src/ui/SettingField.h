// What the settings page shows and lets the user change, and how the page and the program name it.
#pragma once

namespace zpsg::ui {

/// Each with the type of its value.
enum class SettingField {
    Language,        ///< text: the name of a translation, empty for the system's language
    TemperatureUnit, ///< integer: 0 Celsius, 1 Fahrenheit
    TextSize,        ///< integer: 0 usual, 1 large
    Autostart,       ///< flag
    StartHidden,     ///< flag
    TrayFigure,      ///< integer: 0 load, 1 temperature, 2 nothing
    VoltWarning,     ///< flag, as the two below
    FanWarning,
    TempWarning,
    Sensors,           ///< flag: read the PC's own sensors
    SocketAllowRemote, ///< flag
    MqttHost,          ///< text, as the ones below; empty: no MQTT
    MqttPort,          ///< integer, 1 to 65535
    MqttPublishPrefix,
    MqttSubscribePrefix,
    MqttAccountId,
    MqttProductId,
    MqttUser,
    MqttPassword,
    MqttCaFile,    ///< text: a path, empty for a connection that is not encrypted
    MqttDiscovery, ///< flag: tell Home Assistant of the supply
    RemotePower,   ///< flag: a remote command may shut this PC down
    MetricsPort,   ///< integer: 0 for no metrics, else 1 to 65535
    UpdateEnabled, ///< flag: ask for a newer version once a day
    UpdateAddress, ///< text: where; empty for nowhere
    Count,
};

/// Lines on the page that say how something is now.
enum class SettingStatus {
    Autostart, ///< what keeps the system from starting the program; empty while all is well
    Rate,      ///< what a kWh costs now, and whether there are periods
    Socket,
    Mqtt,
    Metrics,
    Sensors,
    Data,   ///< the data folder
    Update, ///< what the last check for a newer version has found
    Count,
};

} // namespace zpsg::ui
