// The program's text cipher: what it writes into curve files and record files can't be read or changed
// without notice by accident or with an editor. The key is part of the program, so this is a seal and no
// secret.
#pragma once

#include <QByteArray>

#include <optional>

namespace zpsg::cipher {

/// XChaCha20-Poly1305 under the program's key, as base64 text (ASCII, one line). The same plain bytes give
/// the same text, so that generated files are reproducible: the nonce is a keyed hash of what is enciphered.
/// Empty when the crypto library can't be used, which no text deciphers from.
[[nodiscard]] QByteArray encipher(const QByteArray &plain);

/// The plain bytes, or nothing when the text is not base64, too short, or was changed in any bit; blanks and
/// line ends around it count as a change.
[[nodiscard]] std::optional<QByteArray> decipher(const QByteArray &text);

} // namespace zpsg::cipher
