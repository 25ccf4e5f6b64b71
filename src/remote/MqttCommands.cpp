#include "remote/MqttCommands.h"

#include "remote/JsonKeys.h"
#include "remote/Logging.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QVariant>

#include <cmath>
#include <limits>

namespace zpsg::remote {
namespace {

constexpr double kLowestEfficiency = 40.0;  // %
constexpr double kHighestEfficiency = 99.5; // %

std::optional<int> integer(const QJsonValue &value) {
    if (value.isString()) {
        bool valid = false;
        const int number = value.toString().toInt(&valid);
        return valid ? std::optional(number) : std::nullopt;
    }
    const double number = value.toDouble(std::numeric_limits<double>::quiet_NaN());
    const bool fits = number == std::trunc(number) && std::abs(number) <= std::numeric_limits<int>::max();
    return fits ? std::optional(static_cast<int>(number)) : std::nullopt;
}

QString loadText(double watts, double ratedWatts) {
    return ratedWatts > 0.0 ? QString::number(watts / ratedWatts * 100.0, 'g', 6) : QStringLiteral("0");
}

} // namespace

std::optional<MqttCommand> parseCommand(const QString &text) {
    const QByteArray json = text.toUtf8();
    if (hasRepeatedKey(json)) {
        return std::nullopt;
    }
    const auto object = QJsonDocument::fromJson(json).object();
    const auto comm = integer(object.value(QLatin1String("comm")));
    if (!comm) {
        return std::nullopt;
    }
    return MqttCommand{*comm, object.value(QLatin1String("clientID")).toVariant().toString(),
                       object.value(QLatin1String("status")).toVariant().toString()};
}

QByteArray messageBytes(const QString &machine, const QString &person, const QString &code,
                        const QString &status) {
    const QJsonObject message{{QStringLiteral("m_id"), machine},
                              {QStringLiteral("p_id"), person},
                              {QStringLiteral("comm"), code},
                              {QStringLiteral("status"), status}};
    return QString::fromUtf8(QJsonDocument(message).toJson(QJsonDocument::Compact)).toLatin1();
}

QString readingsText(const psu::TelemetryRecord &record, double ratedWatts, double plausibleEfficiency) {
    const double recorded = record.number(QStringLiteral("EFF"));
    const bool plausible = recorded >= kLowestEfficiency && recorded <= kHighestEfficiency;
    const QString efficiency =
        plausible ? record.text(QStringLiteral("EFF")) : QString::number(plausibleEfficiency, 'g', 6);
    const QString load = loadText(record.number(QStringLiteral("WATTS")), ratedWatts);
    qCDebug(lcRemote).noquote().nospace() << "outWattPrec:" << load;
    return QStringList{record.text(QStringLiteral("Temp")), record.text(QStringLiteral("WATTS")), efficiency,
                       record.text(QStringLiteral("FanSpeed")), load}
        .join(QLatin1Char('!'));
}

} // namespace zpsg::remote
