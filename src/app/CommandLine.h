// The command line.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace zpsg::app {

/// Exit codes of the process.
inline constexpr int kExitOk = 0;
inline constexpr int kExitFailed = 1;
inline constexpr int kExitWrongUse = 2;

struct CommandLine {
    bool startHidden = false; ///< the first argument is exactly "open"
    bool demo = false;
    QString demoModel; ///< empty: the default
    int fastClock = 0; ///< how many times faster than time a demo runs; 0: as fast as time
    std::optional<QString> dataDir;
    bool headless = false;
    bool json = false;
    bool listModels = false;
    bool showVersion = false;
    bool showHelp = false;
    QStringList ignored; ///< words that mean nothing here; the program starts all the same
};

/// Understands the arguments after the program's name, or gives nothing and `error`, one line, in plain
/// words.
std::optional<CommandLine> parseCommandLine(const QStringList &arguments, QString &error);

/// The text of --list-models: a line for each model with an efficiency curve, tab-separated: position, code,
/// rated watts, curve file, series code.
QString modelList();

/// The text of --help.
QString helpText();

} // namespace zpsg::app
