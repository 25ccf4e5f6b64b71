#include "app/SettingsFeed.h"

#include "app/EnergyFeed.h"
#include "app/Logging.h"
#include "app/PcFeed.h"
#include "app/SettingsBackup.h"
#include "platform/Autostart.h"
#include "remote/SocketHelper.h"
#include "storage/WholeFile.h"
#include "ui/SettingsPage.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QUrl>

#include <algorithm>

namespace zpsg::app {

using psu::AlarmGroup;
using ui::SettingField;
using ui::SettingStatus;

namespace {

struct Row {
    SettingField field;
    Setting setting;
};

constexpr std::array kRows{
    Row{SettingField::Language, Setting::Language},
    Row{SettingField::TemperatureUnit, Setting::TempType},
    Row{SettingField::TextSize, Setting::TextSize},
    Row{SettingField::Autostart, Setting::Autostart},
    Row{SettingField::StartHidden, Setting::StartHidden},
    Row{SettingField::TrayFigure, Setting::TrayFigure},
    Row{SettingField::VoltWarning, Setting::VoltWarning},
    Row{SettingField::FanWarning, Setting::FanWarning},
    Row{SettingField::TempWarning, Setting::TempWarning},
    Row{SettingField::Sensors, Setting::SensorsEnabled},
    Row{SettingField::SocketAllowRemote, Setting::SocketAllowRemote},
    Row{SettingField::MqttHost, Setting::MqttHost},
    Row{SettingField::MqttPort, Setting::MqttPort},
    Row{SettingField::MqttPublishPrefix, Setting::MqttPublishPrefix},
    Row{SettingField::MqttSubscribePrefix, Setting::MqttSubscribePrefix},
    Row{SettingField::MqttAccountId, Setting::MqttAccountId},
    Row{SettingField::MqttProductId, Setting::MqttProductId},
    Row{SettingField::MqttUser, Setting::MqttUser},
    Row{SettingField::MqttPassword, Setting::MqttPassword},
    Row{SettingField::MqttCaFile, Setting::MqttCaFile},
    Row{SettingField::MqttDiscovery, Setting::MqttDiscovery},
    Row{SettingField::RemotePower, Setting::RemotePower},
    Row{SettingField::MetricsPort, Setting::MetricsPort},
    Row{SettingField::UpdateEnabled, Setting::UpdateEnabled},
    Row{SettingField::UpdateAddress, Setting::UpdateAddress},
};

constexpr bool rowsAreComplete() {
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        if (kRows[i].field != static_cast<SettingField>(i)) {
            return false;
        }
    }
    return kRows.size() == static_cast<std::size_t>(SettingField::Count);
}
static_assert(rowsAreComplete(), "one row a field, in the order of the enumeration");

Setting settingOf(SettingField field) { return kRows.at(static_cast<std::size_t>(field)).setting; }

} // namespace

SettingsFeed::SettingsFeed(Parts parts, ui::SettingsPage &page, QObject *parent)
    : QObject(parent), parts_(std::move(parts)), page_(page) {
    using ui::SettingsPage;
    connect(&page_, &SettingsPage::changed, this, &SettingsFeed::take);
    connect(&page_, &SettingsPage::mqttApplied, &parts_.remote, &RemoteServices::restartMqtt);
    connect(&page_, &SettingsPage::ratesRequested, this, &SettingsFeed::ratesRequested);
    connect(&page_, &SettingsPage::alarmsRequested, this, &SettingsFeed::alarmsRequested);
    connect(&page_, &SettingsPage::openFolderRequested, this,
            [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(parts_.dataDir)); });
    connect(&page_, &SettingsPage::exportRequested, this, &SettingsFeed::exportTo);
    connect(&page_, &SettingsPage::importRequested, this, &SettingsFeed::importFrom);
    connect(&page_, &SettingsPage::resetRequested, this, &SettingsFeed::reset);
    showAll();
}

