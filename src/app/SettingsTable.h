// Every setting: its file, key, type, default and range. No other code builds a settings key.
#pragma once

#include <array>
#include <cstddef>

namespace zpsg::app {

enum class SettingsFile { General, Features, Clock, SaveFunction, VoltCheck };

/// File names below the data directory, by SettingsFile.
inline constexpr std::array kSettingsFileNames{"/config_ZPSG.ini", "/config_Features.ini", "/clockData.ini",
                                               "/saveFunction.ini", "/voltCheck.ini"};

enum class SettingType { Flag, Integer, Real, Text, List };

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
    RecFileNumber,
    RecFiledayNumber,
    CloudAddress,
    AccountKey,
    UploadedFile,
    DayWatts,
    DayDate,
    SensorsEnabled,
    Count,
};

/// `lowest` and `highest` bound Integer and Real; a value outside is read and written as the nearer bound.
struct SettingRow {
    Setting id;
    SettingsFile file;
    const char *key;
    SettingType type;
    const char *fallback;
    double lowest = 0.0;
    double highest = 0.0;
};

inline constexpr double kManyMinutes = 1e9; // some 1900 years
inline constexpr double kManyFiles = 1e9;
inline constexpr double kManyUnits = 1e12; // kWh or money

inline constexpr std::array kSettingsTable{
    SettingRow{Setting::FanDuty, SettingsFile::General, "/FanSetting/FanDuty", SettingType::Integer, "0", 0,
               3},
    SettingRow{Setting::Login, SettingsFile::General, "/Setting/LOGIN", SettingType::Flag, "false"},
    SettingRow{Setting::AskLogin, SettingsFile::General, "/Setting/AskLogin", SettingType::Flag, "true"},
    // 0 Celsius, 1 Fahrenheit
    SettingRow{Setting::TempType, SettingsFile::General, "/Setting/TempType", SettingType::Integer, "0", 0,
               1},
    SettingRow{Setting::Language, SettingsFile::General, "/Setting/Language", SettingType::Text, "en"},
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
    // the dashboard's lower card: 0 last minutes, 1 today, 2 efficiency
    SettingRow{Setting::TrendView, SettingsFile::General, "/Setting/TrendView", SettingType::Integer, "0", 0,
               2},
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
