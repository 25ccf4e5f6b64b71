#include "curves/CurveMaths.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace zpsg::curves {
namespace {

constexpr double kStepWatts = 10.0;
constexpr double kHighestLoad = 1.25;

using Knots = std::vector<LossCurve::Knot>;

double width(const Knots &knots, std::size_t i) { return knots[i + 1].load - knots[i].load; }

/// Mean slope from knot i to the next.
double secant(const Knots &knots, std::size_t i) {
    return (knots[i + 1].loss - knots[i].loss) / width(knots, i);
}

/// The slope at the end of interval `at`, whose other neighbour is interval `next`, of the parabola through
/// their three knots.
double endSlope(const Knots &knots, std::size_t at, std::size_t next) {
    const double near = width(knots, at);
    const double far = width(knots, next);
    return ((2 * near + far) * secant(knots, at) - near * secant(knots, next)) / (near + far);
}

/// The slopes of the parabolas through three neighbours each.
void giveSlopes(Knots &knots) {
    const std::size_t last = knots.size() - 1;
    for (std::size_t i = 1; i < last; ++i) {
        const double before = width(knots, i - 1);
        const double after = width(knots, i);
        knots[i].slope = (after * secant(knots, i - 1) + before * secant(knots, i)) / (before + after);
    }
    const double first = last > 1 ? endSlope(knots, 0, 1) : secant(knots, 0);
    const double end = last > 1 ? endSlope(knots, last - 1, last - 2) : secant(knots, 0);
    // Half of the slope that would reach no loss at no load: at least half of the first knot's loss stands.
    knots[0].slope = std::clamp(first, 0.0, knots[0].loss / knots[0].load / 2);
    // What heats the copper grows with the square of the load: past full load the loss does not flatten.
    knots[last].slope = std::max(end, secant(knots, last - 1));
}

/// Fritsch and Carlson's bound: slopes within a circle of three secants keep the cubic from turning back.
void keepRising(Knots &knots) {
    constexpr double kRadius = 3.0;
    for (std::size_t i = 0; i + 1 < knots.size(); ++i) {
        const double mean = secant(knots, i);
        const double length = std::hypot(knots[i].slope, knots[i + 1].slope);
        if (length > kRadius * mean) {
            knots[i].slope *= kRadius * mean / length;
            knots[i + 1].slope *= kRadius * mean / length;
        }
    }
}

Knots knotsOf(const LoadPoints &points) {
    Knots knots;
    knots.reserve(points.size());
    for (const LoadPoint &point : points) {
        knots.push_back({point.loadPercent / 100, lossOf(point), 0});
    }
    giveSlopes(knots);
    keepRising(knots);
    return knots;
}

} // namespace

double lossOf(const LoadPoint &point) {
    return point.loadPercent / 100 * (100 / point.efficiencyPercent - 1);
}

bool areUsable(const LoadPoints &points) {
    const auto inRange = [](const LoadPoint &point) {
        return point.loadPercent > 0 && point.loadPercent <= 100 && point.efficiencyPercent > 0 &&
               point.efficiencyPercent < 100;
    };
    const auto notRising = [](const LoadPoint &point, const LoadPoint &next) {
        return next.loadPercent <= point.loadPercent || lossOf(next) <= lossOf(point);
    };
    return points.size() >= 2 && std::all_of(points.begin(), points.end(), inRange) &&
           std::adjacent_find(points.begin(), points.end(), notRising) == points.end();
}

double LossCurve::loss(double load) const {
    const auto straight = [load](const Knot &knot) { return knot.loss + knot.slope * (load - knot.load); };
    if (load <= knots_.front().load) {
        return straight(knots_.front());
    }
    if (load >= knots_.back().load) {
        return straight(knots_.back());
    }
    const auto right = std::upper_bound(knots_.begin(), knots_.end(), load,
                                        [](double value, const Knot &knot) { return value < knot.load; });
    const Knot &to = *right;
    const Knot &from = *std::prev(right);
    const double wide = to.load - from.load;
    const double t = (load - from.load) / wide;
    const double u = 1 - t;
    return u * u * ((1 + 2 * t) * from.loss + t * wide * from.slope) +
           t * t * ((1 + 2 * u) * to.loss - u * wide * to.slope);
}

double LossCurve::efficiencyPercent(double load) const { return 100 * load / (load + loss(load)); }

std::pair<LossCurve, LossCurve> lossCurves(const LoadPoints &low, const LoadPoints &high) {
    Knots lowKnots = knotsOf(low);
    Knots highKnots = knotsOf(high);
    // The flatter of two slopes is within the bound of both curves.
    for (std::size_t i = 0; i < low.size() && i < high.size() && low[i] == high[i]; ++i) {
        lowKnots[i].slope = highKnots[i].slope = std::min(lowKnots[i].slope, highKnots[i].slope);
    }
    return {LossCurve(std::move(lowKnots)), LossCurve(std::move(highKnots))};
}

int entryCount(int ratedWatts) { return static_cast<int>(std::ceil(kHighestLoad * ratedWatts / kStepWatts)); }

std::vector<double> entries(const LossCurve &curve, int ratedWatts) {
    std::vector<double> percents;
    const int count = entryCount(ratedWatts);
    percents.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const double percent = curve.efficiencyPercent((i + 0.5) * kStepWatts / ratedWatts);
        percents.push_back(std::round(percent * 100) / 100);
    }
    return percents;
}

} // namespace zpsg::curves
