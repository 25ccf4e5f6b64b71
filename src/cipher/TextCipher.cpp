#include "cipher/TextCipher.h"

#include <sodium.h>

#include <array>

namespace zpsg::cipher {
namespace {

constexpr int kNonceBytes = crypto_aead_xchacha20poly1305_ietf_NPUBBYTES;
constexpr int kTagBytes = crypto_aead_xchacha20poly1305_ietf_ABYTES;

using Key = std::array<unsigned char, crypto_aead_xchacha20poly1305_ietf_KEYBYTES>;
static_assert(Key{}.size() >= crypto_generichash_KEYBYTES_MIN &&
              Key{}.size() <= crypto_generichash_KEYBYTES_MAX);

// Drawn at random once. Changing the first makes every file written before unreadable; docs/files.md has
// both.
constexpr Key kTextKey{0x34, 0xaa, 0x37, 0x7e, 0x50, 0x8b, 0x28, 0xba, 0x88, 0x13, 0x93,
                       0x87, 0x6b, 0x53, 0xa0, 0x0b, 0x79, 0x40, 0x66, 0x1f, 0x95, 0x0e,
                       0x0e, 0xc0, 0x81, 0x4f, 0x8c, 0xf8, 0xa2, 0x6f, 0x71, 0x33};
constexpr Key kNonceKey{0xd5, 0x44, 0xe3, 0x9f, 0x7e, 0xc4, 0x1d, 0x0b, 0x11, 0x49, 0x13,
                        0x3e, 0xbc, 0x2d, 0x96, 0xec, 0xe8, 0x25, 0x12, 0x8f, 0xf1, 0x15,
                        0x0c, 0x83, 0x81, 0x15, 0xe8, 0xf1, 0x3d, 0x61, 0x82, 0x47};

/// Makes the library ready on the first call, from whichever thread; false when it can't be used.
bool ready() {
    static const bool done = sodium_init() >= 0;
    return done;
}

unsigned char *bytes(QByteArray &array) { return reinterpret_cast<unsigned char *>(array.data()); }

const unsigned char *bytes(const QByteArray &array) {
    return reinterpret_cast<const unsigned char *>(array.constData());
}

} // namespace

QByteArray encipher(const QByteArray &plain) {
    if (!ready()) {
        return {};
    }
    QByteArray sealed(kNonceBytes + plain.size() + kTagBytes, '\0');
    unsigned char *nonce = bytes(sealed);
    const auto length = static_cast<unsigned long long>(plain.size());
    crypto_generichash(nonce, kNonceBytes, bytes(plain), length, kNonceKey.data(), kNonceKey.size());
    crypto_aead_xchacha20poly1305_ietf_encrypt(nonce + kNonceBytes, nullptr, bytes(plain), length, nullptr, 0,
                                               nullptr, nonce, kTextKey.data());
    return sealed.toBase64();
}

std::optional<QByteArray> decipher(const QByteArray &text) {
    const auto decoded = QByteArray::fromBase64Encoding(text, QByteArray::AbortOnBase64DecodingErrors);
    const QByteArray &sealed = *decoded;
    // The last letter before the padding has bits that decode to nothing, and the padding itself may be left
    // out: only the one text that encodes these bytes is the text that was written.
    if (!decoded || sealed.size() < kNonceBytes + kTagBytes || sealed.toBase64() != text || !ready()) {
        return std::nullopt;
    }
    QByteArray plain(sealed.size() - kNonceBytes - kTagBytes, '\0');
    const unsigned char *nonce = bytes(sealed);
    if (crypto_aead_xchacha20poly1305_ietf_decrypt(
            bytes(plain), nullptr, nullptr, nonce + kNonceBytes,
            static_cast<unsigned long long>(sealed.size() - kNonceBytes), nullptr, 0, nonce,
            kTextKey.data()) != 0) {
        return std::nullopt;
    }
    return plain;
}

} // namespace zpsg::cipher
