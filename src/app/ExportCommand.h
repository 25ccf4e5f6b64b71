// "zpsg export": the records of a range of days as comma-separated text, without a window.
#pragma once

#include "records/RangeExport.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <cstdio>
#include <functional>
#include <optional>

namespace zpsg::app {

struct ExportCommand {
    QDate from;
    QDate to; ///< inclusive, not before `from`
    records::ExportMode mode = records::ExportMode::Minutes;
    std::optional<QString> output; ///< a file; standard output without one
    std::optional<QString> dataDir;
    bool demo = false;
    bool showHelp = false; ///< nothing else is looked at then
};

/// Understands the arguments behind the word "export", or gives nothing and `error`, one line, in plain
/// words: wrong use.
std::optional<ExportCommand> parseExportCommand(const QStringList &arguments, QString &error);

/// Exports into command.output or to `out`, and gives the exit code of the process. What there is to say goes
/// to `notes`: errors, rows that can't be read, and how far it is when somebody looks at it and has waited
/// half a second. Between two steps of some milliseconds it asks `cancelled`, when there is one; true ends it
/// with the old file in place.
int runExport(const ExportCommand &command, const QString &dataDir, std::FILE *out, std::FILE *notes,
              const std::function<bool()> &cancelled = {});

} // namespace zpsg::app
