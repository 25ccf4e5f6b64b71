// INI files that change as a whole or not at all.
#pragma once

#include <QSettings>
#include <QString>

#include <functional>

namespace zpsg::storage {

/// Applies `change` to the file at `path` (made with its folder when it is missing) and puts the result in
/// its place in one step. False, and the file as it was, when any of it can't be written or `change` says
/// false. `change` sets the codec when what it writes is more than ASCII: that makes writing several times
/// slower.
///
/// The settings facility alone does not do that: on a disk that fills up while it writes it takes the part
/// that was written for the whole, and puts that in the old file's place.
bool changeIniFile(const QString &path, const std::function<bool(QSettings &)> &change);

} // namespace zpsg::storage
