// Whatever a client sends: the bytes go through framing, decoder and tables as they do from a connection. The
// first byte says in how large pieces they arrive; "raw" text between separators is also tried as the JSON
// inside of a message, which random Base64 seldom becomes.

#include "remote/SocketCommands.h"
#include "remote/SocketFraming.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace zpsg::remote;

namespace {

constexpr int kLongest = 4096; // bytes of a piece

void check(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void examine(const QByteArray &piece) {
    const SocketPiece decoded = decodePiece(piece);
    check(decoded.kind == SocketPiece::Kind::Command || (decoded.command == 0 && decoded.data.isEmpty()));
    for (const LightKind kind : {LightKind::Single, LightKind::Plus, LightKind::Duo}) {
        const auto *row = findCommand(kind, decoded.command);
        check(row == nullptr || row->command == decoded.command);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const int step = data[0] + 1;
    const QByteArray bytes(reinterpret_cast<const char *>(data) + 1, static_cast<int>(size) - 1);
    looksLikeHttp(bytes.left(kHttpOpening));
    SocketFraming framing(kLongest);
    QByteArray joined;
    for (int from = 0; from < bytes.size(); from += step) {
        framing.append(bytes.mid(from, step));
        while (const auto piece = framing.next()) {
            check(piece->size() <= kLongest);
            joined += *piece + SocketFraming::kSeparator;
            examine(*piece);
            examine(piece->toBase64());
        }
    }
    // Cutting changes nothing, up to a piece that is too long.
    check(bytes.startsWith(joined));
    check(framing.tooLong() || !bytes.mid(joined.size()).contains(SocketFraming::kSeparator));
    return 0;
}
