// A few colours to take at a click: twelve steps round the hues, and white.
#pragma once

#include <QColor>
#include <QWidget>

#include <array>

namespace zpsg::ui {

inline constexpr std::size_t kSwatches = 13;

/// Tab reaches one of them, arrow keys the others. Each has a name, which its tip shows.
class ColourSwatches final : public QWidget {
    Q_OBJECT

public:
    explicit ColourSwatches(QWidget *parent = nullptr);

    /// Marks the swatch of this colour, if it is one.
    void setColour(const QColor &colour);
    void retranslate();
    /// In a column this wide: as large as there is room, but not huge.
    void fitTo(int width);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// The user has taken this one; also when it was the colour already.
    void colourPicked(const QColor &colour);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    class Swatch;
    /// Moves the keyboard's place from a swatch by that many.
    void moveFocus(std::size_t from, int by);

    std::array<Swatch *, kSwatches> swatches_{};
    qreal side_ = 0.0; ///< of a swatch with the gap after it, pixels
};

} // namespace zpsg::ui
