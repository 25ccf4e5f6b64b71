// The days of a range on a card: a bar for each, or for each month where bars would be thinner than a pixel.
#pragma once

#include "ui/HistorySums.h"
#include "ui/TrendView.h"

namespace zpsg::ui {

class HistoryBars;
class SegmentedControl;
struct HistoryTag;

/// Left, Right, Home and End go from bar to bar; Enter, Space or a click choose one.
class HistoryDaysView final : public TrendView {
    Q_OBJECT

public:
    explicit HistoryDaysView(QWidget *parent = nullptr);

    /// Shows this range, with nothing in it until days are shown. Days after `today` can't be pointed at.
    void setRange(const HistoryRange &range, const QDate &today);
    void showDays(const std::vector<HistoryDay> &days);
    /// Marks the day whose minutes are shown.
    void setChosen(const QDate &day);
    /// Said in the plot's place while there is no day; may be empty.
    void sayInstead(const QString &text);

    [[nodiscard]] HistoryMeasure measure() const;
    [[nodiscard]] bool byMonth() const { return byMonth_; }
    [[nodiscard]] const std::vector<HistoryDay> &days() const { return days_; }

    [[nodiscard]] QString captionText() const override;
    [[nodiscard]] QString summaryText() const override;
    [[nodiscard]] QString readoutText() const override { return pointedText(); }
    /// What the tag at the bar that is pointed at says, in one line; empty when there is none.
    [[nodiscard]] QString pointedText() const;
    [[nodiscard]] std::optional<double> readoutValue() const override;
    [[nodiscard]] std::pair<double, double> readoutRange() const override { return {0.0, top_}; }

signals:
    void dayChosen(const QDate &day);
    /// `day` is the first of the month that is in the range.
    void monthChosen(const QDate &day);
    void measureChanged();

protected:
    void retranslate() override;
    void replot() override;
    void layOut(qreal scale) override;
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void rebuild();
    void point(int slot);
    void choose(int slot);
    [[nodiscard]] int slotUnder(const QPoint &at) const;
    /// The next slot from `slot` on, in steps of `step`, that holds something; -1 without one.
    [[nodiscard]] int nextFilled(int slot, int step) const;
    [[nodiscard]] HistoryTag pointedTag() const;

    HistoryRange range_;
    QDate today_;
    QDate chosen_;
    std::vector<HistoryDay> days_;
    std::vector<HistorySlot> slots_;
    bool byMonth_ = false;
    int pointed_ = -1;
    bool focusShown_ = false; ///< the focus came by the keyboard
    double top_ = 1.0;
    HistoryBars *bars_; ///< owned by the plot
    SegmentedControl *measure_;
};

} // namespace zpsg::ui
