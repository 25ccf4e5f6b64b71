#include "remote/MqttCommands.h"
#include "remote/MqttErrors.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <mosquitto.h>

using namespace zpsg;
using namespace zpsg::remote;

TEST(MqttCommands, takesCommandsWithAnIntegerOnly) {
    struct Row {
        const char *text;
        std::optional<int> comm;
    };
    const std::array rows{
        Row{R"({"comm":3,"clientID":"c","status":"s"})", 3},
        Row{R"({"comm":"03","clientID":"c","status":"s"})", 3},
        Row{R"({"comm":-1,"clientID":"c","status":"s"})", -1},
        Row{R"({"comm":2147483647,"clientID":"c","status":"s"})", 2147483647},
        Row{R"({"comm":2147483648})", std::nullopt},
        Row{R"({"comm":1e300})", std::nullopt},
        Row{R"({"comm":3.5})", std::nullopt},
        Row{R"({"comm":"3x"})", std::nullopt},
        Row{R"({"comm":""})", std::nullopt},
        Row{R"({"comm":null})", std::nullopt},
        Row{R"({"comm":true})", std::nullopt},
        Row{R"({"comm":[3]})", std::nullopt},
        Row{R"({"Comm":3})", std::nullopt},
        Row{R"([{"comm":3}])", std::nullopt},
        Row{R"({"comm":3)", std::nullopt},
        Row{R"({"comm":3}x)", std::nullopt},
        Row{"3", std::nullopt},
        Row{"", std::nullopt},
    };
    for (const Row &row : rows) {
        const auto command = parseCommand(QString::fromUtf8(row.text));
        ASSERT_EQ(command.has_value(), row.comm.has_value()) << row.text;
        if (command) {
            EXPECT_EQ(command->comm, *row.comm) << row.text;
            EXPECT_EQ(command->clientID, QStringLiteral("c"));
            EXPECT_EQ(command->status, QStringLiteral("s"));
        }
    }
    EXPECT_FALSE(parseCommand(QStringLiteral("{\"comm\":").repeated(100'000)));
    EXPECT_TRUE(parseCommand(QStringLiteral("{\"comm\":7}"))->clientID.isEmpty());
}

TEST(MqttCommands, messagesAreLatin1WithTextsOnly) {
    EXPECT_EQ(messageBytes(QStringLiteral("m"), QStringLiteral("p"), QStringLiteral("05"),
                           QStringLiteral("online")),
              R"({"comm":"05","m_id":"m","p_id":"p","status":"online"})");
    EXPECT_EQ(messageBytes({}, {}, {}, QString::fromUtf8("\"é\n€")),
              "{\"comm\":\"\",\"m_id\":\"\",\"p_id\":\"\",\"status\":\"\\\"\xE9\\n?\"}");
}

TEST(MqttCommands, readingsReplaceAnImplausibleEfficiency) {
    struct Row {
        float efficiency;
        const char *shown;
    };
    for (const Row &row : {Row{99.5F, "99.5"}, Row{99.6F, "91.2346"}, Row{40.0F, "40"}, Row{39.9F, "91.2346"},
                           Row{0.0F, "91.2346"}, Row{-5.0F, "91.2346"}, Row{88.25F, "88.25"}}) {
        psu::TelemetryRecord record;
        record.store(QStringLiteral("Temp"), 41.5F);
        record.store(QStringLiteral("FanSpeed"), 900.0F);
        record.store(QStringLiteral("WATTS"), 333.3F);
        record.store(QStringLiteral("EFF"), row.efficiency);
        EXPECT_EQ(readingsText(record, 1250.0, 91.23456789),
                  QStringLiteral("41.5!333.3!%1!900!26.664").arg(QLatin1String(row.shown)));
        EXPECT_TRUE(readingsText(record, 0.0, 90.0).endsWith(QStringLiteral("!900!0")));
        record.store(QStringLiteral("WATTS"), 100.0F);
        EXPECT_TRUE(readingsText(record, 300.0, 90.0).endsWith(QStringLiteral("!33.3333")));
    }
}

TEST(MqttErrors, namesWhatTheLibraryAndTheSystemReport) {
    EXPECT_EQ(nameOf(MqttError::Unknown), QStringLiteral("UnknownError"));
    EXPECT_EQ(nameOf(MqttError::Temporary), QStringLiteral("SocketTemporaryError"));
    EXPECT_EQ(nameOf(MqttError::SslHandshakeFailed), QStringLiteral("SocketSslHandshakeFailedError"));
    EXPECT_EQ(nameOf(MqttError::Operation), QStringLiteral("SocketOperationError"));
    EXPECT_EQ(errorOf(MOSQ_ERR_ERRNO, ECONNREFUSED), MqttError::ConnectionRefused);
    EXPECT_EQ(errorOf(MOSQ_ERR_ERRNO, EHOSTUNREACH), MqttError::Network);
    EXPECT_EQ(errorOf(MOSQ_ERR_ERRNO, 0), MqttError::Unknown);
    EXPECT_EQ(errorOf(MOSQ_ERR_CONN_LOST, ECONNREFUSED), MqttError::RemoteHostClosed);
    EXPECT_EQ(errorOf(9999, 0), MqttError::Unknown);
    EXPECT_EQ(errorOfRefusal(5), MqttError::Access);
}
