#include "psu/TelemetryDecoder.h"
#include "psu/TelemetryRecord.h"
#include "simulator/LinearEncoding.h"

#include <gmock/gmock.h>

#include <cmath>
#include <set>

using namespace zpsg;

namespace {

psu::Reply reply(std::initializer_list<std::uint8_t> bytes, int count = 64) {
    psu::Reply made;
    std::copy(bytes.begin(), bytes.end(), made.bytes.begin());
    made.count = count;
    return made;
}

TEST(LinearFormat, TakesTheMantissaAsUnsigned) {
    struct Case {
        std::uint16_t word;
        double value;
    };
    for (const auto &[word, value] :
         {Case{0x0000, 0.0}, Case{0x07FF, 2047.0}, Case{0xF801, 0.5}, Case{0xD30C, 12.1875},
          Case{0xD40C, 16.1875}, Case{0x7801, 32768.0}, Case{0x8001, std::ldexp(1, -16)}, Case{0x0801, 2.0},
          Case{0xFFFF, 1023.5}}) {
        EXPECT_EQ(psu::decodeLinear(word), value) << std::hex << word;
    }
}

TEST(RawLinearFormat, IgnoresBitTenAndKeepsTheExceptionalIndex) {
    struct Case {
        unsigned index, mantissa;
        double value;
    };
    for (const auto &[index, mantissa, value] :
         {Case{0, 0, 0.0}, Case{25, 10, 5.0}, Case{25, 1, 0.5}, Case{24, 256, 1.0}, Case{26, 64, 1.0},
          Case{15, 1, 32768.0}, Case{16, 1, 0.0}, Case{0, 0x0400, 0.0}, Case{0, 0x0401, 1.0},
          Case{22, 1, 0.001}, Case{23, 1, 0.002}, Case{31, 3, 1.5}}) {
        const auto word = static_cast<std::uint16_t>((index << 11U) | mantissa);
        EXPECT_DOUBLE_EQ(psu::decodeRawLinear(word), value) << index << ' ' << mantissa;
    }
}

// Both sides of the wire agree to within half a step of a ten-bit mantissa.
TEST(Encoding, SurvivesTheWayThereAndBack) {
    for (int step = 0; step < 210; ++step) {
        const double value = 0.02 * std::pow(1.07, step);
        EXPECT_NEAR(psu::decodeLinear(simulator::encodeLinear(value)), value, value / 1022.0);
        // One power of two is missing there, so a step can be twice as wide; three decimals are kept.
        EXPECT_NEAR(psu::decodeRawLinear(simulator::encodeRawLinear(value)), value, value / 510.0 + 0.0005);
    }
    EXPECT_EQ(simulator::encodeLinear(-3.0), 0);
    EXPECT_EQ(simulator::encodeLinear(std::nan("")), 0);
    EXPECT_EQ(psu::decodeLinear(simulator::encodeLinear(1e12)), 1023.0 * 32768.0);
}

TEST(Reply, IsAcceptedOnlyWithItsHeaderAndWholeValue) {
    for (int count = 0; count <= 64; ++count) {
        const auto decoded = psu::decodeReply(reply({0x31, 0x34, 0x0C, 0xD3}, count));
        ASSERT_EQ(decoded.has_value(), count >= 4) << count;
    }
    std::set<std::string> keys;
    for (unsigned first = 0; first < 256; ++first) {
        for (unsigned second = 0; second < 256; ++second) {
            const auto decoded = psu::decodeReply(
                reply({static_cast<std::uint8_t>(first), static_cast<std::uint8_t>(second), 0x0C, 0xD3}));
            ASSERT_EQ(decoded.has_value(), first == 0x31 && second >= 0x33 && second <= 0x3B)
                << first << ' ' << second;
            if (decoded) {
                EXPECT_EQ(decoded->value, 12.1875F);
                keys.insert(decoded->key);
            }
        }
    }
    EXPECT_THAT(keys, ::testing::UnorderedElementsAre("VIN", "VVOut12", "VVOut5", "VVOut33", "VIOut12",
                                                      "VIOut5", "VIOut33", "Temp", "FanSpeed"));
}

TEST(ReplyText, SkipsZerosAndEndsWithTheReply) {
    EXPECT_EQ(psu::replyText(reply({0x31, 0x3D, 'A', 0, 'B', '-', 0, 0, 'C'}, 64)), "AB-C");
    EXPECT_EQ(psu::replyText(reply({0x31, 0x3D, 'A', 'B', 'C'}, 4)), "AB");
    EXPECT_EQ(psu::replyText(reply({0x31, 0x3D, 'A'}, 1)), "");
    EXPECT_EQ(psu::replyText(reply({}, 0)), "");
}

TEST(RawSample, PutsEachWordInItsPlace) {
    std::array<std::uint8_t, psu::kRawSampleSize> report{psu::kRawSampleReport};
    for (std::size_t i = 0; i < 15; ++i) {
        report.at(1 + 2 * i) = static_cast<std::uint8_t>(i + 1); // exponent 0, mantissa i + 1
    }
    const auto sample = psu::decodeRawSample(report);
    EXPECT_THAT(
        (std::array{sample.volts12, sample.amps12, sample.volts5, sample.amps5, sample.volts33, sample.amps33,
                    sample.watts, sample.fanRpm, sample.efficiency, sample.celsius, sample.acVolts}),
        ::testing::ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11));
}

TEST(TelemetryRecord, FormatsAsSixSignificantDigits) {
    psu::TelemetryRecord record;
    const auto text = [&](float value) {
        record.store(QStringLiteral("Temp"), value);
        return record.text(QStringLiteral("Temp")).toStdString();
    };
    EXPECT_EQ(text(12.1875F), "12.1875");
    EXPECT_EQ(text(0.5F), "0.5");
    EXPECT_EQ(text(35.0F), "35");
    EXPECT_EQ(text(1234567.0F), "1.23457e+06");
    EXPECT_EQ(text(0.0F), "0");
}

TEST(TelemetryRecord, DerivesWattsFromTheRails) {
    psu::TelemetryRecord record;
    const auto store = [&](const char *key, float value) { record.store(QLatin1String(key), value); };
    store("VVOut12", 12.0F);
    store("VIOut12", 20.5F);
    store("VVOut5", 5.0F);
    store("VIOut5", 2.0F);
    store("VVOut33", 3.25F);
    store("VIOut33", 4.0F);
    record.deriveWatts();
    EXPECT_EQ(record.text(QStringLiteral("WATTS")), QStringLiteral("269"));
    for (const char *key : {"VIOut12", "VIOut5", "VIOut33"}) {
        store(key, 0.0F);
    }
    record.deriveWatts();
    EXPECT_EQ(record.text(QStringLiteral("WATTS")), QStringLiteral("0"));
    EXPECT_EQ(record.text(QStringLiteral("HW12V")), QStringLiteral("0.12"));
    EXPECT_EQ(record.text(QStringLiteral("no such key")), QString());
}

} // namespace
