// Everything that sets the colour and the brightness of the lights that are chosen.
#pragma once

#include <QColor>
#include <QWidget>

class QHBoxLayout;
class QLabel;
class QVBoxLayout;

namespace zpsg::ui {

class ColourSwatches;
class ColourWheel;
class ElidedLabel;
class HexEntry;
class LevelSlider;

/// The wheel, the entry and the swatches show one colour and follow each other.
class ColourEditor final : public QWidget {
    Q_OBJECT

public:
    explicit ColourEditor(QWidget *parent = nullptr);

    /// What the colour is of, or why it can't be set.
    void setCaption(const QString &caption);
    /// Without a signal.
    void showColour(const QColor &colour);
    void showBrightness(int percent);
    void setColourEnabled(bool enabled);
    void setBrightnessEnabled(bool enabled);
    void retranslate();
    void applyScale(qreal scale);

signals:
    /// The user has picked another colour.
    void colourPicked(const QColor &colour);
    void brightnessPicked(int percent);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void layOut();
    void pick(const QColor &colour);
    void showPercent(int percent);
    void fitSwatches();

    QColor colour_;
    ColourWheel *wheel_;
    ElidedLabel *caption_;
    HexEntry *hex_;
    QLabel *fault_;
    ColourSwatches *swatches_;
    QLabel *brightnessCaption_;
    QLabel *brightnessFigure_;
    LevelSlider *brightness_;
    QHBoxLayout *entryRow_ = nullptr;
    QVBoxLayout *column_ = nullptr;
    QHBoxLayout *colourRow_ = nullptr;
    QHBoxLayout *levelRow_ = nullptr;
};

} // namespace zpsg::ui
