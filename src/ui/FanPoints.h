// Changes to the points of a fan curve, each of which leaves a curve that can be driven: in order, apart from
// each other, within the ranges, and never falling.
#pragma once

#include "fan/FanCurve.h"

#include <optional>
#include <utility>

namespace zpsg::ui {

using FanPoints = std::vector<fan::CurvePoint>;

/// From where to where the points of a source go: degrees Celsius, or percent of load.
[[nodiscard]] std::pair<double, double> rangeOf(fan::CurveSource source);

/// Moves the point towards `to` as far as its neighbours and the ranges let it, to whole numbers.
[[nodiscard]] fan::CurvePoint movedPoint(const FanPoints &points, std::size_t index,
                                         const fan::CurvePoint &to, fan::CurveSource source);
/// Adds a point as near to `at` as its neighbours let it; its index. Nothing when there are kMostPoints, or
/// no room there.
std::optional<std::size_t> addPoint(FanPoints &points, const fan::CurvePoint &at, fan::CurveSource source);
/// Adds one on the line, beside that of this index, or in the widest gap when there is no room beside it.
std::optional<std::size_t> addBeside(FanPoints &points, std::size_t index, fan::CurveSource source);
/// Removes one; false when no more than kLeastPoints are left.
bool removePoint(FanPoints &points, std::size_t index);

} // namespace zpsg::ui
