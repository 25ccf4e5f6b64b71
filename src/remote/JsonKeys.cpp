#include "remote/JsonKeys.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <QString>

#include <algorithm>
#include <vector>

namespace zpsg::remote {
namespace {

/// The place of the quotation mark that ends the string which begins before `from`, or the end of `json`.
int endOfString(const QByteArray &json, int from) {
    while (from < json.size() && json[from] != '"') {
        from += json[from] == '\\' ? 2 : 1;
    }
    return std::min(from, json.size());
}

bool isKey(const QByteArray &json, int after) {
    while (after < json.size() && QByteArray(" \t\r\n").contains(json[after])) {
        ++after;
    }
    return after < json.size() && json[after] == ':';
}

/// Two spellings of a key are one; only the parser knows all escapes.
QByteArray unescaped(const QByteArray &key) {
    return key.contains('\\') ? QJsonDocument::fromJson("[\"" + key + "\"]").array().at(0).toString().toUtf8()
                              : key;
}

} // namespace

bool hasRepeatedKey(const QByteArray &json) {
    std::vector<QSet<QByteArray>> open; // the keys of each object; of an array none
    for (int at = 0; at < json.size(); ++at) {
        const char c = json[at];
        if (c == '{' || c == '[') {
            open.emplace_back();
        } else if ((c == '}' || c == ']') && !open.empty()) {
            open.pop_back();
        } else if (c == '"') {
            const int begin = at + 1;
            at = endOfString(json, begin);
            if (!open.empty() && isKey(json, at + 1)) {
                const QByteArray key = unescaped(json.mid(begin, at - begin));
                if (open.back().contains(key)) {
                    return true;
                }
                open.back().insert(key);
            }
        }
    }
    return false;
}

} // namespace zpsg::remote
