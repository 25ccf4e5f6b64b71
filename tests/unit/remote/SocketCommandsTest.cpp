#include "remote/SocketCommands.h"
#include "remote/OwnAddress.h"
#include "remote/SocketFraming.h"

#include <gmock/gmock.h>

using namespace zpsg::remote;
using Kind = SocketPiece::Kind;

namespace {

QByteArray nested(int depth) {
    return R"({"Data":{"a":)" + QByteArray(depth, '[') + QByteArray(depth, ']') + "}}";
}

TEST(SocketCommands, AMessageIsUnderstoodOrDropped) {
    struct Case {
        QByteArray text; // before Base64
        Kind kind;
        int command;
        int dataCount;
    };
    const std::array cases{
        Case{R"({"command":3,"Data":{"a":1,"b":[2]}})", Kind::Command, 3, 2},
        Case{R"({"Data":{}})", Kind::Command, 0, 0},
        Case{R"({"command":"3"})", Kind::Command, 0, 0},
        Case{R"({"command":null})", Kind::Command, 0, 0},
        Case{R"({"command":2.5})", Kind::Command, 0, 0},
        Case{R"({"command":1e300})", Kind::Command, 0, 0},
        Case{R"({"command":-1,"Data":[1]})", Kind::Command, -1, 0},
        Case{" \n{\"command\":1}\r\n", Kind::Command, 1, 0},
        Case{"07", Kind::KeepAlive, 0, 0},
        Case{R"(07{"command":1})", Kind::KeepAlive, 0, 0},
        Case{"", Kind::Bad, 0, 0},
        Case{"[]", Kind::Bad, 0, 0},
        Case{"7", Kind::Bad, 0, 0},
        Case{R"({"command":1)", Kind::Bad, 0, 0},
        Case{R"({"command":1}{"command":1})", Kind::Bad, 0, 0},
        Case{"{\"command\":1,\"x\":\"\xFF\xC0\"}", Kind::Bad, 0, 0},
        // The parser would lose the memory of what is named twice.
        Case{R"({"a":{},"a":1})", Kind::Bad, 0, 0},
        Case{R"({"Data":{"b":[{"k\" :[1],"x":"}","k\":[1]}]}})", Kind::Bad, 0, 0},
        Case{R"({"ab":[1],"\u0061b":[1]})", Kind::Bad, 0, 0},
        Case{R"({"Data":{"a":{"a":"a","b":"a"},"b":["a","a",{"a":1},{"a":1}]}})", Kind::Command, 0, 2},
        Case{nested(100), Kind::Command, 0, 1},
        Case{nested(30'000), Kind::Bad, 0, 0},
    };
    for (const auto &each : cases) {
        const auto piece = decodePiece(each.text.toBase64());
        EXPECT_EQ(piece.kind, each.kind) << each.text.left(80).constData();
        EXPECT_EQ(piece.command, each.command) << each.text.left(80).constData();
        EXPECT_EQ(piece.data.size(), each.dataCount) << each.text.left(80).constData();
    }
}

TEST(SocketCommands, Base64IsStrictButForWhiteSpaceAround) {
    const QByteArray good = QByteArray(R"({"command":3})").toBase64();
    EXPECT_EQ(decodePiece("\r\n\t " + good + " \n").command, 3);
    for (const QByteArray &bad :
         {QByteArray(good).insert(4, '\n'), QByteArray(good).insert(4, '*'), QByteArray(good + "=A"),
          QByteArray(R"({"command":3})"), QByteArray("07")}) {
        EXPECT_EQ(decodePiece(bad).kind, Kind::Bad) << bad.constData();
    }
}

TEST(SocketFraming, PiecesComeWholeUpToTheLimit) {
    SocketFraming framing(4);
    framing.append("ab&&");
    EXPECT_EQ(framing.next(), QByteArray("ab"));
    EXPECT_EQ(framing.next(), QByteArray(""));
    EXPECT_EQ(framing.next(), std::nullopt);
    framing.append("abcd");
    EXPECT_EQ(framing.next(), std::nullopt);
    EXPECT_FALSE(framing.tooLong());
    framing.append("&x");
    EXPECT_EQ(framing.next(), QByteArray("abcd"));
    EXPECT_EQ(framing.next(), std::nullopt);
    // The same whether the end of what is too long has come or not.
    for (const char *rest : {"bcde&y&", "bcde"}) {
        SocketFraming cut = framing;
        cut.append(rest);
        EXPECT_EQ(cut.next(), std::nullopt);
        EXPECT_TRUE(cut.tooLong());
        cut.append("&z&");
        EXPECT_EQ(cut.next(), std::nullopt);
    }
}

TEST(OwnAddress, OnlyThisMachinesAddressesAreItsOwn) {
    const auto address = [](const char *text) { return QHostAddress(QLatin1String(text)); };
    const QList<QHostAddress> own{address("192.168.1.5"), address("fe80::1%3"), address("2001:db8::5")};
    for (const char *mine : {"127.0.0.1", "127.9.9.9", "::1", "::ffff:127.0.0.1", "192.168.1.5",
                             "::ffff:192.168.1.5", "fe80::1%3", "fe80::1", "2001:db8::5"}) {
        EXPECT_TRUE(isOwnAddress(address(mine), own)) << mine;
    }
    for (const char *other : {"192.168.1.6", "::ffff:192.168.1.6", "fe80::2%3", "2001:db8::6", "0.0.0.0",
                              "::", "::ffff:0.0.0.0", ""}) {
        EXPECT_FALSE(isOwnAddress(address(other), own)) << other;
    }
    EXPECT_TRUE(isOwnAddress(address("127.0.0.1")));
    EXPECT_FALSE(isOwnAddress(address("203.0.113.7"))); // an address for documents
}

} // namespace
