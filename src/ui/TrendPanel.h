// The foot of the dashboard: one card with three views of the output power, and the switch between them.
#pragma once

#include <QWidget>

class QStackedWidget;

namespace zpsg::ui {

class DayView;
class EfficiencyView;
class PowerTrace;
class SegmentedControl;
class TrendView;

/// Each view is a card; the switch stands at the right end of its caption line.
class TrendPanel : public QWidget {
    Q_OBJECT

public:
    /// The numbers of the views, which may be stored.
    enum View { FiveMinutes = 0, Today = 1, Efficiency = 2 };

    explicit TrendPanel(QWidget *parent = nullptr);

    [[nodiscard]] PowerTrace *power() const { return power_; }
    [[nodiscard]] DayView *day() const { return day_; }
    [[nodiscard]] EfficiencyView *efficiency() const { return efficiency_; }

    [[nodiscard]] int view() const;
    /// Nothing happens for a number that is none of a view.
    void setView(int view);

signals:
    /// Another view is shown now, whoever chose it.
    void viewChanged(int view);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void placeSwitch();

    QStackedWidget *stack_;
    PowerTrace *power_;
    DayView *day_;
    EfficiencyView *efficiency_;
    SegmentedControl *switch_;
};

} // namespace zpsg::ui
