// The bars of days or months on their plot, all of them one item.
#pragma once

#include "ui/HistorySums.h"
#include "ui/HistoryTag.h"

#include <QList>

#include <qwt_plot_item.h>

namespace zpsg::ui {

/// x is days since the range begins; y is what is measured.
class HistoryBars : public QwtPlotItem {
public:
    HistoryBars() { setZ(10.0); }

    /// Slots without minutes are drawn as nothing. `beginnings`: where a line stands behind the bars.
    void setSlots(const std::vector<HistorySlot> &places, HistoryMeasure measure,
                  const QList<double> &beginnings);
    /// The bar whose minutes are shown elsewhere; -1: none.
    void setChosen(int slot) { chosen_ = slot; }
    /// The bar that is pointed at, and what is said of it; -1: none.
    void setPointed(int slot, const HistoryTag &tag);
    /// How much larger than usual texts are.
    void setScale(qreal scale) { scale_ = scale; }

    void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
              const QRectF &canvas) const override;

private:
    class Places;
    void drawBars(QPainter &painter, const Places &places) const;
    void drawChosen(QPainter &painter, const Places &places) const;
    void drawPointed(QPainter &painter, const Places &places) const;

    std::vector<HistorySlot> slots_;
    HistoryMeasure measure_ = HistoryMeasure::Energy;
    QList<double> beginnings_;
    int chosen_ = -1;
    int pointed_ = -1;
    HistoryTag tag_;
    qreal scale_ = 1.0;
};

} // namespace zpsg::ui
