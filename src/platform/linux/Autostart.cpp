#include "platform/Autostart.h"

#include "platform/linux/DesktopEntry.h"

#include <optional>
#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace zpsg::platform {
namespace {

QString autostartFolder() {
    const QString configured = QFile::decodeName(qgetenv("XDG_CONFIG_HOME"));
    // The XDG rules have relative paths ignored.
    const QString config =
        QDir::isAbsolutePath(configured) ? configured : QDir::homePath() + QStringLiteral("/.config");
    return config + QStringLiteral("/autostart");
}

QString entryPath() { return autostartFolder() + QStringLiteral("/zpsg.desktop"); }

std::optional<std::string> readEntry() {
    QFile file(entryPath());
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.readAll().toStdString();
}

std::string reason(const QString &path, const QString &what) {
    return QStringLiteral("%1: %2").arg(path, what).toStdString();
}

bool writeEntry(const std::string &entry, std::string &error) {
    if (!QDir().mkpath(autostartFolder())) {
        error = reason(autostartFolder(), QStringLiteral("the folder could not be made"));
        return false;
    }
    QSaveFile file(entryPath());
    const auto size = static_cast<qint64>(entry.size());
    // commit() alone would put a half-written buffer in place: on a full disk the first part of it still goes
    // through, which Qt reports from flush() only.
    if (file.open(QIODevice::WriteOnly) && file.write(entry.data(), size) == size && file.flush() &&
        file.commit()) {
        return true;
    }
    error = reason(entryPath(), file.error() == QFileDevice::NoError
                                    ? QStringLiteral("the entry could not be written in full")
                                    : file.errorString());
    return false;
}

bool removeEntry(std::string &error) {
    QFile file(entryPath());
    if (file.remove() || !file.exists()) {
        return true;
    }
    error = reason(entryPath(), file.errorString());
    return false;
}

} // namespace

bool setAutostart(Autostart mode, const std::string &executable, std::string &error) {
    if (mode == Autostart::Off) {
        return removeEntry(error);
    }
    const std::string exec = execValue(executable, mode == Autostart::Hidden);
    const auto entry = readEntry();
    return (entry && entryStarts(*entry, exec)) || writeEntry(desktopEntry(exec), error);
}

bool autostartEnabled() {
    const auto entry = readEntry();
    return entry && entryInEffect(*entry);
}

bool autostartStarts(const std::string &executable) {
    const auto entry = readEntry();
    return entry && entryInEffect(*entry) &&
           (entryStarts(*entry, execValue(executable, true)) ||
            entryStarts(*entry, execValue(executable, false)));
}

} // namespace zpsg::platform
