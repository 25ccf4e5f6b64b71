// The debug lines that are written while it lives, with logging rules of its own.
#pragma once

#include <QLoggingCategory>
#include <QStringList>

namespace support {

class DebugLines {
public:
    explicit DebugLines(const QString &rules) {
        lines().clear();
        QLoggingCategory::setFilterRules(rules);
        previous_ = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &text) { lines().append(text); });
    }
    ~DebugLines() {
        qInstallMessageHandler(previous_);
        QLoggingCategory::setFilterRules(QString());
    }
    DebugLines(const DebugLines &) = delete;
    DebugLines &operator=(const DebugLines &) = delete;

    static QString text() { return lines().join(QLatin1Char('\n')); }

private:
    static QStringList &lines() {
        static QStringList kept;
        return kept;
    }
    QtMessageHandler previous_;
};

} // namespace support
