// What of a minute can be drawn: the quantities that the user chooses from, and the curves that each has.
#pragma once

#include "ui/HistoryScales.h"

#include <QColor>
#include <QRectF>
#include <QString>

#include <array>
#include <vector>

class QPainter;

namespace zpsg::ui {

enum class HistoryCurve { Watts, Volts12, Volts5, Volts33, Amps12, Amps5, Amps33, Celsius, Rpm, Efficiency };
inline constexpr std::size_t kHistoryCurves = 10;

/// Curves of one quantity share a unit, an axis and a colour; they differ in their dashes. Quantities differ
/// in colour and in the marks on their curves.
enum class HistoryQuantity { Power, Rails, Currents, Temperature, Fan, Efficiency };
inline constexpr std::array kHistoryQuantities{HistoryQuantity::Power,    HistoryQuantity::Rails,
                                               HistoryQuantity::Currents, HistoryQuantity::Temperature,
                                               HistoryQuantity::Fan,      HistoryQuantity::Efficiency};

[[nodiscard]] std::vector<HistoryCurve> curvesOf(HistoryQuantity quantity);
[[nodiscard]] QString nameOf(HistoryQuantity quantity);
[[nodiscard]] QString unitOf(HistoryQuantity quantity);
/// The rail's name, or the quantity's when it has one curve.
[[nodiscard]] QString nameOf(HistoryQuantity quantity, HistoryCurve curve);
/// The value (temperatures in degrees Celsius) in the quantity's unit, without it.
[[nodiscard]] QString figureOf(HistoryCurve curve, double value);

/// Where a value is drawn: rails by how far they are off their nominal voltage, in percent, because in volts
/// all three would be flat lines far apart; temperatures in the unit that is read;
/// everything else as it is.
[[nodiscard]] double plotted(HistoryCurve curve, double value);
/// The axis for plotted values between these.
[[nodiscard]] ValueScale scaleFor(HistoryQuantity quantity, double least, double most);
/// What the axis says at a plotted value.
[[nodiscard]] QString axisText(HistoryQuantity quantity, const ValueScale &scale, double value);

[[nodiscard]] QColor inkOf(HistoryQuantity quantity);
[[nodiscard]] Qt::PenStyle dashOf(HistoryCurve curve);
/// The quantity's mark, filled with the painter's brush; `radius` is half its height.
void drawMark(QPainter &painter, HistoryQuantity quantity, const QPointF &centre, qreal radius);
/// A short piece of the curve with its mark, for legends.
void drawSample(QPainter &painter, HistoryQuantity quantity, HistoryCurve curve, const QRectF &place,
                const QColor &ink);

} // namespace zpsg::ui
