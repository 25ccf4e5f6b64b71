// The button of a mode of the fan.
#pragma once

#include "fan/FanMode.h"

#include <QPushButton>

namespace zpsg::ui {

/// The chosen one is filled, in bold and has a tick. Its surface is that of its style sheet.
class FanModeButton final : public QPushButton {
    Q_OBJECT

public:
    /// Around the surface, for the mark of the focus; in a window of the usual size, pixels.
    static constexpr qreal kRing = 3.0;

    FanModeButton(fan::FanMode mode, QWidget *parent);

    [[nodiscard]] fan::FanMode mode() const { return mode_; }
    [[nodiscard]] bool isChosen() const { return chosen_; }
    void setChosen(bool chosen);
    void retranslate();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    [[nodiscard]] int widthWith(qreal padding) const;

    fan::FanMode mode_;
    bool chosen_ = false;
};

} // namespace zpsg::ui
