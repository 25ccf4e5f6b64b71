// The program's signs, drawn as vectors so that they are sharp at every scale.
#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace zpsg::ui {

enum class Icon {
    Dot,       ///< all is well
    Unplugged, ///< a plug beside its socket
    Lock,
    Warning, ///< a triangle with an exclamation mark
    Minimise,
    Close,
    Gauge, ///< a dial with its needle
    Bell,
    Tick,
    Bars, ///< a chart of three bars
    Ring, ///< lights round a fan
    Fan,  ///< four blades
};

/// Draws the sign centred in `rect`, as large as its shorter side.
void paintIcon(QPainter &painter, Icon icon, const QRectF &rect, const QColor &colour);

} // namespace zpsg::ui
