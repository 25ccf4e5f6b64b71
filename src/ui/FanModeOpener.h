// The button that tells the fan's mode and opens the selector for it.
#pragma once

#include <QPushButton>

namespace zpsg::ui {

class FanModeOpener final : public QPushButton {
    Q_OBJECT

public:
    explicit FanModeOpener(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace zpsg::ui
