#include "cipher/TextCipher.h"

#include <gmock/gmock.h>

using zpsg::cipher::decipher;
using zpsg::cipher::encipher;

namespace {

TEST(TextCipher, WhatWasEncipheredComesBack) {
    QByteArray every;
    for (int i = 0; i < 256; ++i) {
        every.append(static_cast<char>(i));
    }
    for (const QByteArray &plain : {QByteArray(), QByteArray("a"), every, QByteArray(1000 * 1000 + 1, 'x')}) {
        const QByteArray text = encipher(plain);
        ASSERT_EQ(decipher(text), plain) << plain.size();
        EXPECT_EQ(encipher(plain), text) << plain.size();
        EXPECT_FALSE(text.contains('\n'));
    }
    EXPECT_NE(encipher("a"), encipher("b"));
}

TEST(TextCipher, TextsOfEarlierVersionsStayReadable) {
    EXPECT_EQ(decipher("spXGsoE4TOvzkdpJiDfefyFondyQEhWo95BCh8BvXHZDgG6Bh/dgwYh18GdnnDhQBwunq1jG"),
              QByteArray("{\"dataSize\":1}"));
}

TEST(TextCipher, AnyChangeIsRefused) {
    // One, two and no padding letters at the end.
    for (const QByteArray &plain : {QByteArray("ab"), QByteArray("a"), QByteArray("abcde")}) {
        const QByteArray text = encipher(plain);
        for (int bit = 0; bit < text.size() * 8; ++bit) {
            QByteArray changed = text;
            changed[bit / 8] = static_cast<char>(changed.at(bit / 8) ^ (1 << bit % 8));
            ASSERT_FALSE(decipher(changed)) << text.constData() << " bit " << bit;
        }
        for (int size = 0; size < text.size(); ++size) {
            ASSERT_FALSE(decipher(text.left(size))) << size;
            ASSERT_FALSE(decipher(text.mid(text.size() - size))) << size;
        }
        for (const char *added : {"=", "A", "AAAA", " ", "\n"}) {
            EXPECT_FALSE(decipher(text + added)) << added;
            EXPECT_FALSE(decipher(added + text)) << added;
        }
    }
}

TEST(TextCipher, WhatIsNoEncipheredTextIsRefused) {
    for (const QByteArray &text :
         {QByteArray("{\"dataSize\":1}"), QByteArray("\xff\xfe\0", 3), QByteArray("===="),
          QByteArray(1000, 'A'), QByteArray(40, '\0').toBase64()}) {
        EXPECT_FALSE(decipher(text)) << text.constData();
    }
}

} // namespace
