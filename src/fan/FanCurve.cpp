#include "fan/FanCurve.h"

#include <cmath>

namespace zpsg::fan {

double percentAt(std::span<const CurvePoint> points, double at) {
    if (at <= points.front().at) {
        return points.front().percent;
    }
    for (std::size_t i = 1; i < points.size(); ++i) {
        const CurvePoint &left = points[i - 1];
        const CurvePoint &right = points[i];
        if (at < right.at) {
            return left.percent + (right.percent - left.percent) * (at - left.at) / (right.at - left.at);
        }
    }
    return points.back().percent;
}

std::vector<CurvePoint> fittedPoints(std::vector<CurvePoint> points, CurveSource source) {
    const bool byTemperature = source == CurveSource::Temperature;
    const double lowest = byTemperature ? kCoolestCelsius : 0.0;
    const double highest = byTemperature ? kHottestCelsius : kFullLoad;
    std::erase_if(points, [](const CurvePoint &point) {
        return !std::isfinite(point.at) || !std::isfinite(point.percent);
    });
    for (auto &point : points) {
        point.at = std::clamp(point.at, lowest, highest);
        point.percent =
            std::clamp(point.percent, static_cast<double>(kLeastPercent), static_cast<double>(kMostPercent));
    }
    std::stable_sort(points.begin(), points.end(),
                     [](const CurvePoint &a, const CurvePoint &b) { return a.at < b.at; });
    std::vector<CurvePoint> fitted;
    for (const auto &point : points) {
        if (fitted.size() < kMostPoints &&
            (fitted.empty() || point.at - fitted.back().at >= kPointDistance)) {
            // A fan that slows down while it gets hotter would hunt.
            fitted.push_back(
                {point.at, fitted.empty() ? point.percent : std::max(point.percent, fitted.back().percent)});
        }
    }
    if (fitted.size() < kLeastPoints) {
        const FanCurve usual;
        return byTemperature ? usual.temperature : usual.load;
    }
    return fitted;
}

} // namespace zpsg::fan