void SettingsFeed::showAll() {
    for (const Row &row : kRows) {
        page_.setValue(row.field, parts_.settings.value(row.setting));
    }
    page_.setStatus(SettingStatus::Data, QDir::toNativeSeparators(parts_.dataDir));
}

void SettingsFeed::showWarnings() {
    for (const auto field :
         {SettingField::VoltWarning, SettingField::FanWarning, SettingField::TempWarning}) {
        page_.setValue(field, parts_.settings.value(settingOf(field)));
    }
}

void SettingsFeed::take(SettingField field, const QVariant &value) {
    const Setting setting = settingOf(field);
    parts_.settings.write({{setting, value}});
    apply(field);
    emit changed();
}

void SettingsFeed::apply(SettingField field) {
    const auto flag = [this, field] { return parts_.settings.flag(settingOf(field)); };
    switch (field) {
    case SettingField::Language:
        emit languageChosen();
        break;
    case SettingField::TemperatureUnit:
    case SettingField::TextSize:
        emit unitsChosen({QString::number(parts_.settings.integer(Setting::TempType))});
        break;
    case SettingField::Autostart:
    case SettingField::StartHidden:
        alignAutostart();
        break;
    case SettingField::VoltWarning:
        parts_.alarms.setWarning(AlarmGroup::Voltage, flag());
        break;
    case SettingField::FanWarning:
        parts_.alarms.setWarning(AlarmGroup::Fan, flag());
        break;
    case SettingField::TempWarning:
        parts_.alarms.setWarning(AlarmGroup::Temperature, flag());
        break;
    case SettingField::Sensors:
        readSensors(flag());
        break;
    case SettingField::SocketAllowRemote:
        parts_.socket.setAllowRemote(flag());
        break;
    case SettingField::MetricsPort:
        parts_.remote.restartMetrics();
        showMetrics();
        break;
    default:
        break; // MQTT's are taken together; the rest is asked for when it is needed
    }
}

void SettingsFeed::applyAll() {
    for (const Row &row : kRows) {
        apply(row.field);
    }
    parts_.remote.restartMqtt();
    parts_.lighting.reload();
    parts_.fan.reload();
    parts_.usage.reloadTariff();
    showAll();
    emit changed();
}

void SettingsFeed::alignAutostart() {
    if (parts_.executable.empty()) {
        return;
    }
    using platform::Autostart;
    const auto &settings = parts_.settings;
    const Autostart mode = !settings.flag(Setting::Autostart)    ? Autostart::Off
                           : settings.flag(Setting::StartHidden) ? Autostart::Hidden
                                                                 : Autostart::Shown;
    std::string error;
    if (!platform::setAutostart(mode, parts_.executable, error)) {
        qCWarning(lcApp) << "the autostart entry can't be set:" << error.c_str();
    }
    page_.setStatus(SettingStatus::Autostart, QString::fromStdString(error), true);
}

void SettingsFeed::takeUpAutostart() {
    // Switching it off takes the entry away, so one that is there with the setting off comes from outside.
    if (!parts_.settings.flag(Setting::Autostart) && !parts_.executable.empty() &&
        platform::autostartStarts(parts_.executable)) {
        parts_.settings.write({{Setting::Autostart, true}});
        page_.setValue(SettingField::Autostart, true);
    }
    alignAutostart();
}

void SettingsFeed::readSensors(bool on) {
    sensorsFailed_ = false;
    if (on != parts_.settings.flag(Setting::SensorsEnabled)) { // mostly it stands there already
        parts_.settings.write({{Setting::SensorsEnabled, on}});
    }
    page_.setValue(SettingField::Sensors, on);
    if (on) {
        parts_.sensors.start();
    } else {
        parts_.sensors.stop();
    }
    showSensors();
    emit changed();
}

void SettingsFeed::sensorsFailed() {
    sensorsFailed_ = true;
    showSensors();
}

