#include "ui/FanNumberEntry.h"

#include "ui/Style.h"

#include <QLineEdit>
#include <QPainter>
#include <QSignalBlocker>
#include <QWheelEvent>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// In a window of the usual size, pixels.
constexpr qreal kHeight = 26.0;
constexpr int kSteps = 18; ///< width of the steps

QString sheet(qreal scale) {
    return QStringLiteral(
               "QSpinBox { color: rgb(243,245,247); background: rgba(255,255,255,18);"
               " border: 1px solid rgba(255,255,255,40); border-radius: 6px; padding: 0 0 0 6px;"
               " selection-background-color: rgb(30,110,204); selection-color: white; }"
               "QSpinBox:hover { background: rgba(255,255,255,32); }"
               "QSpinBox:focus { border-color: rgb(61,202,242); }"
               "QSpinBox:disabled { color: rgb(118,125,133); background: transparent; }"
               "QSpinBox::up-button, QSpinBox::down-button { background: transparent; border: none;"
               " width: %1px; }"
               "QSpinBox::up-button { subcontrol-position: top right; }"
               "QSpinBox::down-button { subcontrol-position: bottom right; }"
               "QSpinBox::up-arrow, QSpinBox::down-arrow { image: none; width: 0; height: 0; }")
        .arg(qRound(kSteps * scale));
}

} // namespace

FanNumberEntry::FanNumberEntry(QWidget *parent) : QSpinBox(parent) {
    setKeyboardTracking(false); // half a number is no number
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(this, QOverload<int>::of(&QSpinBox::valueChanged), this, &FanNumberEntry::valueChosen);
}

void FanNumberEntry::showValue(int value) {
    if (value != this->value()) { // the same one would drop what is being typed
        const QSignalBlocker quiet(this);
        setValue(value);
    }
}

void FanNumberEntry::setUnit(double factor, const QString &suffix) {
    factor_ = factor;
    setSuffix(suffix); // also shows the value anew
}

QString FanNumberEntry::textFromValue(int value) const {
    return QSpinBox::textFromValue(qRound(factor_ * value));
}

int FanNumberEntry::valueFromText(const QString &text) const {
    return qRound(QSpinBox::valueFromText(text) / factor_);
}

void FanNumberEntry::applyScale(qreal scale) {
    const QString wanted = sheet(scale);
    if (wanted != styleSheet()) {
        setStyleSheet(wanted);
    }
    setFont(style::font(style::type::kLabel * scale));
    lineEdit()->setFont(font()); // a style sheet keeps the one from the other
    const qreal words = QFontMetricsF(font()).horizontalAdvance(textFromValue(maximum()) + suffix());
    setFixedSize(qRound(words + (kSteps + 18.0) * scale), qRound(kHeight * scale));
}

// One that the pointer only happens to be on must not change while the user scrolls.
void FanNumberEntry::wheelEvent(QWheelEvent *event) {
    if (hasFocus()) {
        QSpinBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

void FanNumberEntry::paintEvent(QPaintEvent *event) {
    QSpinBox::paintEvent(event);
    const qreal scale = style::windowScale(*this);
    const qreal side = 3.4 * scale;
    const qreal x = width() - kSteps * scale / 2.0 - 1.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const qreal up : {1.0, -1.0}) {
        const bool more = up > 0.0 ? value() < maximum() : value() > minimum();
        painter.setPen(QPen(style::tone(isEnabled() && more ? colour::kTextSecondary : colour::kTrack),
                            1.4 * scale, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QPointF tip(x, height() / 2.0 - up * 6.0 * scale);
        painter.drawPolyline(
            QPolygonF({tip + QPointF(-side, up * 0.8 * side), tip, tip + QPointF(side, up * 0.8 * side)}));
    }
}

} // namespace zpsg::ui
