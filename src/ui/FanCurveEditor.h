// A fan curve that is edited in its plot, with the mouse or with the keyboard alone.
#pragma once

#include "fan/FanCurve.h"
#include "ui/Readout.h"

#include <QPointF>

namespace zpsg::ui {

class FanCurveItem;
class TrendPlot;

/// Points are dragged; a double click adds one. The arrow keys move the selected point, with Shift five times
/// as far; Page Up and Page Down (Ctrl with left and right as well), Home and End select another one, Insert
/// adds, Delete removes. Escape ends a drag as if it had not begun.
class FanCurveEditor final : public Readout {
    Q_OBJECT

public:
    explicit FanCurveEditor(QWidget *parent = nullptr);

    /// Without a signal. A drag goes on if the curve is the one that it began with.
    void setCurve(const fan::FanCurve &curve);
    [[nodiscard]] const fan::FanCurve &curve() const { return curve_; }
    /// As if the user had chosen the source.
    void chooseSource(fan::CurveSource source);
    /// The curve is switched on: shown in colour. It can be edited in any case.
    void setDriving(bool driving);
    /// Where the supply is now, by either source.
    void showNow(std::optional<double> celsius, std::optional<double> loadPercent);

    [[nodiscard]] std::optional<std::size_t> selected() const { return selected_; }
    [[nodiscard]] bool canAdd() const;
    [[nodiscard]] bool canRemove() const;
    /// As if the user had pressed the keys for it.
    void addOne();
    void removeSelected();
    /// Where a point of the curve is, in the editor's coordinates.
    [[nodiscard]] QPointF placeOf(const fan::CurvePoint &point) const;

    void retranslate();

    /// The selected point in words.
    [[nodiscard]] QString readoutText() const override;
    [[nodiscard]] std::optional<double> readoutValue() const override;
    [[nodiscard]] std::pair<double, double> readoutRange() const override;

    [[nodiscard]] QSize sizeHint() const override { return {400, 220}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {240, 110}; }

signals:
    /// The user has changed the curve: once at the end of a drag, and with each key.
    void edited(const zpsg::fan::FanCurve &curve);
    /// Another point is selected, or none, or their number is another one.
    void selectionChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    struct Drag {
        fan::FanCurve before;
        QPointF grip; ///< from the pointer to the point's middle
    };

    [[nodiscard]] std::vector<fan::CurvePoint> &points();
    [[nodiscard]] std::optional<std::size_t> pointAt(const QPointF &place) const;
    [[nodiscard]] fan::CurvePoint valueAt(const QPointF &place) const;
    [[nodiscard]] QString textOf(const fan::CurvePoint &point) const;
    bool selectByKey(const QKeyEvent &event);
    bool moveByKey(const QKeyEvent &event);
    void select(std::optional<std::size_t> index);
    void changed();
    void refresh();

    TrendPlot *plot_;
    FanCurveItem *item_; ///< owned by the plot
    fan::FanCurve curve_;
    std::optional<std::size_t> selected_;
    std::optional<std::size_t> hovered_;
    std::optional<Drag> drag_;
    std::optional<double> celsius_;
    std::optional<double> loadPercent_;
    bool driving_ = false;
};

} // namespace zpsg::ui
