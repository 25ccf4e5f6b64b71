// The foot of the dashboard: one card with several views, and the switch between them.
#pragma once

#include <QWidget>

#include <array>

class QStackedWidget;

namespace zpsg::ui {

class DayView;
class EfficiencyView;
class EnergyView;
class PcView;
class PowerTrace;
class SegmentedControl;
class TrendView;

/// Each view is a card; the switch stands at the right end of its caption line, or on a line of its own above
/// the card where the texts leave no room for it.
class TrendPanel : public QWidget {
    Q_OBJECT

public:
    /// The numbers of the views, which may be stored.
    enum View { FiveMinutes = 0, Today = 1, Efficiency = 2, Energy = 3, Pc = 4 };

    explicit TrendPanel(QWidget *parent = nullptr);

    [[nodiscard]] PowerTrace *power() const { return power_; }
    [[nodiscard]] DayView *day() const { return day_; }
    [[nodiscard]] EfficiencyView *efficiency() const { return efficiency_; }
    [[nodiscard]] EnergyView *energy() const { return energy_; }
    [[nodiscard]] PcView *pc() const { return pc_; }

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
    [[nodiscard]] std::array<TrendView *, 5> views() const;
    /// Whether every view's caption, and a summary beside it, leave this much of the caption line free.
    [[nodiscard]] bool captionsLeave(qreal pixels) const;

    SegmentedControl *switch_;
    QStackedWidget *stack_;
    PowerTrace *power_;
    DayView *day_;
    EfficiencyView *efficiency_;
    EnergyView *energy_;
    PcView *pc_;
};

} // namespace zpsg::ui
