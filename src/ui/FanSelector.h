// The base of the selectors of the fan's mode: a button for each mode, of which one is marked.
#pragma once

#include "fan/FanMode.h"

#include <QWidget>

#include <array>

class QStringList;

namespace zpsg::ui {

class FanModeButton;

/// The buttons have the object names of fan::kFanModes. A press marks nothing: what marks is the mode that
/// the supply is in.
class FanSelector : public QWidget {
    Q_OBJECT

public:
    /// Whether the supply takes a custom speed. The button for it is there only then; at first it is not.
    void setCustomSpeed(bool supported);
    /// Marks the mode's button, without a signal. A custom speed of which there is no button is shown as Zero
    /// Fan.
    void showMode(fan::FanMode mode);
    [[nodiscard]] bool customSpeed() const { return customSpeed_; }
    [[nodiscard]] fan::FanMode mode() const { return mode_; }
    [[nodiscard]] FanModeButton *button(fan::FanMode mode) const {
        return buttons_.at(static_cast<std::size_t>(mode));
    }

    virtual void applyScale(qreal scale);

signals:
    /// The user has pressed the button of a mode: its index in decimal, and the button's object name.
    void returnSelectFunction(const QStringList &indexAndName);

public slots:
    /// For clicked() of a button. One of an unknown name counts as Silent's.
    void functionSelected();

protected:
    enum class Place {
        Row,         ///< the buttons fill the selector
        ColumnApart, ///< they stand below each other on a surface that the selector places
    };
    FanSelector(Place place, QWidget *parent);

    [[nodiscard]] QWidget *surface() const { return surface_; }
    void changeEvent(QEvent *event) override;

private:
    QWidget *surface_; ///< where the buttons are
    std::array<FanModeButton *, fan::kFanModes.size()> buttons_{};
    fan::FanMode mode_ = fan::FanMode::Silent;
    bool customSpeed_ = false;
};

} // namespace zpsg::ui
