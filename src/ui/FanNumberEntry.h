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
    void applyScale(qreal scale);

signals:
    /// The user has set it.
    void valueChosen(int value);

protected:
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
};

} // namespace zpsg::ui
