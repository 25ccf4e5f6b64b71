// Where a view's data are drawn, for tests that look at pixels or point at them.
#pragma once

#include <QWidget>

namespace zpsg::ui::test {

/// The canvas of the view's plot, in the view's coordinates. The view has to have been shown.
inline QRect canvasIn(const QWidget &view) {
    for (const QWidget *child : view.findChildren<QWidget *>()) {
        if (child->inherits("QwtPlotCanvas")) {
            return {child->mapTo(&view, QPoint(0, 0)), child->size()};
        }
    }
    return {};
}

} // namespace zpsg::ui::test
