// Cuts the byte stream of a control client into its pieces.
#pragma once

#include <QByteArray>

#include <optional>

namespace zpsg::remote {

/// A piece ends with the separator, which is not part of it. Holds at most what was appended since next()
/// last had nothing to give.
class SocketFraming {
public:
    static constexpr char kSeparator = '&';

    /// `longest` is the largest piece in bytes.
    explicit SocketFraming(int longest) : longest_(longest) {}

    void append(const QByteArray &bytes) { bytes_ += bytes; }

    /// The oldest whole piece, once; nothing when there is none, or when one is too long.
    std::optional<QByteArray> next();

    /// A piece, finished or not, was longer than allowed; nothing after it is ever given.
    [[nodiscard]] bool tooLong() const { return tooLong_; }

private:
    int longest_;
    QByteArray bytes_;
    int begin_ = 0;    ///< of the oldest piece
    int searched_ = 0; ///< no separator between begin_ and here, so that single bytes are not searched again
    bool tooLong_ = false;
};

/// `text` as a message on the wire, in either direction.
QByteArray framed(const QByteArray &text);

/// True when a connection's first bytes are those of a web browser. Eight bytes are enough to tell.
bool looksLikeHttp(const QByteArray &opening);
constexpr int kHttpOpening = 8;

} // namespace zpsg::remote
