// A switch: on when its knob is at the right and carries a tick.
#pragma once

#include <QAbstractButton>

namespace zpsg::ui {

/// Drawn, so that it is sharp at every scale. Its state is told by place and sign, not by colour alone.
class ToggleSwitch : public QAbstractButton {
    Q_OBJECT

public:
    explicit ToggleSwitch(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace zpsg::ui
