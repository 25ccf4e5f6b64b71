// The head of the history page: which range is shown, and the way to the export.
#pragma once

#include "ui/HistoryData.h"

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace zpsg::ui {

class HistoryDateEdit;
class SegmentedControl;
class StepButton;

/// PageUp and PageDown step back and forward, from anywhere on the page.
class HistoryHead final : public QWidget {
    Q_OBJECT

public:
    explicit HistoryHead(QWidget *parent);

    [[nodiscard]] HistorySpan span() const;
    [[nodiscard]] HistoryRange range() const { return range_; }
    /// The last day that there can be.
    void setToday(const QDate &today);
    /// The day that stays in view when another span is chosen, when it is in the range.
    void setAnchor(const QDate &day) { anchor_ = day; }
    /// Goes to the span around a day, with a signal if that is another range.
    void showAround(HistorySpan span, const QDate &day);
    void setExportOpen(bool open);
    void setExportEnabled(bool enabled);
    void applyScale(qreal scale);

signals:
    void rangeChanged();
    /// The button; a signal of another range follows, if it is one.
    void todayWanted();
    void exportToggled(bool open);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void layOut();
    void retranslate();
    void go(const HistoryRange &range);
    void step(int step);
    void spanChosen();
    void datesEdited(bool fromEdited);
    void showRange();
    void fitTitle();

    HistoryRange range_;
    QDate today_;
    QDate anchor_;
    QLabel *title_;
    StepButton *back_;
    StepButton *forward_;
    QPushButton *todayButton_;
    QLabel *rangeText_;
    HistoryDateEdit *from_;
    QLabel *dash_;
    HistoryDateEdit *to_;
    SegmentedControl *span_;
    QPushButton *export_;
    QHBoxLayout *layout_;
};

} // namespace zpsg::ui
