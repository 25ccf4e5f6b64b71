#include "ui/AlarmLogDelegate.h"

#include "ui/AlarmLogModel.h"
#include "ui/Figures.h"
#include "ui/Icons.h"
#include "ui/Style.h"

#include <QAbstractItemView>
#include <QPainter>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

void paintRow(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index, qreal scale) {
    const QRectF cell(option.rect);
    if (option.state & QStyle::State_Selected) {
        painter.fillRect(cell, style::tone(colour::kAccentDeep, 0.45));
    } else if (index.data(AlarmLogModel::kHoldsRole).toBool()) {
        painter.fillRect(cell, style::tone(colour::kDanger, 0.09));
    }
    painter.fillRect(QRectF(cell.left(), cell.bottom() - 1.0, cell.width(), 1.0), style::tone(colour::kGrid));
    if (index.data(AlarmLogModel::kHoldsRole).toBool() && index.column() == AlarmLogModel::What) {
        painter.fillRect(QRectF(cell.left(), cell.top(), 3.0 * scale, cell.height() - 1.0),
                         style::tone(colour::kDanger));
    }
}

/// The part of the row's outline that runs through this cell.
void paintFocus(QPainter &painter, const QRectF &cell, int column) {
    const QRectF line = cell.adjusted(0.75, 0.75, -0.75, -1.75);
    painter.setPen(QPen(style::tone(colour::kAccent), 1.5));
    painter.drawLine(QPointF(cell.left(), line.top()), QPointF(cell.right(), line.top()));
    painter.drawLine(QPointF(cell.left(), line.bottom()), QPointF(cell.right(), line.bottom()));
    if (column == 0) {
        painter.drawLine(line.topLeft(), line.bottomLeft());
    } else if (column == AlarmLogModel::kColumns - 1) {
        painter.drawLine(line.topRight(), line.bottomRight());
    }
}

} // namespace

void AlarmLogDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const {
    const auto *view = qobject_cast<const QAbstractItemView *>(option.widget);
    const qreal scale = view != nullptr ? style::windowScale(*view) : 1.0;
    const bool holds = index.data(AlarmLogModel::kHoldsRole).toBool();
    const bool selected = option.state & QStyle::State_Selected;
    const QString text = index.data().toString();
    painter->save();
    painter->setClipRect(option.rect);
    painter->setRenderHint(QPainter::Antialiasing);
    paintRow(*painter, option, index, scale);

    QFont font = option.font;
    font.setWeight(holds ? QFont::DemiBold : QFont::Normal);
    const QFontMetricsF metrics(font);
    const qreal margin = style::space::kM * scale;
    QRectF room = QRectF(option.rect).adjusted(margin, 0.0, -margin / 2.0, 0.0);
    const qreal base = room.center().y() + metrics.capHeight() / 2.0;
    painter->setFont(font);
    if (index.column() == AlarmLogModel::What) {
        const qreal side = 16.0 * scale;
        paintIcon(*painter, Icon::Warning, QRectF(room.left(), room.center().y() - side / 2.0, side, side),
                  style::tone(holds ? colour::kDanger : (selected ? colour::kText : colour::kTextTertiary)));
        room.setLeft(room.left() + side + style::space::kS * scale);
        painter->setPen(style::tone(colour::kText));
        painter->drawText(QPointF(room.left(), base), metrics.elidedText(text, Qt::ElideRight, room.width()));
    } else if (index.column() == AlarmLogModel::Ended && holds) {
        const qreal radius = 3.5 * scale;
        painter->setPen(Qt::NoPen);
        painter->setBrush(style::tone(colour::kDanger));
        painter->drawEllipse(QPointF(room.left() + radius, room.center().y()), radius, radius);
        painter->setPen(style::tone(colour::kDanger));
        painter->drawText(QPointF(room.left() + 3.5 * radius, base), text);
    } else {
        const bool strong = holds || selected || index.column() == AlarmLogModel::Value;
        painter->setPen(style::tone(strong ? colour::kText : colour::kTextSecondary));
        FigureFont(font).draw(*painter, QPointF(room.left(), base), text);
    }
    if (view != nullptr && view->hasFocus() && view->currentIndex().row() == index.row()) {
        paintFocus(*painter, QRectF(option.rect), index.column());
    }
    painter->restore();
}

} // namespace zpsg::ui
