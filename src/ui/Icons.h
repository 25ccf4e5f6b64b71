// The program's signs: line drawings of data/icons, in whatever colour and size they are asked for.
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
    Bars,      ///< a chart of three bars
    Ring,      ///< lights round a fan
    Fan,       ///< four blades
    Calm,      ///< a tick in a ring: all is well
    Settings,  ///< a cogwheel
    Info,      ///< an i in a ring
    Folder,    ///< where files are kept
    Tag,       ///< a price tag: what something costs
    Processor, ///< a chip with its pins
    Power,     ///< the mark of an on-off switch
    Exit,      ///< an arrow out of a frame
    Count,
};

/// Draws the sign centred in `rect`, as large as its shorter side, on whole pixels of the device. Its lines
/// are 1.8 of the 24 units of a drawing wide, and at least 1.4 device-independent pixels however small the
/// sign. GUI thread only: what was drawn once is kept for the next time.
void paintIcon(QPainter &painter, Icon icon, const QRectF &rect, const QColor &colour);

} // namespace zpsg::ui
