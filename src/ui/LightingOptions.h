// What holds for every ring: what it shows, and when it is dark or warns.
#pragma once

#include <QWidget>

#include <array>

class QHBoxLayout;
class QLabel;

namespace zpsg::ui {

class SegmentedControl;
class ToggleSwitch;

struct LightingOptionsState {
    int gauge = 0; ///< 0 the effect, 1 the load, 2 the temperature
    bool safePalette = false;
    bool alarmOnRing = true;
    bool offWhenLocked = true;

    bool operator==(const LightingOptionsState &) const = default;
};

class LightingOptions final : public QWidget {
    Q_OBJECT

public:
    explicit LightingOptions(QWidget *parent = nullptr);

    /// Without a signal.
    void showState(const LightingOptionsState &state);
    [[nodiscard]] const LightingOptionsState &state() const { return state_; }
    void applyScale(qreal scale);

signals:
    /// The user has changed something; the whole of what is set now.
    void changed(const zpsg::ui::LightingOptionsState &state);
    /// Another gauge, or none, is set than before; by whomever.
    void gaugeSet(int gauge);

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    static constexpr std::size_t kSwitches = 3;

    void layOut();
    void retranslate();
    void readControls();

    LightingOptionsState state_;
    QLabel *shownCaption_;
    SegmentedControl *shown_;
    std::array<QLabel *, kSwitches> names_{};
    std::array<ToggleSwitch *, kSwitches> switches_{};
    QHBoxLayout *row_ = nullptr;
};

} // namespace zpsg::ui
