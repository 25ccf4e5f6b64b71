// From a few points of a power supply's efficiency to a whole curve. What is interpolated is the loss, not
// the efficiency: a supply has a standing loss and losses that grow with the current and with its square, so
// the loss is a smooth, rising function of the load, and the efficiency follows from it at every load, down
// to 0 % at 0 W. Loads and losses are shares of the rated output power (1 is full load).
#pragma once

#include <utility>
#include <vector>

namespace zpsg::curves {

/// Efficiency at a load, both in percent, each above 0; the load at most 100, the efficiency below 100.
struct LoadPoint {
    double loadPercent;
    double efficiencyPercent;

    bool operator==(const LoadPoint &) const = default;
};
using LoadPoints = std::vector<LoadPoint>;

/// The loss at a load, as a share of the rated power: load * (1 / efficiency - 1).
[[nodiscard]] double lossOf(const LoadPoint &point);

/// Whether a curve can be made of them: at least two points within their ranges, with rising load and loss.
[[nodiscard]] bool areUsable(const LoadPoints &points);

class LossCurve {
public:
    /// One point of the loss: where, how much, and how steep.
    struct Knot {
        double load;
        double loss;
        double slope;
    };

    /// At least two knots with rising loads.
    explicit LossCurve(std::vector<Knot> knots) : knots_(std::move(knots)) {}

    /// At a load from 0. Between two knots the cubic with their slopes, outside a straight line with the
    /// slope of the first or the last.
    [[nodiscard]] double loss(double load) const;
    [[nodiscard]] double efficiencyPercent(double load) const;

private:
    std::vector<Knot> knots_;
};

/// The curves at two mains voltages of one supply, through usable points: monotone cubics (Fritsch and
/// Carlson) with a positive loss at no load. Points at the low end that the two have in common give one and
/// the same curve up to the last of them, so that neither falls below the other there.
[[nodiscard]] std::pair<LossCurve, LossCurve> lossCurves(const LoadPoints &low, const LoadPoints &high);

/// Entries of 10 W up to 125 % of the rated watts (above 0).
[[nodiscard]] int entryCount(int ratedWatts);

/// Percent with two decimals, each entry at the middle of its 10 W.
[[nodiscard]] std::vector<double> entries(const LossCurve &curve, int ratedWatts);

} // namespace zpsg::curves
