// Where the program finds what ships with it, and where it keeps what it writes.
#pragma once

#include <QStringList>

#include <optional>

namespace zpsg::app {

struct Paths {
    QString executable;
    QString resources; ///< holds Language/, Image/ and the other shipped folders
    QString data;      ///< holds the settings files and everything that is recorded

    /// Where curve files are looked for: the user's own go before those that ship.
    [[nodiscard]] QStringList curveFolders() const { return {data, resources}; }
};

/// Decides both. `dataDir`, when given, is used as it is and created when missing; otherwise the data
/// directory is the application's own when what ships stands beside it, no setup has put it there
/// (docs/files.md) and it is writable (portable use), else the user's application-data directory. `demo`
/// moves it to the folder "demo" below. Nothing, and `error` in plain words, when the directory can't be
/// written.
std::optional<Paths> findPaths(const QString &executable, const std::optional<QString> &dataDir, bool demo,
                               QString &error);

} // namespace zpsg::app
