// What a publisher tells of the program's newest version.
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <QVersionNumber>

#include <optional>

namespace zpsg::cloud {

struct UpdateOffer {
    QVersionNumber version; ///< of two to four parts
    QUrl page;              ///< where people get it; see isSafeAddress()
    QString notes;          ///< one line of plain text, at most kMostNotes characters; may be empty

    static constexpr int kMostNotes = 200;
};

/// Whether the program may ask there, and send the user there: https, or http on this very machine; without a
/// user's name or password in it.
[[nodiscard]] bool isSafeAddress(const QUrl &address);
/// The same for what was typed or came out of a file.
[[nodiscard]] bool isSafeAddress(const QString &address);

/// Reads {"version": "1.2.0", "page": "https://...", "notes": "One line"}; the notes may be left out, and
/// what else is there is passed over. Nothing, with the reason in plain words, when it is not that.
[[nodiscard]] std::optional<UpdateOffer> parseUpdateOffer(const QByteArray &json, QString &why);

/// The offer as parseUpdateOffer() reads it.
[[nodiscard]] QByteArray toJson(const UpdateOffer &offer);

/// Whether it is a later version than `running`: 1.2 and 1.2.0 are the same. Never when `running` is not
/// known.
[[nodiscard]] bool isNewer(const UpdateOffer &offer, const QVersionNumber &running);

} // namespace zpsg::cloud
