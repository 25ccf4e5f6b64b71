// A fan curve that the program drives: speed against temperature or load.
#pragma once

#include "fan/FanMode.h"

#include <span>
#include <vector>

namespace zpsg::fan {

/// What the curve goes by.
enum class CurveSource {
    Temperature = 0, ///< of the supply, degrees Celsius
    Load = 1,        ///< output power in percent of the rated watts
};

/// Speed of the fan at one temperature or load.
struct CurvePoint {
    double at = 0.0;      ///< degrees Celsius or percent of load, by the source
    double percent = 0.0; ///< kLeastPercent to kMostPercent

    bool operator==(const CurvePoint &) const = default;
};

// Bounds of a curve. Between its points it is straight; before the first and after the last it is level.
inline constexpr std::size_t kLeastPoints = 2;
inline constexpr std::size_t kMostPoints = 8;
inline constexpr double kCoolestCelsius = 20.0; ///< range of `at` by temperature
inline constexpr double kHottestCelsius = 60.0;
inline constexpr double kFullLoad = 100.0;    ///< range of `at` by load is 0 to this
inline constexpr double kPointDistance = 1.0; ///< neighbours are at least this far apart in `at`

struct FanCurve {
    CurveSource source = CurveSource::Temperature;
    std::vector<CurvePoint> temperature{{30, 30}, {40, 40}, {48, 60}, {56, 100}};
    std::vector<CurvePoint> load{{20, 30}, {50, 45}, {80, 75}, {100, 100}};

    /// The points of the source in use.
    [[nodiscard]] const std::vector<CurvePoint> &points() const {
        return source == CurveSource::Temperature ? temperature : load;
    }
    bool operator==(const FanCurve &) const = default;
};

/// The speed at `at`, percent; `points` are in rising order, at least one.
[[nodiscard]] double percentAt(std::span<const CurvePoint> points, double at);

/// Points that may have come from anywhere (a file, a mouse), put in order, within the ranges, never falling
/// with `at`, and apart from each other; the fallback's when fewer than kLeastPoints are left.
[[nodiscard]] std::vector<CurvePoint> fittedPoints(std::vector<CurvePoint> points, CurveSource source);

} // namespace zpsg::fan
