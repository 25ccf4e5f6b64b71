// The panel of the Duo set: a front ring of six lights and a middle ring of twelve.
#pragma once

#include "lighting/LightingState.h"
#include "ui/RingPanel.h"

#include <QVariantMap>

#include <array>

namespace zpsg::ui {

class Selector;
class StepSelector;

class ZpsCirqDuo_Widget final : public RingPanel {
    Q_OBJECT

public:
    enum class SoundState { Unused, Listening, NoDevice };

    explicit ZpsCirqDuo_Widget(QWidget *parent = nullptr);

    /// Without signals.
    void showState(const lighting::DuoState &state);
    /// What the rings show now: the front ring's six colours, then the middle ring's twelve.
    void showLeds(std::span<const lighting::Colour> leds) { showLive(leds); }
    void showSound(SoundState state);
    /// What sets the effect when it is not the user; an empty text or `on` false: nothing does.
    void showSync(bool on, const QString &modeText);

public slots:
    // What other programs ask for; docs/control-socket.md names the keys.
    /// DuoState() answers.
    void messageFromSocket();
    void messageFromSocket_setupLight(const QVariantMap &message);
    void messageFromSocket_setLightOn(const QVariantMap &message);
    void messageFromSocket_setDefault(const QVariantMap &message);
    void messageFromSocket_setBtnAndColor(const QVariantMap &message);
    void messageFromSocket_setBtnAndBright(const QVariantMap &message);
    void messageFromSocket_ModelMusic(const QVariantMap &message);

signals:
    void DuoState(const QString &state);
    /// Colours to show at once and not to keep: the front ring's six, then the middle ring's twelve.
    void frameStreamed(const std::vector<zpsg::lighting::Colour> &leds);
    /// The user has changed something; the whole of what is set now.
    void edited(const zpsg::lighting::DuoState &state);

protected:
    void retranslate() override;
    void scaleSelectors(qreal scale) override;
    void lightsSwitched(bool on) override;

private:
    /// The selectors of one ring.
    struct Row {
        QLabel *name = nullptr;
        StepSelector *mode = nullptr;
        Selector *colours = nullptr;
        Selector *speed = nullptr;
    };

    /// What the colour controls act on in one ring.
    struct Target {
        bool single = false;
        std::vector<std::size_t> entries; ///< of the lists, rising; empty when it is the single colour
    };

    void makeRow(std::size_t ring);
    void connectEditor();
    /// Nothing when no light of the ring is chosen, or when its effect brings its own colours.
    [[nodiscard]] std::optional<Target> target(std::size_t ring) const;
    [[nodiscard]] bool usesColours(std::size_t ring) const;
    [[nodiscard]] bool touches(std::size_t ring) const;
    /// That of a light, as its ring's colour mode has it.
    [[nodiscard]] QColor colourOf(std::size_t ring, std::size_t led) const;
    [[nodiscard]] double factorOf(std::size_t ring, std::size_t led) const;
    void changed();
    void take(const lighting::DuoState &state);
    void refresh();
    /// What follows from which lights are chosen.
    void showChosen();

    lighting::DuoState state_;
    SoundState sound_ = SoundState::Unused;
    std::array<QLabel *, 3> captions_{};
    std::array<Row, lighting::kDuoRings> rows_;
};

} // namespace zpsg::ui
