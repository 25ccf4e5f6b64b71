// A disc of all hues: the hue goes round it, the saturation from its middle outwards.
#pragma once

#include "ui/Readout.h"

#include <QColor>
#include <QPixmap>

namespace zpsg::ui {

/// Picks colours at full value; how bright they are is another control's. Arrow keys: left and right turn the
/// hue, up and down change the saturation, with Shift in small steps.
class ColourWheel final : public Readout {
    Q_OBJECT

public:
    explicit ColourWheel(QWidget *parent = nullptr);

    /// Without a signal. Any value; the disc shows its hue and saturation.
    void setColour(const QColor &colour);
    [[nodiscard]] QColor colour() const { return colour_; }

    [[nodiscard]] QString readoutText() const override;
    [[nodiscard]] std::optional<double> readoutValue() const override { return hue_; }
    [[nodiscard]] std::pair<double, double> readoutRange() const override { return {0.0, 359.0}; }

    [[nodiscard]] QSize sizeHint() const override { return {170, 170}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {110, 110}; }

signals:
    /// The user has picked another colour.
    void colourPicked(const QColor &colour);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    [[nodiscard]] qreal radius() const;
    [[nodiscard]] QPixmap makeDisc(qreal ratio) const;
    void pickAt(const QPointF &at);
    /// Degrees and 0 to 1.
    void pick(double hue, double saturation);

    QColor colour_{Qt::red};
    double hue_ = 0.0; ///< kept while the colour is a grey, which has none
    double saturation_ = 1.0;
    QPixmap disc_; ///< null when it has to be made anew
};

} // namespace zpsg::ui
