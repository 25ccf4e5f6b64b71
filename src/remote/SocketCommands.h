// What control clients may ask for: the decoder of their messages, and a table of commands for each kind of
// lighting.
#pragma once

#include <QByteArray>
#include <QVariantMap>

#include <optional>

namespace zpsg::remote {

/// The lighting of the connected supply; the numbers are the series codes of the models' table.
enum class LightKind { Single = 0, Plus = 1, Duo = 2 };

/// Nothing when `code` is none of them.
std::optional<LightKind> lightKind(int code);

struct SocketPiece {
    enum class Kind {
        Bad,       ///< not Base64, not JSON, not an object or with a key twice: dropped without an answer
        KeepAlive, ///< asks for nothing
        Command,
    };
    Kind kind = Kind::Bad;
    int command = 0; ///< 0 also when it is absent or not an integral number
    QVariantMap data;
};

/// `piece` as it stood between two separators; white space around it does not matter.
SocketPiece decodePiece(const QByteArray &piece);

/// What a signal of SocketHelper carries.
enum class Carries { Nothing, StateQuery, Data };

/// A command's effect, in the order of the members. Null: there is none of that.
struct CommandRow {
    int command;
    const char *log;
    const char *before; ///< a signal without arguments
    const char *signal;
    Carries carries;
};

/// Null for a command this kind of lighting does not have.
const CommandRow *findCommand(LightKind kind, int command);

} // namespace zpsg::remote
