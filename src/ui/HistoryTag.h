// The tag beside what is pointed at in a plot of the history.
#pragma once

#include <QColor>
#include <QString>

#include <functional>
#include <vector>

class QPainter;
class QRectF;

namespace zpsg::ui {

struct HistoryTag {
    struct Line {
        QString name;  ///< at the left
        QString value; ///< at the right
        /// Draws what stands before the name into the rectangle; may be empty.
        std::function<void(QPainter &, const QRectF &)> sign;
    };
    QString title;
    std::vector<Line> lines;
};

/// Right of the column from `left` to `right`, or left of it where there is more room, within `canvas` as far
/// as it fits. `scale`: how much larger than usual texts are.
void drawTag(QPainter &painter, const HistoryTag &tag, qreal left, qreal right, const QRectF &canvas,
             qreal scale);

} // namespace zpsg::ui
