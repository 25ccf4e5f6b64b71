// What the panels of all rings share: the picture at the left, the controls at the right.
#pragma once

#include "lighting/Colour.h"

#include <QWidget>

#include <optional>
#include <span>
#include <vector>

class QGridLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;

namespace zpsg::ui {

class ColourEditor;
class ElidedLabel;
class Card;
class RingPicture;
class ToggleSwitch;

/// What a ring shows instead of its effect.
enum class RingGauge { None, Load, Temperature };

class RingPanel : public QWidget {
    Q_OBJECT

public:
    [[nodiscard]] RingPicture *picture() const { return picture_; }
    [[nodiscard]] ColourEditor *editor() const { return editor_; }
    [[nodiscard]] ToggleSwitch *lightsSwitch() const { return switch_; }

    /// Says that the ring shows a gauge, while it does.
    void showGauge(RingGauge gauge);
    void applyScale(qreal scale);

signals:
    void defaultRequested();
    void saveRequested();

protected:
    RingPanel(lighting::RingKind kind, QWidget *parent);

    /// The captioned selectors, above the colours.
    [[nodiscard]] QGridLayout *selectors() const { return selectors_; }
    [[nodiscard]] QLabel *makeCaption();

    /// Colours that the lights show now, from outside.
    void showLive(std::span<const lighting::Colour> leds);
    /// Colours that they are set to; shown as long as nobody tells what the lights show.
    void showSet(const std::vector<lighting::Colour> &leds);
    void showOn(bool on);
    /// The line about what the ring waits for or follows; empty texts hide it.
    void setNotice(const QString &notice);
    /// At the right above the picture; empty hides it.
    void setSource(const QString &source);
    void setName(const QString &name);

    /// "All lights", "3 of 12 lights".
    [[nodiscard]] QString selectionText() const;

    virtual void retranslate();
    virtual void scaleSelectors(qreal scale) = 0;
    virtual void lightsSwitched(bool on) = 0;

    void changeEvent(QEvent *event) override;

private:
    void layOut();
    void showNotes();

    Card *pictureCard_;
    Card *controlsCard_;
    QLabel *shown_;
    ElidedLabel *source_;
    RingPicture *picture_;
    QLabel *note_;
    QLabel *hint_;
    std::vector<QPushButton *> choices_; ///< all, each ring of several, none
    ElidedLabel *name_;
    QLabel *switchCaption_;
    ToggleSwitch *switch_;
    ColourEditor *editor_;
    QPushButton *default_;
    QPushButton *save_;
    QGridLayout *selectors_ = nullptr;
    QHBoxLayout *choiceRow_ = nullptr; ///< null for a ring of one light
    QHBoxLayout *head_ = nullptr;
    QHBoxLayout *foot_ = nullptr;
    std::vector<QLabel *> captions_;
    QString notice_;
    RingGauge gauge_ = RingGauge::None;
    bool live_ = false; ///< somebody tells what the lights show
};

} // namespace zpsg::ui