void SettingsFeed::exportTo(const QString &path) {
    QString why;
    const bool written = storage::replaceFile(path, exportSettings(parts_.settings), why);
    page_.showResult(written ? qtTrId("SETTING_STR_EXPORTED").arg(QDir::toNativeSeparators(path))
                             : qtTrId("SETTING_STR_NOT_EXPORTED").arg(why),
                     !written);
}

void SettingsFeed::importFrom(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        page_.showResult(qtTrId("SETTING_STR_NOT_IMPORTED").arg(file.errorString()), true);
        return;
    }
    constexpr qint64 kPlenty = 2'000'000;
    const auto values = readSettings(file.read(kPlenty));
    if (!values) {
        page_.showResult(qtTrId("SETTING_STR_NOT_IMPORTED").arg(qtTrId("SETTING_STR_NO_SETTINGS_FILE")),
                         true);
        return;
    }
    const bool kept = parts_.settings.writeAll(*values);
    applyAll();
    page_.showResult(kept ? qtTrId("SETTING_STR_IMPORTED") : qtTrId("SETTING_STR_NOT_KEPT"), !kept);
}

void SettingsFeed::reset() {
    const bool kept = parts_.settings.writeAll(defaultSettings());
    applyAll();
    page_.showResult(kept ? qtTrId("SETTING_STR_RESET_DONE") : qtTrId("SETTING_STR_NOT_KEPT"), !kept);
}

void SettingsFeed::tick(const QDateTime &now) {
    if (page_.isVisible()) {
        showSocket();
        showMqtt();
        showMetrics();
        showSensors();
        showRate(now);
    }
}

void SettingsFeed::showSocket() {
    const auto port = parts_.socket.port();
    page_.setStatus(SettingStatus::Socket,
                    port != 0
                        ? qtTrId("SETTING_STR_SOCKET_LISTENS").arg(port).arg(parts_.socket.clientCount())
                        : qtTrId("SETTING_STR_PORT_TAKEN").arg(remote::SocketHelper::kPort),
                    port == 0);
}

void SettingsFeed::showMqtt() {
    auto *mqtt = parts_.remote.mqtt();
    if (mqtt == nullptr) {
        page_.setStatus(SettingStatus::Mqtt, qtTrId("SETTING_STR_MQTT_OFF"));
        return;
    }
    const QString host = parts_.settings.text(Setting::MqttHost);
    const bool connected = mqtt->client().isConnected();
    const QString &error = mqtt->lastError();
    page_.setStatus(SettingStatus::Mqtt,
                    connected         ? qtTrId("SETTING_STR_MQTT_CONNECTED").arg(host)
                    : error.isEmpty() ? qtTrId("SETTING_STR_MQTT_CONNECTING").arg(host)
                                      : qtTrId("SETTING_STR_MQTT_FAILED").arg(host, error),
                    !connected && !error.isEmpty());
}

void SettingsFeed::showMetrics() {
    const int wanted = parts_.settings.integer(Setting::MetricsPort);
    const auto port = parts_.remote.metricsPort();
    page_.setStatus(SettingStatus::Metrics,
                    wanted == 0 ? QString()
                    : port != 0 ? QStringLiteral("http://localhost:%1/metrics").arg(port)
                                : qtTrId("SETTING_STR_PORT_TAKEN").arg(wanted),
                    wanted != 0 && port == 0);
}

void SettingsFeed::showSensors() {
    const auto &reading = parts_.sensors.reading();
    page_.setStatus(SettingStatus::Sensors,
                    !parts_.sensors.running() ? qtTrId("SETTING_STR_SENSORS_OFF")
                    : reading.any()           ? pcSummary(reading)
                    : sensorsFailed_          ? pcRemedy()
                                              : qtTrId("SETTING_STR_SENSORS_WAIT"),
                    sensorsFailed_);
}

void SettingsFeed::showRate(const QDateTime &now) {
    const auto &tariff = parts_.usage.tariff();
    page_.setStatus(SettingStatus::Rate, rateInWords(tariff, now, parts_.settings.text(Setting::Currency)));
}

} // namespace zpsg::app
