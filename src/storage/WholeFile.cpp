#include "storage/WholeFile.h"

#include <QSaveFile>

namespace zpsg::storage {

bool replaceFile(const QString &path, const QByteArray &content, QString &why) {
    QSaveFile file(path);
    // flush() tells of a full disk; a commit alone would put the cut file in the old one's place.
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush() &&
        file.commit()) {
        return true;
    }
    why = file.error() == QFileDevice::WriteError ? QStringLiteral("can't be written; is the disk full?")
                                                  : file.errorString();
    return false;
}

} // namespace zpsg::storage
