// The panel of the single-colour ring.
#pragma once

#include "lighting/LightingState.h"
#include "ui/RingPanel.h"

namespace zpsg::ui {

class Selector;

class ZpsCirq final : public RingPanel {
    Q_OBJECT

public:
    explicit ZpsCirq(QWidget *parent = nullptr);

    /// Without signals.
    void showState(const lighting::SingleRingState &state);
    /// What the ring shows now; one colour.
    void showLeds(std::span<const lighting::Colour> leds) { showLive(leds); }

signals:
    /// Red, green and blue as decimal texts, unscaled.
    void colourChanged(const QStringList &rgb);
    void brightnessChanged(int percent);
    void turnedOff(bool off);
    /// Index into lighting::kSingleLightModes.
    void lightModeChosen(int mode);

protected:
    void retranslate() override;
    void scaleSelectors(qreal scale) override;
    void lightsSwitched(bool on) override;

private:
    void refresh();

    lighting::SingleRingState state_;
    QLabel *modeCaption_;
    Selector *mode_;
};

} // namespace zpsg::ui
