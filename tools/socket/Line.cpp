#include "socket/Line.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace zpsg::socket {
namespace {

Line wrong(const QString &why) { return {Line::Kind::Wrong, why.toUtf8()}; }

Line sent(const QJsonObject &object) {
    return {Line::Kind::Send, QJsonDocument(object).toJson(QJsonDocument::Compact)};
}

Line numbered(int command, const QString &data) {
    const auto document = QJsonDocument::fromJson(data.toUtf8());
    if (!data.isEmpty() && !document.isObject()) {
        return wrong(QStringLiteral("Data is no JSON object: %1").arg(data));
    }
    return sent({{QStringLiteral("command"), command}, {QStringLiteral("Data"), document.object()}});
}

} // namespace

const char *lineHelp() {
    return R"(  state                  asks for the lighting's state, which is command 0
  N [{...}]              command number N with its "Data", e.g. 3 {"rColor":255,"gColor":0,"bColor":0}
  {"command":N,...}      the whole message
  keepalive              asks for nothing
  help, quit
)";
}

Line parseLine(const QString &typed) {
    const QString line = typed.trimmed();
    if (line.isEmpty()) {
        return {};
    }
    if (line == QLatin1String("help")) {
        return {Line::Kind::Help, {}};
    }
    if (line == QLatin1String("quit")) {
        return {Line::Kind::Quit, {}};
    }
    if (line == QLatin1String("keepalive")) {
        return {Line::Kind::Send, "07"};
    }
    if (line == QLatin1String("state")) {
        return numbered(0, {});
    }
    if (line.startsWith(QLatin1Char('{'))) {
        const auto document = QJsonDocument::fromJson(line.toUtf8());
        return document.isObject() ? sent(document.object())
                                   : wrong(QStringLiteral("no JSON object: %1").arg(line));
    }
    bool isNumber = false;
    const int command = line.section(QLatin1Char(' '), 0, 0).toInt(&isNumber);
    return isNumber ? numbered(command, line.section(QLatin1Char(' '), 1).trimmed())
                    : wrong(QStringLiteral("unknown command '%1'; try help").arg(line));
}

} // namespace zpsg::socket
