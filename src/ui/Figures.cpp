#include "ui/Figures.h"

#include <QLocale>
#include <QPainter>

#include <cmath>

namespace zpsg::ui {

QString formatFigure(double value, int decimals) {
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const double half = 0.5 * std::pow(10.0, -decimals);
    return locale.toString(std::abs(value) < half ? 0.0 : value, 'f', decimals);
}

FigureFont::FigureFont(const QFont &font)
    : font_(font), metrics_(font), digit_(metrics_.horizontalAdvance(QLatin1Char('0'))) {}

qreal FigureFont::cell(QChar character) const {
    return character.isDigit() ? digit_ : metrics_.horizontalAdvance(character);
}

qreal FigureFont::width(const QString &text) const {
    qreal sum = 0.0;
    for (const QChar character : text) {
        sum += cell(character);
    }
    return sum;
}

qreal FigureFont::indent(const QString &text) const {
    return text.isEmpty() ? 0.0 : (cell(text.front()) - metrics_.horizontalAdvance(text.front())) / 2.0;
}

void FigureFont::draw(QPainter &painter, QPointF left, const QString &text) const {
    painter.setFont(font_);
    for (const QChar character : text) {
        const qreal room = cell(character);
        const qreal indent = (room - metrics_.horizontalAdvance(character)) / 2.0;
        painter.drawText(left + QPointF(indent, 0.0), QString(character));
        left.rx() += room;
    }
}

void FigureFont::drawCentred(QPainter &painter, QPointF baseCentre, const QString &text) const {
    draw(painter, baseCentre - QPointF(width(text) / 2.0, 0.0), text);
}

QFont fittingFont(QFont font, const QString &text, qreal width) {
    while (font.pixelSize() > 8 && QFontMetricsF(font).horizontalAdvance(text) > width) {
        font.setPixelSize(font.pixelSize() - 1);
    }
    return font;
}

} // namespace zpsg::ui
