#include "remote/SocketFraming.h"

#include <algorithm>
#include <array>

namespace zpsg::remote {

std::optional<QByteArray> SocketFraming::next() {
    const int end = tooLong_ ? -1 : bytes_.indexOf(kSeparator, searched_);
    const int length = (end < 0 ? bytes_.size() : end) - begin_;
    if (tooLong_ || length > longest_) {
        tooLong_ = true;
        bytes_.clear();
        begin_ = searched_ = 0;
        return std::nullopt;
    }
    if (end < 0) {
        bytes_.remove(0, begin_);
        begin_ = 0;
        searched_ = bytes_.size();
        return std::nullopt;
    }
    std::optional<QByteArray> piece(bytes_.mid(begin_, length));
    begin_ = searched_ = end + 1;
    return piece;
}

QByteArray framed(const QByteArray &text) { return text.toBase64() + SocketFraming::kSeparator; }

bool looksLikeHttp(const QByteArray &opening) {
    static constexpr std::array kMethods{"GET ",  "POST ",    "PUT ",    "OPTIONS ",
                                         "HEAD ", "CONNECT ", "DELETE ", "PATCH "};
    return std::any_of(kMethods.begin(), kMethods.end(),
                       [&](const char *method) { return opening.startsWith(method); });
}

} // namespace zpsg::remote
