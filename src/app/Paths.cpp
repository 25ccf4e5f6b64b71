#include "app/Paths.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace zpsg::app {
namespace {

/// Whether a file can be made there. Asking for the permission is not enough: a full or read-only disk grants
/// it.
bool isWritable(const QString &directory, QString *why = nullptr) {
    QTemporaryFile probe(QDir(directory).filePath(QStringLiteral(".zpsg-probe-XXXXXX")));
    if (probe.open()) {
        return true;
    }
    if (why != nullptr) {
        *why = probe.errorString();
    }
    return false;
}

/// The setup leaves its list of files beside the program. A user may write there when it was installed for
/// that user alone, but what is recorded doesn't belong among files that an update replaces and a removal
/// takes.
bool isInstalled(const QString &applicationDir) {
    return QDir(applicationDir).exists(QStringLiteral("installed.ini"));
}

QString resourcesBeside(const QString &applicationDir) {
    const QDir directory(applicationDir);
    if (directory.exists(QStringLiteral("Language"))) {
        return applicationDir;
    }
    return QDir::cleanPath(directory.filePath(QStringLiteral("../share/zpsg")));
}

} // namespace

std::optional<Paths> findPaths(const QString &executable, const std::optional<QString> &dataDir, bool demo,
                               QString &error) {
    Paths paths;
    paths.executable = executable;
    const QString applicationDir = QFileInfo(executable).absolutePath();
    paths.resources = resourcesBeside(applicationDir);
    if (dataDir) {
        paths.data = QFileInfo(*dataDir).absoluteFilePath();
    } else if (paths.resources == applicationDir && !isInstalled(applicationDir) &&
               isWritable(applicationDir)) {
        paths.data = applicationDir;
    } else {
        paths.data =
            QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/zpsg");
    }
    if (demo) {
        paths.data += QStringLiteral("/demo");
    }
    QString why;
    if (QFileInfo(paths.data).exists() && !QFileInfo(paths.data).isDir()) {
        why = QStringLiteral("it is not a directory");
    } else if (!QDir().mkpath(paths.data)) {
        why = QStringLiteral("it can't be created");
    } else if (isWritable(paths.data, &why)) {
        return paths;
    }
    error = QStringLiteral("the data directory %1 can't be used: %2").arg(paths.data, why);
    return std::nullopt;
}

} // namespace zpsg::app
