#pragma once

#include <QByteArray>

namespace zpsg::remote {

/// True when an object in `json` has a key twice. To be asked before the toolkit's parser, which never gives
/// back the memory of an object or array whose key comes again; somebody could fill this program's memory
/// with that. What is no JSON gives either answer.
bool hasRepeatedKey(const QByteArray &json);

} // namespace zpsg::remote
