// Every setting: its file, key, type, default and range. No other code builds a settings key.
#pragma once

#include <array>
#include <cstddef>

namespace zpsg::app {

enum class SettingsFile { General, Features, Clock, SaveFunction, VoltCheck, Lighting };

/// File names below the data directory, by SettingsFile.
inline constexpr std::array kSettingsFileNames{"/config_ZPSG.ini", "/config_Features.ini",
                                               "/clockData.ini",   "/saveFunction.ini",
                                               "/voltCheck.ini",   "/config_12LED.ini"};

enum class SettingType {
    Flag,
    Integer, ///< a value outside its range is read and written as the nearer bound
    Choice,  ///< an integer that numbers a thing: outside its range the default stands in
    Real,    ///< as Integer
    Text,
    List,
};

enum class Setting {
    FanDuty,
    Login,
    AskLogin,
    TempType,
    Language,
    CostTip,
    TotalUsedTime,
    LastUsedTime,
    TotalUsedKwh,
    LastUsedKwh,
    TotalUsedCost,
    LastUsedCost,
    Account,
    SelfFilledInSerial,
    Autostart,
    VoltWarning,
    FanWarning,
    TempWarning,
    TrendView,
    Currency,
    TimeOfUse,
    TotalWallKwh,
    LastWallKwh,
    StartHidden,
    TrayFigure,
    TrayTold,
    WindowWidth,
    WindowHeight,
    WindowPage,
    TextSize,
    RecFileNumber,
    RecFiledayNumber,
    CloudAddress,
    AccountKey,
    UploadedFile,
    DayWatts,
    DayDate,
    SensorsEnabled,
    SingleOff,
    SingleColour,
    SingleColourMode,
    SingleBright,
    PlusRed,
    PlusGreen,
    PlusBlue,
    PlusBright,
    PlusLightMode,
    PlusColourMode,
    PlusSpeed,
    PlusOff,
    DuoWritten,
    DuoOn,
    DuoLightMode,
    DuoColourMode,
    DuoSpeedMode,
    DuoRed,
    DuoSingleRed,
    DuoGreen,
    DuoSingleGreen,
    DuoBlue,
    DuoSingleBlue,
    DuoBright,
    DuoSingleBright,
    SingleLightMode,
    RingGauge,
    RingSafePalette,
    RingAlarm,
    RingOffWhenLocked,
    CustomFanDuty,
    CustomFanPercent,
    FanDataWritten,
    FanCurveOn,
    FanCurveSource,
    FanCurveTemperature,
    FanCurveLoad,
    FanCurveHysteresis,
    FanCurveMinSeconds,
    SocketAllowRemote,
    MqttHost,
    MqttPort,
    MqttPublishPrefix,
    MqttSubscribePrefix,
    MqttAccountId,
    MqttProductId,
    MqttUser,
    MqttPassword,
    MqttCaFile,
    MqttDiscovery,
    RemotePower,
    MetricsPort,
    UpdateEnabled,
    UpdateAddress,
    UpdateNext,
    UpdateTold,
    UpdateFound,
    Count,
};

/// `lowest` and `highest` bound numbers. A row with `entries` is a list of that many numbers of its type,
/// kept as a text of them joined by ","; each entry that is missing or no number is taken from the default.
struct SettingRow {
    Setting id;
    SettingsFile file;
    const char *key;
    SettingType type;
    const char *fallback;
    double lowest = 0.0;
    double highest = 0.0;
    int entries = 0;
};

inline constexpr double kManyMinutes = 1e9; // some 1900 years
inline constexpr double kManyFiles = 1e9;
inline constexpr double kManyUnits = 1e12; // kWh or money

inline constexpr std::array kSettingsTable{
    // the fan's mode; -1 while none was chosen
    SettingRow{Setting::FanDuty, SettingsFile::General, "/FanSetting/FanDuty", SettingType::Integer, "-1", -1,
               3},
    SettingRow{Setting::Login, SettingsFile::General, "/Setting/LOGIN", SettingType::Flag, "false"},
    SettingRow{Setting::AskLogin, SettingsFile::General, "/Setting/AskLogin", SettingType::Flag, "true"},
    // 0 Celsius, 1 Fahrenheit
    SettingRow{Setting::TempType, SettingsFile::General, "/Setting/TempType", SettingType::Integer, "0", 0,
               1},
    // the name of a file in Language/; empty: the system's language
    SettingRow{Setting::Language, SettingsFile::General, "/Setting/Language", SettingType::Text, ""},
    // money for a kWh
    SettingRow{Setting::CostTip, SettingsFile::General, "/Setting/Cost_tip", SettingType::Real, "0", 0, 1e6},
    // minutes
    SettingRow{Setting::TotalUsedTime, SettingsFile::General, "/Setting/totalUsedTime", SettingType::Integer,
               "0", 0, kManyMinutes},
    SettingRow{Setting::LastUsedTime, SettingsFile::General, "/Setting/lastUsedTime", SettingType::Integer,
               "0", 0, kManyMinutes},
    SettingRow{Setting::TotalUsedKwh, SettingsFile::General, "/Setting/totalUsedKWH", SettingType::Real, "0",
               0, kManyUnits},
    SettingRow{Setting::LastUsedKwh, SettingsFile::General, "/Setting/lastUsedKWH", SettingType::Real, "0", 0,
               kManyUnits},
    SettingRow{Setting::TotalUsedCost, SettingsFile::General, "/Setting/totalUsedCost", SettingType::Real,
               "0", 0, kManyUnits},
    SettingRow{Setting::LastUsedCost, SettingsFile::General, "/Setting/lastUsedCost", SettingType::Real, "0",
               0, kManyUnits},
    SettingRow{Setting::Account, SettingsFile::General, "/Setting/Account", SettingType::Text, ""},
    SettingRow{Setting::SelfFilledInSerial, SettingsFile::General, "/Setting/self_Fill_In_SN",
               SettingType::Text, ""},
    SettingRow{Setting::Autostart, SettingsFile::General, "/Setting/Autostart", SettingType::Flag, "false"},
    SettingRow{Setting::VoltWarning, SettingsFile::General, "/Setting/VoltWarning", SettingType::Flag,
               "true"},
    SettingRow{Setting::FanWarning, SettingsFile::General, "/Setting/FanWarning", SettingType::Flag, "true"},
    SettingRow{Setting::TempWarning, SettingsFile::General, "/Setting/TempWarning", SettingType::Flag,
               "true"},
    // the dashboard's lower card: 0 last minutes, 1 today, 2 efficiency, 3 energy, 4 the PC
    SettingRow{Setting::TrendView, SettingsFile::General, "/Setting/TrendView", SettingType::Choice, "0", 0,
               4},
    // of money, as an ISO 4217 code; empty: the country's
    SettingRow{Setting::Currency, SettingsFile::General, "/Setting/Currency", SettingType::Text, ""},
    // rates by the hours of the week, as power::Tariff writes them; empty: Cost_tip at all times
    SettingRow{Setting::TimeOfUse, SettingsFile::General, "/Setting/TimeOfUse", SettingType::Text, ""},
    // as totalUsedKWH and lastUsedKWH, at the wall instead of at the output
    SettingRow{Setting::TotalWallKwh, SettingsFile::General, "/Setting/totalWallKWH", SettingType::Real, "0",
               0, kManyUnits},
    SettingRow{Setting::LastWallKwh, SettingsFile::General, "/Setting/lastWallKWH", SettingType::Real, "0", 0,
               kManyUnits},
    // started by the system: straight into the tray
    SettingRow{Setting::StartHidden, SettingsFile::General, "/Setting/StartHidden", SettingType::Flag,
               "true"},
    // on the tray's icon: 0 load, 1 temperature, 2 nothing
    SettingRow{Setting::TrayFigure, SettingsFile::General, "/Setting/TrayFigure", SettingType::Choice, "0", 0,
               2},
    // the user knows that a closed window goes on in the tray
    SettingRow{Setting::TrayTold, SettingsFile::General, "/Setting/TrayTold", SettingType::Flag, "false"},
    // as the window was left; device-independent pixels
    SettingRow{Setting::WindowWidth, SettingsFile::General, "/Window/Width", SettingType::Integer, "1100",
               960, 16384},
    SettingRow{Setting::WindowHeight, SettingsFile::General, "/Window/Height", SettingType::Integer, "720",
               620, 16384},
    SettingRow{Setting::WindowPage, SettingsFile::General, "/Window/Page", SettingType::Choice, "0", 0, 6},
    // 0 usual, 1 large
    SettingRow{Setting::TextSize, SettingsFile::General, "/Window/TextSize", SettingType::Choice, "0", 0, 1},
    // the newest record file, and the newest that is settled
    SettingRow{Setting::RecFileNumber, SettingsFile::General, "/Setting/RecFileNumber", SettingType::Integer,
               "0", 0, kManyFiles},
    SettingRow{Setting::RecFiledayNumber, SettingsFile::General, "/Setting/RecFiledayNumber",
               SettingType::Integer, "0", 0, kManyFiles},
    // the record service; nothing is sent while it is empty
    SettingRow{Setting::CloudAddress, SettingsFile::General, "/Cloud/Address", SettingType::Text, ""},
    SettingRow{Setting::AccountKey, SettingsFile::General, "/Cloud/AccountKey", SettingType::Text, ""},
    SettingRow{Setting::UploadedFile, SettingsFile::General, "/Cloud/UploadedFile", SettingType::Integer, "0",
               0, kManyFiles},
    // watts, a text for each four minutes from 06:00
    SettingRow{Setting::DayWatts, SettingsFile::Clock, "/TimeData/WATTSData", SettingType::List, ""},
    SettingRow{Setting::DayDate, SettingsFile::Clock, "/TimeData/Date", SettingType::Text, ""}, // MM-dd
    SettingRow{Setting::SensorsEnabled, SettingsFile::Features, "/Features/PcSensors", SettingType::Flag,
               "false"},
    // The lights. Colours are 0 to 255, brightness of a single-colour ring is in percent, of the others a
    // factor.
    SettingRow{Setting::SingleOff, SettingsFile::Lighting, "/single_LED_Color/isTurnOffLed",
               SettingType::Flag, "false"},
    SettingRow{Setting::SingleColour, SettingsFile::Lighting, "/single_LED_Color/COLOR_RGB",
               SettingType::Integer, "0,127,255", 0, 255, 3},
    SettingRow{Setting::SingleColourMode, SettingsFile::Lighting, "/single_LED_Color/colorMode",
               SettingType::Choice, "0", 0, 1},
    SettingRow{Setting::SingleBright, SettingsFile::Lighting, "/single_LED_Color/Bright",
               SettingType::Integer, "100", 0, 100},
    SettingRow{Setting::PlusRed, SettingsFile::Lighting, "/12LED_Color/RColor", SettingType::Integer,
               "0,0,0,0,127,255,255,255,255,255,127,0,0", 0, 255, 13},
    SettingRow{Setting::PlusGreen, SettingsFile::Lighting, "/12LED_Color/GColor", SettingType::Integer,
               "127,255,255,255,255,255,127,0,0,0,0,0,127", 0, 255, 13},
    SettingRow{Setting::PlusBlue, SettingsFile::Lighting, "/12LED_Color/BColor", SettingType::Integer,
               "255,255,127,0,0,0,0,0,127,255,255,255,255", 0, 255, 13},
    SettingRow{Setting::PlusBright, SettingsFile::Lighting, "/12LED_Color/Bright", SettingType::Real,
               "1,1,1,1,1,1,1,1,1,1,1,1,1", 0, 1, 13},
    SettingRow{Setting::PlusLightMode, SettingsFile::Lighting, "/12LED_Color/lightMode", SettingType::Choice,
               "0", 0, 7},
    SettingRow{Setting::PlusColourMode, SettingsFile::Lighting, "/12LED_Color/colorMode", SettingType::Choice,
               "0", 0, 1},
    SettingRow{Setting::PlusSpeed, SettingsFile::Lighting, "/12LED_Color/lightSpeed", SettingType::Choice,
               "2", 0, 3},
    SettingRow{Setting::PlusOff, SettingsFile::Lighting, "/12LED_Color/isTurnOffLed", SettingType::Flag,
               "false"},
    SettingRow{Setting::DuoWritten, SettingsFile::Lighting, "/18LED_Color/isWriteData", SettingType::Flag,
               "false"},
    SettingRow{Setting::DuoOn, SettingsFile::Lighting, "/18LED_Color/isLEDTurnOn", SettingType::Flag, "true"},
    SettingRow{Setting::DuoLightMode, SettingsFile::Lighting, "/18LED_Color/lightMode", SettingType::Choice,
               "0,0", 0, 20, 2},
    SettingRow{Setting::DuoColourMode, SettingsFile::Lighting, "/18LED_Color/colorMode", SettingType::Choice,
               "0,0", 0, 1, 2},
    SettingRow{Setting::DuoSpeedMode, SettingsFile::Lighting, "/18LED_Color/speedMode", SettingType::Choice,
               "0,0", 0, 3, 2},
    SettingRow{Setting::DuoRed, SettingsFile::Lighting, "/18LED_Color/RColor", SettingType::Integer,
               "0,0,0,0,127,255,255,255,255,255,127,0,0,0,0,0,127,255,255,255,255,255,127,0", 0, 255, 24},
    SettingRow{Setting::DuoSingleRed, SettingsFile::Lighting, "/18LED_Color/SingleRColor",
               SettingType::Integer, "255,0", 0, 255, 2},
    SettingRow{Setting::DuoGreen, SettingsFile::Lighting, "/18LED_Color/GColor", SettingType::Integer,
               "127,255,255,255,255,255,127,0,0,0,0,0,127,255,255,255,255,255,127,0,0,0,0,0", 0, 255, 24},
    SettingRow{Setting::DuoSingleGreen, SettingsFile::Lighting, "/18LED_Color/SingleGColor",
               SettingType::Integer, "0,255", 0, 255, 2},
    SettingRow{Setting::DuoBlue, SettingsFile::Lighting, "/18LED_Color/BColor", SettingType::Integer,
               "255,255,127,0,0,0,0,0,127,255,255,255,255,255,127,0,0,0,0,0,127,255,255,255", 0, 255, 24},
    SettingRow{Setting::DuoSingleBlue, SettingsFile::Lighting, "/18LED_Color/SingleBColor",
               SettingType::Integer, "0,0", 0, 255, 2},
    SettingRow{Setting::DuoBright, SettingsFile::Lighting, "/18LED_Color/Bright", SettingType::Real,
               "1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1", 0, 1, 24},
    SettingRow{Setting::DuoSingleBright, SettingsFile::Lighting, "/18LED_Color/SingleBright",
               SettingType::Real, "1,1", 0, 1, 2},
    SettingRow{Setting::SingleLightMode, SettingsFile::SaveFunction, "/Lighting/SingleLightMode",
               SettingType::Choice, "0", 0, 3},
    // what is shown on the ring: 0 its effect, 1 the load, 2 the temperature
    SettingRow{Setting::RingGauge, SettingsFile::SaveFunction, "/Lighting/Gauge", SettingType::Choice, "0", 0,
               2},
    SettingRow{Setting::RingSafePalette, SettingsFile::SaveFunction, "/Lighting/ColourBlindSafe",
               SettingType::Flag, "false"},
    SettingRow{Setting::RingAlarm, SettingsFile::SaveFunction, "/Lighting/AlarmOnRing", SettingType::Flag,
               "true"},
    SettingRow{Setting::RingOffWhenLocked, SettingsFile::SaveFunction, "/Lighting/OffWhenLocked",
               SettingType::Flag, "true"},
    // The fan with addressable lights: its mode as above, and the speed of Custom in percent.
    SettingRow{Setting::CustomFanDuty, SettingsFile::General, "/CustomFanSetting/CustomFanDuty",
               SettingType::Integer, "-1", -1, 3},
    SettingRow{Setting::CustomFanPercent, SettingsFile::General, "/CustomFanSetting/customFanSpeedPercent",
               SettingType::Integer, "60", 30, 100},
    SettingRow{Setting::FanDataWritten, SettingsFile::General, "/CustomFanSetting/isWriteFanData",
               SettingType::Flag, "false"},
    SettingRow{Setting::FanCurveOn, SettingsFile::SaveFunction, "/FanCurve/On", SettingType::Flag, "false"},
    // 0 temperature, 1 load
    SettingRow{Setting::FanCurveSource, SettingsFile::SaveFunction, "/FanCurve/Source", SettingType::Choice,
               "0", 0, 1},
    // degrees Celsius or percent of load, and percent of speed: "30:30 56:100"
    SettingRow{Setting::FanCurveTemperature, SettingsFile::SaveFunction, "/FanCurve/Temperature",
               SettingType::Text, ""},
    SettingRow{Setting::FanCurveLoad, SettingsFile::SaveFunction, "/FanCurve/Load", SettingType::Text, ""},
    SettingRow{Setting::FanCurveHysteresis, SettingsFile::SaveFunction, "/FanCurve/Hysteresis",
               SettingType::Integer, "3", 0, 15},
    SettingRow{Setting::FanCurveMinSeconds, SettingsFile::SaveFunction, "/FanCurve/MinSeconds",
               SettingType::Integer, "10", 2, 120},
    // Who may connect to the control socket: this machine's own programs, or anybody.
    SettingRow{Setting::SocketAllowRemote, SettingsFile::General, "/Socket/AllowRemote", SettingType::Flag,
               "false"},
    // The broker; nothing connects while the host is empty.
    SettingRow{Setting::MqttHost, SettingsFile::General, "/Mqtt/Host", SettingType::Text, ""},
    SettingRow{Setting::MqttPort, SettingsFile::General, "/Mqtt/Port", SettingType::Integer, "1883", 1,
               65535},
    SettingRow{Setting::MqttPublishPrefix, SettingsFile::General, "/Mqtt/PublishPrefix", SettingType::Text,
               "zpsg"},
    SettingRow{Setting::MqttSubscribePrefix, SettingsFile::General, "/Mqtt/SubscribePrefix",
               SettingType::Text, "zpsg"},
    SettingRow{Setting::MqttAccountId, SettingsFile::General, "/Mqtt/AccountId", SettingType::Text, ""},
    SettingRow{Setting::MqttProductId, SettingsFile::General, "/Mqtt/ProductId", SettingType::Text, ""},
    SettingRow{Setting::MqttUser, SettingsFile::General, "/Mqtt/User", SettingType::Text, ""},
    SettingRow{Setting::MqttPassword, SettingsFile::General, "/Mqtt/Password", SettingType::Text, ""},
    // With a CA file the connection is encrypted.
    SettingRow{Setting::MqttCaFile, SettingsFile::General, "/Mqtt/CaFile", SettingType::Text, ""},
    SettingRow{Setting::MqttDiscovery, SettingsFile::General, "/Mqtt/Discovery", SettingType::Flag, "false"},
    // 1: a remote command may shut the PC down
    SettingRow{Setting::RemotePower, SettingsFile::General, "/Setting/RemotePower", SettingType::Choice, "0",
               0, 1},
    // 0: no metrics
    SettingRow{Setting::MetricsPort, SettingsFile::General, "/Metrics/Port", SettingType::Integer, "0", 0,
               65535},
    // Whether to ask for a newer version once a day, and where; without an address nothing is asked.
    SettingRow{Setting::UpdateEnabled, SettingsFile::General, "/Update/Enabled", SettingType::Flag, "false"},
    SettingRow{Setting::UpdateAddress, SettingsFile::General, "/Update/Address", SettingType::Text,
               ZPSG_UPDATE_ADDRESS},
    // when to ask again, as ISO 8601 in UTC; the version that the user was told of; the last answer, as JSON
    SettingRow{Setting::UpdateNext, SettingsFile::General, "/Update/NextCheck", SettingType::Text, ""},
    SettingRow{Setting::UpdateTold, SettingsFile::General, "/Update/Told", SettingType::Text, ""},
    SettingRow{Setting::UpdateFound, SettingsFile::General, "/Update/Found", SettingType::Text, ""},
};

constexpr bool settingsTableIsComplete() {
    for (std::size_t i = 0; i < kSettingsTable.size(); ++i) {
        if (kSettingsTable[i].id != static_cast<Setting>(i)) {
            return false;
        }
    }
    return kSettingsTable.size() == static_cast<std::size_t>(Setting::Count);
}
static_assert(settingsTableIsComplete(), "one row a setting, in the order of the enumeration");

constexpr const SettingRow &row(Setting id) { return kSettingsTable.at(static_cast<std::size_t>(id)); }

} // namespace zpsg::app
