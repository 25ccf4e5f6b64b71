// Files that are replaced as a whole or not at all.
#pragma once

#include <QByteArray>
#include <QString>

namespace zpsg::storage {

/// False, the old file as it was and `why` in plain words when it can't be written.
[[nodiscard]] bool replaceFile(const QString &path, const QByteArray &content, QString &why);

} // namespace zpsg::storage
