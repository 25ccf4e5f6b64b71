// Where a title lives in the file system: a lock file and a socket in a directory that only this user can
// enter.
#pragma once

#include <optional>
#include <string>

namespace zpsg::platform {

struct TitlePaths {
    std::string lock;
    std::string socket; ///< short enough for a socket address
};

/// The paths of a title, below $XDG_RUNTIME_DIR when that is a directory of this user's and short enough,
/// else below /tmp/zpsg-<uid>, which is made when missing. None when that directory can't be trusted or the
/// title is too long; a debug line says why.
std::optional<TitlePaths> titlePaths(const std::string &title);

/// Makes `path` with mode 0700 unless it is there. True when it then is a real directory (no symbolic link)
/// of this user's with exactly that mode: in a directory where everybody may write, another user could have
/// made it first.
bool ensurePrivateDirectory(const std::string &path);

/// The title as a file name: letters, digits, '-' and '_' as they are, every other byte as %XX. Different
/// titles give different names.
std::string titleFileName(const std::string &title);

} // namespace zpsg::platform
