#include "ui/HistoryTag.h"

#include "ui/Figures.h"
#include "ui/Style.h"

#include <QPainter>

#include <algorithm>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

constexpr qreal kPadding = 9.0;
constexpr qreal kLine = 16.0;
constexpr qreal kSign = 24.0;
constexpr qreal kBetween = 16.0;

} // namespace

void drawTag(QPainter &painter, const HistoryTag &tag, qreal left, qreal right, const QRectF &canvas,
             qreal scale) {
    const FigureFont title(style::font(style::type::kLabel * scale, QFont::DemiBold));
    const FigureFont value(style::font(style::type::kSmall * scale, QFont::DemiBold));
    const QFont nameFont = style::font(style::type::kSmall * scale);
    const QFontMetricsF names(nameFont);
    qreal nameWidth = 0.0;
    qreal valueWidth = 0.0;
    bool signs = false;
    for (const HistoryTag::Line &line : tag.lines) {
        nameWidth = std::max(nameWidth, names.horizontalAdvance(line.name));
        valueWidth = std::max(valueWidth, value.width(line.value));
        signs = signs || line.sign;
    }
    const qreal padding = kPadding * scale;
    const qreal before = signs ? kSign * scale : 0.0;
    const qreal body = tag.lines.empty() ? 0.0 : before + nameWidth + kBetween * scale + valueWidth;
    const qreal lineHeight = kLine * scale;
    const auto count = static_cast<qreal>(tag.lines.size());
    QRectF box(0.0, canvas.top() + 1.0, std::max(body, title.width(tag.title)) + 2.0 * padding,
               lineHeight * (count + 1.0) + (tag.lines.empty() ? 0.8 : 1.3) * padding);
    const qreal beside = right + padding;
    box.moveLeft(beside + box.width() <= canvas.right() ? beside : left - padding - box.width());
    // In a plot too narrow for it on either side it lies on what it tells of.
    box.moveLeft(std::max(box.left(), canvas.left() + 1.0));

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(style::tone(colour::kStale, 0.6), 1.0));
    painter.setBrush(style::tone(colour::kTrack, 0.94));
    painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), 5.0 * scale, 5.0 * scale);
    qreal base = box.top() + 0.4 * padding + (lineHeight + title.digitHeight()) / 2.0;
    painter.setPen(style::tone(colour::kText));
    title.draw(painter, {box.left() + padding, base}, tag.title);
    base += 0.4 * padding;
    for (const HistoryTag::Line &line : tag.lines) {
        base += lineHeight;
        if (line.sign) {
            const qreal height = 9.0 * scale;
            painter.save();
            line.sign(painter, {box.left() + padding, base - (value.digitHeight() + height) / 2.0,
                                before - 7.0 * scale, height});
            painter.restore();
        }
        painter.setFont(nameFont);
        painter.setPen(style::tone(colour::kTextSecondary));
        painter.drawText(QPointF(box.left() + padding + before, base), line.name);
        painter.setPen(style::tone(colour::kText));
        value.draw(painter, {box.right() - padding - value.width(line.value), base}, line.value);
    }
}

} // namespace zpsg::ui
