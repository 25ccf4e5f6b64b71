#include "storage/IniFile.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>

namespace zpsg::storage {
namespace {

/// Whether the file holds as many keys as it should and its last line is whole: each key has one line.
bool isWhole(const QString &path, int keys) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray text = file.readAll();
    const QList<QByteArray> lines = text.split('\n');
    const auto found = std::count_if(lines.begin(), lines.end(), [](const QByteArray &line) {
        return !line.trimmed().isEmpty() && !line.startsWith('[');
    });
    return found == keys && (text.isEmpty() || text.endsWith('\n'));
}

bool writeAll(const QString &path, const std::function<bool(QSettings &)> &change) {
    QSettings file(path, QSettings::IniFormat);
    if (!change(file)) {
        return false;
    }
    file.sync();
    return file.status() != QSettings::AccessError && isWhole(path, file.allKeys().size());
}

/// The facility takes a file of the same size and time for one that it knows already.
void makeNewer(const QString &path, const QDateTime &than) {
    QFile file(path);
    if (than.isValid() && QFileInfo(path).lastModified() <= than && file.open(QIODevice::ReadWrite)) {
        file.setFileTime(than.addMSecs(1), QFileDevice::FileModificationTime);
    }
}

} // namespace

bool changeIniFile(const QString &path, const std::function<bool(QSettings &)> &change) {
    const QString draft = path + QStringLiteral(".new");
    // What a run that was killed left: the facility would wait half a minute for its lock.
    QFile::remove(draft);
    QFile::remove(draft + QStringLiteral(".lock"));
    const QDateTime before = QFileInfo(path).lastModified();
    if (QFile::exists(path) && !QFile::copy(path, draft)) {
        QFile::remove(draft);
        return false;
    }
    bool done = writeAll(draft, change);
    if (done) {
        makeNewer(draft, before);
        std::error_code error;
        std::filesystem::rename(draft.toStdU16String(), path.toStdU16String(), error);
        done = !error;
    }
    if (!done) {
        QFile::remove(draft);
    }
    return done;
}

} // namespace zpsg::storage
