#include "ui/HistoryControls.h"

#include "ui/HistoryDates.h"
#include "ui/Style.h"
#include "ui/TrendPlot.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QTextCharFormat>
#include <QToolButton>

#include <qwt_scale_widget.h>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// A chevron in a square; (0, 1) points down.
void drawChevron(QPainter &painter, const QRectF &square, const QPointF &towards, const QColor &ink) {
    const QPointF across(towards.y(), towards.x());
    const QPointF tip = square.center() + towards * square.width() * 0.2;
    const QPointF back = square.center() - towards * square.width() * 0.2;
    const QPointF half = across * square.width() * 0.4;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, square.width() * 0.17, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({back - half, tip, back + half}));
}

QIcon chevronIcon(const QPointF &towards) {
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    drawChevron(painter, {6, 6, 20, 20}, towards, style::tone(colour::kText));
    return {pixmap};
}

void styleCalendar(QCalendarWidget &calendar, qreal scale) {
    calendar.setFont(style::font(style::type::kLabel * scale));
    calendar.setGridVisible(false);
    calendar.setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar.setHorizontalHeaderFormat(QCalendarWidget::ShortDayNames);
    calendar.setFirstDayOfWeek(QLocale().firstDayOfWeek());
    QTextCharFormat head;
    head.setForeground(style::tone(colour::kTextTertiary));
    head.setBackground(style::tone(colour::kTrack));
    calendar.setHeaderTextFormat(head);
    QTextCharFormat day;
    day.setForeground(style::tone(colour::kText));
    for (int weekday = Qt::Monday; weekday <= Qt::Sunday; ++weekday) {
        calendar.setWeekdayTextFormat(static_cast<Qt::DayOfWeek>(weekday), day);
    }
    if (auto *previous = calendar.findChild<QToolButton *>(QStringLiteral("qt_calendar_prevmonth"))) {
        previous->setIcon(chevronIcon({-1, 0}));
    }
    if (auto *next = calendar.findChild<QToolButton *>(QStringLiteral("qt_calendar_nextmonth"))) {
        next->setIcon(chevronIcon({1, 0}));
    }
}

} // namespace

QString historySheet() {
    return QStringLiteral(
        "QDateEdit { color: rgb(243,245,247); background: rgba(255,255,255,18);"
        " border: 1px solid rgba(255,255,255,40); border-radius: 6px; padding: 0 4px 0 8px;"
        " selection-background-color: rgb(30,110,204); selection-color: white; }"
        "QDateEdit:hover { background: rgba(255,255,255,32); }"
        "QDateEdit:focus { border-color: rgb(61,202,242); }"
        "QDateEdit:disabled { color: rgb(118,125,133); }"
        "QDateEdit::drop-down { subcontrol-origin: border; subcontrol-position: center right; width: 24px;"
        " border: none; background: transparent; }"
        "QDateEdit::down-arrow { image: none; }"
        "QCalendarWidget { background: rgb(47,52,58); }"
        "QCalendarWidget QWidget { alternate-background-color: rgb(47,52,58); background: rgb(47,52,58);"
        " color: rgb(243,245,247); }"
        "QCalendarWidget QToolButton { background: transparent; color: rgb(243,245,247); border: none;"
        " border-radius: 4px; padding: 4px 8px; font-weight: 600; }"
        "QCalendarWidget QToolButton:hover { background: rgb(70,76,83); }"
        "QCalendarWidget QToolButton::menu-indicator { image: none; }"
        "QCalendarWidget QMenu { background: rgb(47,52,58); border: 1px solid rgb(90,96,102); }"
        "QCalendarWidget QMenu::item { padding: 4px 16px; }"
        "QCalendarWidget QMenu::item:selected { background: rgb(30,110,204); }"
        "QCalendarWidget QSpinBox { background: rgb(30,30,30); border: none; padding: 2px 4px; }"
        "QCalendarWidget QAbstractItemView { selection-background-color: rgb(30,110,204);"
        " selection-color: white; outline: none; border: none; }"
        "QCalendarWidget QAbstractItemView:disabled { color: rgb(90,96,102); }"
        "QProgressBar { background: rgb(47,52,58); border: none; border-radius: 4px; }"
        "QProgressBar::chunk { background: rgb(61,202,242); border-radius: 4px; }"
        "QPushButton[slim=\"true\"] { padding: 0 12px; }"
        "QPushButton[slim=\"true\"]:checked { background: rgba(255,255,255,52); }");
}

void giveLabelsRoom(TrendPlot &plot, qreal scale) {
    plot.axisScaleDraw(QwtPlot::yLeft)->setMinimumExtent(qRound(38.0 * scale));
    plot.axisScaleDraw(QwtPlot::xBottom)->setMinimumExtent(qRound(21.0 * scale));
    // Half a "00:00", so that the plot's ends stay where they are when other labels come to stand there.
    const int half = qRound(18.0 * scale);
    plot.axisWidget(QwtPlot::xBottom)->setMinBorderDist(half, half);
    // Half a figure, and what hangs from it: a decimal comma.
    const int above = qRound(8.0 * scale);
    for (const int axis : {QwtPlot::yLeft, QwtPlot::yRight}) {
        plot.axisWidget(axis)->setMinBorderDist(above, above);
    }
}

QSize StepButton::sizeHint() const {
    const int side = qRound(kControlHeight * style::windowScale(*this));
    return {side, side};
}

void StepButton::paintEvent(QPaintEvent *event) {
    QPushButton::paintEvent(event);
    const qreal side = 11.0 * style::windowScale(*this);
    QRectF square(0.0, 0.0, side, side);
    square.moveCenter(QRectF(rect()).center());
    QPainter painter(this);
    drawChevron(painter, square, {static_cast<qreal>(step_), 0.0},
                style::tone(isEnabled() ? colour::kText : colour::kStale));
}

HistoryDateEdit::HistoryDateEdit(QWidget *parent) : QDateEdit(parent) {
    setCalendarPopup(true);
    setKeyboardTracking(false); // half a year is no year
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void HistoryDateEdit::applyScale(qreal scale) {
    setFont(style::font(style::type::kBody * scale));
    lineEdit()->setFont(font()); // a style sheet keeps the one from the other
    setDisplayFormat(dateFormat(DateParts::Short, QLocale()));
    setFixedHeight(qRound(kControlHeight * scale));
    const QDate wide(2028, 9, 28);
    setMinimumWidth(
        qRound(QFontMetricsF(font()).horizontalAdvance(dateText(wide, DateParts::Short)) + 44.0 * scale));
}

// A calendar is made only when it may be about to open: there are several of these edits, and the page is
// there from the program's start.
void HistoryDateEdit::mousePressEvent(QMouseEvent *event) {
    styleCalendar(*calendarWidget(), style::windowScale(*this));
    QDateEdit::mousePressEvent(event);
}

void HistoryDateEdit::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_F4 || event->modifiers().testFlag(Qt::AltModifier)) {
        styleCalendar(*calendarWidget(), style::windowScale(*this));
    }
    QDateEdit::keyPressEvent(event);
}

void HistoryDateEdit::paintEvent(QPaintEvent *event) {
    QDateEdit::paintEvent(event);
    const qreal side = 8.0 * style::windowScale(*this);
    QRectF square(0.0, 0.0, side, side);
    square.moveCenter({width() - 1.5 * side, height() / 2.0});
    QPainter painter(this);
    drawChevron(painter, square, {0.0, 1.0},
                style::tone(isEnabled() ? colour::kTextSecondary : colour::kStale));
}

} // namespace zpsg::ui
