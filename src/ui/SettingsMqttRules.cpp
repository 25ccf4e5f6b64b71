#include "ui/SettingsMqttRules.h"

#include <QFileInfo>
#include <QObject>
#include <QRegularExpression>

namespace zpsg::ui {
namespace {

QString hostFault(const QString &text) {
    // One colon is a port's; an IPv6 address has at least two.
    static const QRegularExpression more(QStringLiteral("[\\s/]|^[^:]*:[^:]*$"));
    return text.contains(more) ? qtTrId("SETTING_STR_FAULT_HOST") : QString();
}

QString prefixFault(const QString &text) {
    static const QRegularExpression forbidden(QStringLiteral("[\\s#+]"));
    if (text.isEmpty()) {
        return qtTrId("SETTING_STR_FAULT_NO_PREFIX");
    }
    if (text.contains(forbidden)) {
        return qtTrId("SETTING_STR_FAULT_PREFIX");
    }
    return text.startsWith(QLatin1Char('/')) ? qtTrId("SETTING_STR_FAULT_SLASH") : QString();
}

/// It becomes part of a topic.
QString idFault(const QString &text) {
    static const QRegularExpression forbidden(QStringLiteral("[#+]"));
    return text.contains(forbidden) ? qtTrId("SETTING_STR_FAULT_ID") : QString();
}

QString fileFault(const QString &text) {
    const QFileInfo file(text);
    if (text.isEmpty() || (file.isFile() && file.isReadable())) {
        return {};
    }
    return file.isFile() ? qtTrId("SETTING_STR_FAULT_UNREADABLE") : qtTrId("SETTING_STR_FAULT_FILE");
}

} // namespace

int portNumber(const QString &text) {
    static const QRegularExpression digits(QStringLiteral("^[0-9]{1,5}$"));
    const int port = digits.match(text).hasMatch() ? text.toInt() : 0;
    return port <= kLastPort ? port : 0;
}

QString mqttFault(SettingField field, const QString &text) {
    switch (field) {
    case SettingField::MqttHost:
        return hostFault(text);
    case SettingField::MqttPort:
        return portNumber(text) == 0 ? qtTrId("SETTING_STR_FAULT_PORT").arg(kLastPort) : QString();
    case SettingField::MqttPublishPrefix:
    case SettingField::MqttSubscribePrefix:
        return prefixFault(text);
    case SettingField::MqttAccountId:
    case SettingField::MqttProductId:
        return idFault(text);
    case SettingField::MqttCaFile:
        return fileFault(text);
    default:
        return {};
    }
}

} // namespace zpsg::ui
