#include "app/SettingsBackup.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace zpsg::app {
namespace {

const QLatin1String kFormat("zpsg-settings");
constexpr int kVersion = 1;
/// A document of all settings has a few kilobytes.
constexpr int kMostBytes = 1'000'000;

} // namespace

bool isPreference(Setting id) {
    static constexpr std::array kOthers{
        Setting::TotalUsedTime,  Setting::LastUsedTime,     Setting::TotalUsedKwh,
        Setting::LastUsedKwh,    Setting::TotalWallKwh,     Setting::LastWallKwh,
        Setting::TotalUsedCost,  Setting::LastUsedCost,     Setting::Login,
        Setting::Account,        Setting::AskLogin,         Setting::SelfFilledInSerial,
        Setting::RecFileNumber,  Setting::RecFiledayNumber, Setting::UploadedFile,
        Setting::DayWatts,       Setting::DayDate,          Setting::AccountKey,
        Setting::MqttPassword,   Setting::DuoWritten,       Setting::WindowPage,
        Setting::FanDataWritten, Setting::UpdateNext,       Setting::UpdateTold,
        Setting::UpdateFound,
    };
    return std::find(kOthers.begin(), kOthers.end(), id) == kOthers.end();
}

QByteArray exportSettings(const Settings &settings) {
    QJsonObject values;
    for (const SettingRow &each : kSettingsTable) {
        if (isPreference(each.id)) {
            values.insert(QLatin1String(each.key), QJsonValue::fromVariant(settings.value(each.id)));
        }
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("format"), kFormat},
                                     {QStringLiteral("version"), kVersion},
                                     {QStringLiteral("settings"), values}})
        .toJson();
}

std::optional<QMap<Setting, QVariant>> readSettings(const QByteArray &document) {
    if (document.size() > kMostBytes) {
        return std::nullopt;
    }
    const QJsonObject whole = QJsonDocument::fromJson(document).object();
    const int version = whole.value(QStringLiteral("version")).toInt();
    const QJsonValue settings = whole.value(QStringLiteral("settings"));
    if (whole.value(QStringLiteral("format")) != kFormat || version < 1 || version > kVersion ||
        !settings.isObject()) {
        return std::nullopt;
    }
    QMap<Setting, QVariant> values;
    for (const SettingRow &each : kSettingsTable) {
        const QJsonValue value = settings.toObject().value(QLatin1String(each.key));
        if (isPreference(each.id) && (value.isBool() || value.isDouble() || value.isString())) {
            values.insert(each.id, value.toVariant());
        }
    }
    return values;
}

QMap<Setting, QVariant> defaultSettings() {
    QMap<Setting, QVariant> values;
    for (const SettingRow &each : kSettingsTable) {
        if (isPreference(each.id)) {
            values.insert(each.id, QString::fromLatin1(each.fallback));
        }
    }
    return values;
}

} // namespace zpsg::app
