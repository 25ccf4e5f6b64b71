// Numbers that change every second must not dance: digits of equal width in whatever type face there is.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QString>

class QPainter;

namespace zpsg::ui {

/// Shown in the place of a value that is not known.
inline constexpr QChar kNoValue{0x2013}; // en dash

/// The value in the user's number format, without group separators; no negative zero.
[[nodiscard]] QString formatFigure(double value, int decimals);

/// Draws text with each digit in a cell as wide as the zero. Qt 5 reaches no font feature for tabular
/// figures, and the preferred face's own digits are of different widths.
class FigureFont {
public:
    explicit FigureFont(const QFont &font);

    [[nodiscard]] qreal width(const QString &text) const;
    /// Height of a digit above the base line.
    [[nodiscard]] qreal digitHeight() const { return metrics_.capHeight(); }
    /// Empty room before the first character in its cell.
    [[nodiscard]] qreal indent(const QString &text) const;
    /// In the painter's pen; `left` is on the base line.
    void draw(QPainter &painter, QPointF left, const QString &text) const;
    void drawCentred(QPainter &painter, QPointF baseCentre, const QString &text) const;

private:
    [[nodiscard]] qreal cell(QChar character) const;

    QFont font_;
    QFontMetricsF metrics_;
    qreal digit_;
};

/// `font`, made smaller until `text` is no wider than `width`; not below 8 pixels.
[[nodiscard]] QFont fittingFont(QFont font, const QString &text, qreal width);

} // namespace zpsg::ui
