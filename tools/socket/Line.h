#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace zpsg::socket {

/// What the user types, one line a command.
const char *lineHelp();

struct Line {
    enum class Kind { Nothing, Send, Help, Quit, Wrong };
    Kind kind = Kind::Nothing;
    QByteArray text; ///< to be framed and sent, or why the line is wrong
};

Line parseLine(const QString &typed);

} // namespace zpsg::socket
