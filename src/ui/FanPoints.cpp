#include "ui/FanPoints.h"

#include <algorithm>
#include <cmath>

namespace zpsg::ui {
namespace {

/// What a point may be between the points before and after it.
struct Room {
    double atFrom;
    double atTo;
    double percentFrom;
    double percentTo;
};

Room roomBetween(const fan::CurvePoint *before, const fan::CurvePoint *after, fan::CurveSource source) {
    const auto [from, to] = rangeOf(source);
    // Whole numbers, so that what is shown is what is kept.
    return {before != nullptr ? std::ceil(before->at + fan::kPointDistance) : from,
            after != nullptr ? std::floor(after->at - fan::kPointDistance) : to,
            before != nullptr ? before->percent : fan::kLeastPercent,
            after != nullptr ? after->percent : fan::kMostPercent};
}

fan::CurvePoint put(const fan::CurvePoint &point, const Room &room) {
    return {std::clamp(std::round(point.at), room.atFrom, room.atTo),
            std::clamp(std::round(point.percent), room.percentFrom, room.percentTo)};
}

} // namespace

std::pair<double, double> rangeOf(fan::CurveSource source) {
    return source == fan::CurveSource::Temperature ? std::pair(fan::kCoolestCelsius, fan::kHottestCelsius)
                                                   : std::pair(0.0, fan::kFullLoad);
}

fan::CurvePoint movedPoint(const FanPoints &points, std::size_t index, const fan::CurvePoint &to,
                           fan::CurveSource source) {
    const Room room = roomBetween(index > 0 ? &points[index - 1] : nullptr,
                                  index + 1 < points.size() ? &points[index + 1] : nullptr, source);
    if (room.atFrom > room.atTo) {
        return {points[index].at,
                std::clamp(std::round(to.percent), room.percentFrom, room.percentTo)}; // it can't go sideways
    }
    return put(to, room);
}

std::optional<std::size_t> addPoint(FanPoints &points, const fan::CurvePoint &at, fan::CurveSource source) {
    if (points.size() >= fan::kMostPoints) {
        return std::nullopt;
    }
    const auto after = std::find_if(points.begin(), points.end(),
                                    [&](const fan::CurvePoint &point) { return point.at > at.at; });
    const Room room = roomBetween(after != points.begin() ? &*(after - 1) : nullptr,
                                  after != points.end() ? &*after : nullptr, source);
    if (room.atFrom > room.atTo) {
        return std::nullopt;
    }
    const auto index = static_cast<std::size_t>(after - points.begin());
    points.insert(after, put(at, room));
    return index;
}

std::optional<std::size_t> addBeside(FanPoints &points, std::size_t index, fan::CurveSource source) {
    // The least gap that a point fits into.
    constexpr double kLeastGap = 2.0 * fan::kPointDistance;
    const auto gapAfter = [&](std::size_t i) {
        return i + 1 < points.size() ? points[i + 1].at - points[i].at : 0.0;
    };
    std::size_t left = index;
    if (gapAfter(left) < kLeastGap && left > 0) {
        --left;
    }
    for (std::size_t i = 0; gapAfter(left) < kLeastGap && i + 1 < points.size(); ++i) {
        left = gapAfter(i) >= kLeastGap ? i : left;
    }
    if (gapAfter(left) < kLeastGap) {
        return std::nullopt;
    }
    const double at = std::floor((points[left].at + points[left + 1].at) / 2.0);
    return addPoint(points, {at, fan::percentAt(points, at)}, source);
}

bool removePoint(FanPoints &points, std::size_t index) {
    if (points.size() <= fan::kLeastPoints || index >= points.size()) {
        return false;
    }
    points.erase(points.begin() + static_cast<std::ptrdiff_t>(index));
    return true;
}

} // namespace zpsg::ui
