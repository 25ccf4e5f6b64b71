#include "ui/FanModeOpener.h"

#include "ui/Style.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace zpsg::ui {
namespace {

/// All in a window of the usual size.
constexpr qreal kHeight = 40.0;
constexpr qreal kPadding = 14.0;
constexpr qreal kArrow = 10.0;

} // namespace

FanModeOpener::FanModeOpener(QWidget *parent) : QPushButton(parent) {
    setObjectName(QStringLiteral("btnFanMode"));
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

QSize FanModeOpener::sizeHint() const {
    const qreal scale = style::windowScale(*this);
    const qreal words = QFontMetricsF(font()).horizontalAdvance(text());
    return {qRound(words + (3.0 * kPadding + kArrow) * scale), qRound(kHeight * scale)};
}

void FanModeOpener::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        click();
        return;
    default:
        QPushButton::keyPressEvent(event);
    }
}

void FanModeOpener::paintEvent(QPaintEvent * /*event*/) {
    const qreal scale = style::windowScale(*this);
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    painter.drawControl(QStyle::CE_PushButton, option);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = style::tone(isEnabled() ? style::colour::kText : style::colour::kStale);
    painter.setPen(ink);
    painter.setFont(font());
    painter.drawText(QRectF(rect()).adjusted(kPadding * scale, 0.0, 0.0, 0.0),
                     Qt::AlignLeft | Qt::AlignVCenter, text());
    const qreal half = kArrow * scale / 2.0;
    const QPointF tip(width() - kPadding * scale - half, height() / 2.0 + 0.5 * half);
    painter.setPen(QPen(ink, 1.8 * scale, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({tip - QPointF(half, half), tip, tip + QPointF(half, -half)}));
}

} // namespace zpsg::ui
