// The minutes of one day on a card: curves that can be looked at closely.
#pragma once

#include "ui/HistoryMinutes.h"
#include "ui/HistoryWindow.h"
#include "ui/TrendView.h"

#include <QPushButton>

namespace zpsg::ui {

class HistoryChips;
class HistoryCursor;
class HistoryLegend;
class HistoryLines;
struct HistoryTag;

/// The wheel, + and - zoom; dragging, Left and Right move what is in view; a double click, 0 and Home show
/// the whole day again. Shift with Left and Right goes from minute to minute.
class HistoryDayView final : public TrendView {
    Q_OBJECT

public:
    explicit HistoryDayView(QWidget *parent = nullptr);

    /// Shows this day, with nothing in it until minutes are shown. An invalid day is none.
    void setDay(const QDate &day);
    /// What is in view stays in view when they are of the day that was shown.
    void showMinutes(const std::vector<HistoryMinute> &minutes);
    /// Said in the plot's place while there is no minute; may be empty.
    void sayInstead(const QString &text);

    [[nodiscard]] const HistoryMinutes &minutes() const { return minutes_; }
    [[nodiscard]] const HistoryWindow &window() const { return window_; }
    [[nodiscard]] HistoryChips *chips() { return chips_; }

    [[nodiscard]] QString captionText() const override;
    [[nodiscard]] QString summaryText() const override;
    [[nodiscard]] QString readoutText() const override { return pointedText(); }
    /// What the tag at the minute that is pointed at says, in one line; empty when there is none.
    [[nodiscard]] QString pointedText() const;
    /// Watts.
    [[nodiscard]] std::optional<double> readoutValue() const override;
    [[nodiscard]] std::pair<double, double> readoutRange() const override { return {0.0, 10000.0}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {320, 150}; }

protected:
    void retranslate() override;
    void replot() override;
    void layOut(qreal scale) override;
    [[nodiscard]] QRect plotPlace(const QRect &room) const override;
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    struct Drag {
        int x;
        HistoryWindow window;
    };

    void plotQuantities();
    void plotTime();
    void view(const HistoryWindow &window);
    void point(std::optional<std::size_t> row);
    void pointAt(const QPoint &at);
    void pointBeside(int step);
    void updateSpots();
    void updateCursor(const QPoint &at);
    [[nodiscard]] bool zoomedIn() const { return window_.length() < minutes_.length(); }
    [[nodiscard]] HistoryTag pointedTag() const;

    HistoryMinutes minutes_;
    HistoryWindow window_;
    std::optional<std::size_t> pointed_;
    std::optional<Drag> drag_;
    bool focusShown_ = false;               ///< the focus came by the keyboard
    std::array<HistoryLines *, 2> lines_{}; ///< for the axes at the left and at the right; owned by the plot
    HistoryCursor *cursor_;                 ///< owned by the plot
    HistoryChips *chips_;
    QPushButton *whole_;
    HistoryLegend *legend_;
};

} // namespace zpsg::ui
