#include "cloud/UpdateOffer.h"

#include <QHostAddress>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace zpsg::cloud {
namespace {

const QString kVersionKey = QStringLiteral("version");
const QString kPageKey = QStringLiteral("page");
const QString kNotesKey = QStringLiteral("notes");

constexpr int kLongestAddress = 2000; // what every browser takes

bool isThisMachine(const QString &host) {
    return host == QLatin1String("localhost") || QHostAddress(host).isLoopback();
}

std::optional<QVersionNumber> versionOf(const QString &text) {
    // Nine digits fit into the parts' integers.
    static const QRegularExpression parts(QStringLiteral(R"(\A[0-9]{1,9}(\.[0-9]{1,9}){1,3}\z)"));
    return parts.match(text).hasMatch() ? std::optional(QVersionNumber::fromString(text)) : std::nullopt;
}

/// Neither a character that is not seen nor one that turns the line's direction.
bool isPlain(QChar character) {
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_NotAssigned:
    case QChar::Other_PrivateUse:
        return false;
    default:
        return true; // a surrogate is half of one that is seen
    }
}

QString plainLine(const QString &text) {
    QString line;
    std::copy_if(text.begin(), text.end(), std::back_inserter(line),
                 [](QChar each) { return each.isSpace() || isPlain(each); });
    line = line.simplified(); // all kinds of blanks and ends of lines
    if (line.size() > UpdateOffer::kMostNotes) {
        line.truncate(UpdateOffer::kMostNotes - 1);
        if (line.at(line.size() - 1).isHighSurrogate()) {
            line.chop(1);
        }
        line = line.trimmed() + QChar(0x2026);
    }
    return line;
}

} // namespace

bool isSafeAddress(const QUrl &address) {
    const QString scheme = address.scheme();
    return address.isValid() && !address.host().isEmpty() && address.userInfo().isEmpty() &&
           (scheme == QLatin1String("https") ||
            (scheme == QLatin1String("http") && isThisMachine(address.host())));
}

bool isSafeAddress(const QString &address) {
    return address.size() <= kLongestAddress && isSafeAddress(QUrl(address, QUrl::StrictMode));
}

std::optional<UpdateOffer> parseUpdateOffer(const QByteArray &json, QString &why) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (!document.isObject()) {
        why = error.error == QJsonParseError::NoError ? QStringLiteral("it is no JSON object")
                                                      : error.errorString();
        return std::nullopt;
    }
    const QJsonObject whole = document.object();
    const auto version = versionOf(whole.value(kVersionKey).toString());
    if (!version) {
        why = QStringLiteral("it has no version of two to four numbers");
        return std::nullopt;
    }
    const QString page = whole.value(kPageKey).toString();
    if (!isSafeAddress(page)) {
        why = QStringLiteral("it has no https address of a page");
        return std::nullopt;
    }
    return UpdateOffer{*version, QUrl(page, QUrl::StrictMode), plainLine(whole.value(kNotesKey).toString())};
}

QByteArray toJson(const UpdateOffer &offer) {
    return QJsonDocument(
               QJsonObject{{kVersionKey, offer.version.toString()},
                           {kPageKey, QString::fromLatin1(offer.page.toEncoded(QUrl::FullyEncoded))},
                           {kNotesKey, offer.notes}})
        .toJson(QJsonDocument::Compact);
}

bool isNewer(const UpdateOffer &offer, const QVersionNumber &running) {
    return !running.isNull() && offer.version.normalized() > running.normalized();
}

} // namespace zpsg::cloud
