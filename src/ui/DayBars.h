// The day's bars on the plot, all of them one item, with marks at now and at midnight.
#pragma once

#include <QString>

#include <qwt_plot_item.h>

#include <optional>
#include <vector>

namespace zpsg::ui {

/// x is the number of the bucket, each bucket one wide; y is watts.
class DayBars : public QwtPlotItem {
public:
    DayBars() { setZ(10.0); }

    /// 0 is drawn as nothing.
    void setWatts(const std::vector<float> &watts) { watts_ = watts; }
    /// The bucket that is being filled, and the word at its mark; nothing: no mark.
    void setNow(std::optional<int> bucket, const QString &word);
    /// The bar that the mouse is on, and what is said of it.
    void setPointed(std::optional<int> bucket, const QString &text);
    /// How much larger than usual texts are.
    void setScale(qreal scale) { scale_ = scale; }
    void setMuted(bool muted) { muted_ = muted; }

    void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
              const QRectF &canvas) const override;

private:
    void drawBars(QPainter &painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                  const QRectF &canvas) const;
    void drawNow(QPainter &painter, qreal x, const QRectF &canvas) const;
    void drawPointed(QPainter &painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                     const QRectF &canvas) const;

    std::vector<float> watts_;
    std::optional<int> now_;
    QString nowWord_;
    std::optional<int> pointed_;
    QString pointedText_;
    qreal scale_ = 1.0;
    bool muted_ = false;
};

} // namespace zpsg::ui
