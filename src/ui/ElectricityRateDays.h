// Seven small buttons, one for each day of the week, in the order of the user's calendar.
#pragma once

#include <QWidget>

#include <array>

class QAbstractButton;

namespace zpsg::ui {

/// Tab reaches one of them, the arrow keys the others, the space bar chooses.
class ElectricityRateDays final : public QWidget {
    Q_OBJECT

public:
    explicit ElectricityRateDays(QWidget *parent);

    /// A power::dayBit() for each day.
    void setDays(unsigned days);
    [[nodiscard]] unsigned days() const;
    [[nodiscard]] const std::array<QAbstractButton *, 7> &buttons() const { return buttons_; }
    /// `name` is what the days are of, for assistive programs.
    void retranslate(const QString &name);
    void applyScale(qreal scale);
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void changed();

private:
    void focusDay(int index);

    std::array<QAbstractButton *, 7> buttons_{}; ///< as they stand, the week's first at the left
};

/// The days of the week, 1 (Monday) to 7, in the order of the locale's calendar.
[[nodiscard]] std::array<int, 7> daysInOrder();

} // namespace zpsg::ui
