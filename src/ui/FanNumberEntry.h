// A small entry for a whole number with its unit, with steps at its right.
#pragma once

#include <QSpinBox>

namespace zpsg::ui {

class FanNumberEntry final : public QSpinBox {
    Q_OBJECT

public:
    explicit FanNumberEntry(QWidget *parent = nullptr);

    /// Without a signal.
    void showValue(int value);
    /// Shows the value times `factor`, in whole numbers, with the unit behind it; steps are the value's.
    void setUnit(double factor, const QString &suffix);
    void applyScale(qreal scale);

signals:
    /// The user has set it.
    void valueChosen(int value);

protected:
    [[nodiscard]] QString textFromValue(int value) const override;
    [[nodiscard]] int valueFromText(const QString &text) const override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    double factor_ = 1.0;
};

} // namespace zpsg::ui
