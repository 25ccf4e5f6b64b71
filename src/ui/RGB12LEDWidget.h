// The panel of the ring with twelve lights.
#pragma once

#include "lighting/LightingState.h"
#include "ui/RingPanel.h"

#include <array>

namespace zpsg::ui {

class Selector;

class RGB12LEDWidget final : public RingPanel {
    Q_OBJECT

public:
    explicit RGB12LEDWidget(QWidget *parent = nullptr);

    /// Without signals.
    void showState(const lighting::PlusRingState &state);
    /// What the ring shows now; twelve colours.
    void showLeds(std::span<const lighting::Colour> leds) { showLive(leds); }

public slots:
    /// Another program asks for the state; returnInitTo_socketHelper() answers.
    void messageFromSocketHelper_getInit();

signals:
    void returnInitTo_socketHelper(const QString &state);
    /// The user has changed something; the whole of what is set now.
    void edited(const zpsg::lighting::PlusRingState &state);

protected:
    void retranslate() override;
    void scaleSelectors(qreal scale) override;
    void lightsSwitched(bool on) override;

private:
    /// The slots that the colour controls act on, in rising order.
    [[nodiscard]] std::vector<std::size_t> slotsChosen() const;
    [[nodiscard]] QColor colourOf(std::size_t slot) const;
    void chooseLightMode(int mode);
    void changed();
    void refresh();
    /// What follows from which lights are chosen.
    void showChosen();

    lighting::PlusRingState state_;
    enum Choice { Light, Colours, Speed, kChoices };
    std::array<QLabel *, kChoices> captions_{};
    std::array<Selector *, kChoices> choices_{};
};

} // namespace zpsg::ui
