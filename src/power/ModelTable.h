// The supported models as data: one row a model, in the order in which they are tried.
#pragma once

#include <QString>

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace zpsg::power {

/// A column that a row does not write keeps what the profile held before.
struct ModelRow {
    std::string_view code; ///< product code without "-": three letters, rated watts in four digits, family
    std::int32_t ratedWatts;
    std::string_view curve{}; ///< base name of the curve file; empty: not written
    std::optional<bool> fanLighting{};
    std::optional<bool> customFanSpeed{};
    std::optional<bool> addressableLeds{};
    std::optional<std::int32_t> seriesCode{};   ///< 0 single ring, 1 ring of 12 LEDs, 2 Duo set
    std::optional<std::int32_t> seriesNumber{}; ///< the maker's number of the newer series
};

// The columns fill up from the left, so that short rows are those that write little.
inline constexpr bool kYes = true;
inline constexpr std::nullopt_t kAsBefore = std::nullopt;

/// Supplies that are read over the main path and have a curve file. The ratings, curve names and flags are
/// the maker's data sheet; that a 1250 W model has a 750 W curve is what the sheet says.
inline constexpr std::array kCurveModels{
    ModelRow{"CVA1250P", 1250, "EFF_125", kYes, kYes, kAsBefore, 0},
    ModelRow{"CVA0750P", 750, "GPS_EFF_75", kYes},
    ModelRow{"CVA0650P", 650, "GPS_EFF_65", kYes},
    ModelRow{"CVA0700B", 700, "GPS_EFF_70"},
    ModelRow{"CVA0600B", 600, "GPS_EFF_60"},

    ModelRow{"CVB0450S", 450, "EFF_45"},
    ModelRow{"CVB0550S", 550, "EFF_55"},
    ModelRow{"CVB0650S", 650, "EFF_65"},
    ModelRow{"CVB0750S", 750, "EFF_75"},
    ModelRow{"CVB0850R", 850, "EFF_85", kYes},

    ModelRow{"CVC1050R", 1050, "EFF_105", kYes},
    ModelRow{"CVC0700R", 700, "GPS_EFF_70", kYes},
    ModelRow{"CVC0600R", 600, "GPS_EFF_60", kYes},
    ModelRow{"CVC0500R", 500, "GPS_EFF_50", kYes},
    ModelRow{"CVC0450R", 450, "GPS_EFF_45", kYes},

    ModelRow{"CVD0350R", 350, "GPS_EFF_35", kYes},
    ModelRow{"CVD0650F", 650, "EFF_65", kYes, kYes, kAsBefore, 0},
    ModelRow{"CVD0750F", 750, "EFF_75", kYes, kYes, kAsBefore, 0},
    ModelRow{"CVD0850F", 850, "EFF_85", kYes, kYes, kAsBefore, 0},
    ModelRow{"CVD1250L", 1250, "EFF_75", kYes, kYes, kYes, 1},

    ModelRow{"CVG0850Z", 850, "ZPSG_EFF_85", kYes, kYes, kYes, 1, 1470},
    ModelRow{"CVG1050Z", 1050, "ZPSG_EFF_105", kYes, kYes, kYes, 1, 1470},
    ModelRow{"CVG1200Z", 1200, "ZPSG_EFF_120", kYes, kYes, kYes, 1, 1772},
    ModelRow{"CVG1250Z", 1250, "EFF_125", kYes, kYes, kYes, 1, 1464},

    ModelRow{"CVX1000D", 1000, "ZPSG_DUO_100", kYes, kYes, kYes, 2, 1855},
    ModelRow{"CVX0750D", 750, "ZPSG_DUO_75", kYes, kYes, kYes, 2, 1481},
    ModelRow{"CVX0850D", 850, "ZPSG_DUO_85", kYes, kYes, kYes, 2, 1481},
    ModelRow{"CVX1000E", 1000, "ZPSG_DUO_100", kYes, kYes, kYes, 2, 1855}, // the same model's other code
};
inline constexpr std::array kCurveModelGroups{5, 5, 5, 5, 4, 4};

/// Supplies that measure their own efficiency (the raw path) and so need no curve.
inline constexpr std::array kEnhancedModels{
    ModelRow{"CVE0850A", 850, {}, kYes},        ModelRow{"CVE1050A", 1050, {}, kYes},
    ModelRow{"CVE1200A", 1200, {}, kYes},       ModelRow{"CVE0850F", 850, {}, kYes, kYes},
    ModelRow{"CVE1000F", 1000, {}, kYes, kYes}, ModelRow{"CVE1500F", 1500, {}, kYes, kYes},
};

namespace detail {

constexpr bool isLetter(char c) { return c >= 'A' && c <= 'Z'; }
constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Three letters, the row's rated watts in four digits, one to five letters and digits.
constexpr bool isWellFormed(const ModelRow &row) {
    if (row.code.size() < 8 || row.code.size() > 12) {
        return false;
    }
    std::int32_t watts = 0;
    for (std::size_t i = 0; i < row.code.size(); ++i) {
        const char c = row.code[i];
        const bool fits = i < 3 ? isLetter(c) : i < 7 ? isDigit(c) : isLetter(c) || isDigit(c);
        if (!fits) {
            return false;
        }
        watts = i >= 3 && i < 7 ? watts * 10 + (c - '0') : watts;
    }
    return watts == row.ratedWatts;
}

/// A model text is taken as the first code that occurs in it, so a code inside a later one would hide it.
template <std::size_t N>
constexpr bool areReachable(const std::array<ModelRow, N> &rows) {
    for (std::size_t i = 0; i < N; ++i) {
        for (std::size_t later = i + 1; later < N; ++later) {
            if (rows[later].code.find(rows[i].code) != std::string_view::npos) {
                return false;
            }
        }
    }
    return true;
}

template <std::size_t N>
constexpr bool areWellFormed(const std::array<ModelRow, N> &rows) {
    return std::all_of(rows.begin(), rows.end(), isWellFormed);
}

constexpr int sumOfGroups() {
    int sum = 0;
    for (const int size : kCurveModelGroups) {
        sum += size;
    }
    return sum;
}

} // namespace detail

static_assert(kCurveModels.size() == 28 && detail::sumOfGroups() == 28);
static_assert(kEnhancedModels.size() == 6);
static_assert(detail::areWellFormed(kCurveModels) && detail::areWellFormed(kEnhancedModels));
static_assert(detail::areReachable(kCurveModels) && detail::areReachable(kEnhancedModels));

/// A model text without its "-".
[[nodiscard]] QString normalisedModel(const QString &modelText);

/// The row of the first code that occurs anywhere in `normalised` (a model text without its "-"), so a text
/// that continues a code is taken as that code; null when none does. Case counts. Each comparison is written
/// as a debug line.
const ModelRow *findCurveModel(const QString &normalised);
/// Likewise among the supplies that measure their own efficiency.
const ModelRow *findEnhancedModel(const QString &normalised);

} // namespace zpsg::power
