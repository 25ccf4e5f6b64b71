// What the program zpsg-curve does: makes curve files from their plain source, and shows and writes single
// ones.
#pragma once

#include <QIODevice>
#include <QStringList>

namespace zpsg::curves {

enum ExitCode : int { Done = 0, Failed = 1, WrongUse = 2 };

/// Carries out the program's arguments (without its name). Results go to `out`; what is wrong goes to `err`
/// as one line. A file is written whole or stays as it was; when "make" fails at one curve, those before it
/// are written.
ExitCode runTool(const QStringList &arguments, QIODevice &out, QIODevice &err);

} // namespace zpsg::curves
