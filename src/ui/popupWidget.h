// The selector of the fan's mode as a small pop-up, for the set of several fans.
#pragma once

#include "ui/FanSelector.h"

namespace zpsg::ui {

class FanOverlay;

/// A child that covers its parent while it is open. Goes when a mode is chosen, and with Escape or a press
/// beside it, which choose nothing.
class popupWidget final : public FanSelector {
    Q_OBJECT

public:
    explicit popupWidget(QWidget *parent = nullptr);

    /// Opens below `anchor`, which has to be within the parent, or above it where there is no room.
    void openAt(const QWidget *anchor);
    void applyScale(qreal scale) override;

public slots:
    void closeSelf();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void place();

    FanOverlay *overlay_;
    const QWidget *anchor_ = nullptr;
};

} // namespace zpsg::ui
