#include "sensors/CardChoice.h"
#include "sensors/PcValues.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace zpsg::sensors {
namespace {

TEST(CardChoiceTest, ShowsTheCardThatDoesTheWork) {
    struct Case {
        const char *what;
        std::vector<Card> cards;
        const char *shown;
        std::optional<std::size_t> expected;
    };
    const std::vector<Case> cases{
        {"none", {}, "", std::nullopt},
        {"one without values", {{"a", false, false, {}}}, "", 0U},
        {"the higher power", {{"a", false, true, 30.0}, {"b", false, true, 31.0}}, "", 1U},
        {"the first of two alike", {{"a", false, true, 30.0}, {"b", false, true, 30.0}}, "", 0U},
        {"a little more takes no place", {{"a", false, true, 30.0}, {"b", false, true, 49.0}}, "a", 0U},
        {"much more does", {{"a", false, true, 30.0}, {"b", false, true, 51.0}}, "a", 1U},
        {"its own before the processor's", {{"a", true, true, 60.0}, {"b", false, true, {}}}, "a", 1U},
        {"unless it gives nothing", {{"a", true, true, 60.0}, {"b", false, false, {}}}, "b", 0U},
        {"the shown one has gone", {{"a", false, true, 5.0}, {"b", false, true, 6.0}}, "c", 1U},
    };
    for (const Case &one : cases) {
        EXPECT_EQ(chooseCard(one.cards, one.shown), one.expected) << one.what;
    }
}

TEST(PcValuesTest, OnlyWhatHasSenseIsAValue) {
    using platform::PcQuantity;
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    struct Case {
        PcQuantity quantity;
        std::vector<double> good;
        std::vector<double> bad;
    };
    const std::vector<Case> cases{
        {PcQuantity::Volts, {0.2, 1.4}, {0.0, -0.1, 12.0, kNan, kInfinity}},
        {PcQuantity::Amps, {0.0, 300.0}, {-1.0, 65535.0, kNan}},
        {PcQuantity::Watts, {0.0, 600.0, 2000.0}, {-1.0, 2000.1, kNan, kInfinity}},
        {PcQuantity::Celsius, {-40.0, 0.0, 150.0}, {-273.2, 150.1, kNan, -kInfinity}},
    };
    for (const Case &row : cases) {
        for (const double value : row.good) {
            EXPECT_EQ(sensible(value, row.quantity), value);
        }
        for (const double value : row.bad) {
            EXPECT_FALSE(sensible(value, row.quantity)) << value;
        }
    }
}

} // namespace
} // namespace zpsg::sensors
