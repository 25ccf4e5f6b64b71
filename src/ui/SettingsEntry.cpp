#include "ui/SettingsEntry.h"

#include "ui/Controls.h"
#include "ui/Style.h"

#include <QFocusEvent>
#include <QPainter>
#include <QStyleOptionFrame>
#include <QVariant>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

constexpr int kLongestText = 1024;
/// As in the style sheet.
constexpr qreal kRadius = 6.0;
/// From the edge to the text: as in the style sheet, which does not grow with the window, and what the edge
/// and Qt add.
constexpr qreal kPadding = 8.0;
constexpr qreal kBeside = 3.0;

} // namespace

SettingsLine::SettingsLine(QWidget *parent) : QLineEdit(parent) {
    setProperty("entry", true);
    setMaxLength(kLongestText);
}

void SettingsLine::applyScale(qreal scale) {
    setFont(style::font(style::type::kBody * scale));
    setFixedHeight(qRound(kControlHeight * scale));
    scale_ = scale;
    const int more = qRound(kPadding * (scale - 1.0));
    setTextMargins(more, 0, more, 0);
}

QRectF SettingsLine::room() const {
    const qreal inset = kPadding * scale_ + kBeside;
    return QRectF(rect()).adjusted(inset, 0.0, -inset, 0.0);
}

void SettingsLine::paintEvent(QPaintEvent *event) {
    const QFontMetricsF metrics(font());
    if (hasFocus() || echoMode() != Normal || metrics.horizontalAdvance(text()) <= room().width()) {
        QLineEdit::paintEvent(event);
        return;
    }
    QPainter painter(this);
    QStyleOptionFrame option;
    initStyleOption(&option);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
    painter.setFont(font());
    painter.setPen(style::tone(isEnabled() ? colour::kText : colour::kStale));
    painter.drawText(room(), Qt::AlignLeft | Qt::AlignVCenter,
                     metrics.elidedText(text(), Qt::ElideMiddle, room().width()));
}

SettingsEntry::SettingsEntry(QWidget *parent) : SettingsLine(parent) {}

void SettingsEntry::setFaulty(bool faulty) {
    if (faulty != faulty_) {
        faulty_ = faulty;
        update();
    }
}

void SettingsEntry::focusOutEvent(QFocusEvent *event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
        emit left();
    }
}

void SettingsEntry::paintEvent(QPaintEvent *event) {
    SettingsLine::paintEvent(event);
    if (faulty_) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(style::tone(colour::kDanger), hasFocus() ? 2.0 : 1.25));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.75, 0.75, -0.75, -0.75), kRadius, kRadius);
    }
}

SettingsCopyLine::SettingsCopyLine(QWidget *parent) : SettingsLine(parent) { setReadOnly(true); }

void SettingsCopyLine::focusInEvent(QFocusEvent *event) {
    SettingsLine::focusInEvent(event);
    if (event->reason() != Qt::MouseFocusReason) {
        selectAll();
    }
}

void SettingsCopyLine::focusOutEvent(QFocusEvent *event) {
    SettingsLine::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason) { // its own menu, which copies what is marked
        deselect();
    }
}

} // namespace zpsg::ui
