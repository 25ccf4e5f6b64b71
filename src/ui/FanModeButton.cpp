#include "ui/FanModeButton.h"

#include "ui/FanModeLook.h"
#include "ui/Figures.h"
#include "ui/Icons.h"
#include "ui/Style.h"

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// All in a window of the usual size. Twice the radius of the style sheet's corners is the least height.
constexpr qreal kHeight = 28.0;
constexpr qreal kTick = 10.0;
constexpr qreal kTickGap = 5.0;
constexpr qreal kPadding = 15.0;
constexpr qreal kLeastPadding = 7.0;

QFont textFont(const QWidget &button, bool chosen) {
    return style::font(style::type::kBody * style::windowScale(button), chosen ? QFont::Bold : QFont::Medium);
}

} // namespace

FanModeButton::FanModeButton(fan::FanMode mode, QWidget *parent) : QPushButton(parent), mode_(mode) {
    setObjectName(QString::fromLatin1(fan::kFanModes.at(static_cast<std::size_t>(mode)).objectName));
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setStyleSheet(buttonStyle(mode, false));
    retranslate();
}

void FanModeButton::setChosen(bool chosen) {
    if (chosen == chosen_ && !styleSheet().isEmpty()) {
        return; // asked for every second, and a style sheet is long
    }
    chosen_ = chosen;
    setStyleSheet(buttonStyle(mode_, chosen));
    retranslate();
}

void FanModeButton::retranslate() {
    const QString name = nameOf(mode_);
    if (name != text()) {
        setText(name);
        updateGeometry();
    }
    setAccessibleName(chosen_ ? qtTrId("FAN_MODE_CHOSEN").arg(name) : name);
}

int FanModeButton::widthWith(qreal padding) const {
    // As wide as the bold text with its tick, so that choosing moves nothing.
    const qreal words = QFontMetricsF(textFont(*this, true)).horizontalAdvance(text());
    return qRound(words + (kTick + kTickGap + 2.0 * (padding + kRing)) * style::windowScale(*this));
}

QSize FanModeButton::sizeHint() const {
    return {widthWith(kPadding), qRound((kHeight + 2.0 * kRing) * style::windowScale(*this))};
}

QSize FanModeButton::minimumSizeHint() const { return {widthWith(kLeastPadding), sizeHint().height()}; }

void FanModeButton::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QPushButton::keyPressEvent(event);
}

void FanModeButton::paintEvent(QPaintEvent * /*event*/) {
    const qreal scale = style::windowScale(*this);
    const QRectF surface =
        QRectF(rect()).adjusted(kRing * scale, kRing * scale, -kRing * scale, -kRing * scale);
    QStylePainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1.0 : 0.4);

    // The style sheet's corners have a size in pixels; they grow with the window as everything else does.
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    painter.save();
    painter.scale(scale, scale);
    option.rect = QRectF(surface.topLeft() / scale, surface.size() / scale).toRect();
    painter.drawControl(QStyle::CE_PushButton, option);
    painter.restore();

    const qreal tick = chosen_ ? (kTick + kTickGap) * scale : 0.0;
    const QFont font =
        fittingFont(textFont(*this, chosen_), text(), surface.width() - tick - 2.0 * kLeastPadding * scale);
    const qreal words = QFontMetricsF(font).horizontalAdvance(text());
    qreal left = surface.center().x() - (words + tick) / 2.0;
    const QColor ink = chosen_ ? QColor(Qt::black) : underMouse() ? style::tone(colour::kText) : inkOf(mode_);
    if (chosen_) {
        const qreal side = kTick * scale;
        paintIcon(painter, Icon::Tick, {left, surface.center().y() - side / 2.0, side, side}, ink);
        left += tick;
    }
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(QRectF(left, surface.top(), words + 2.0, surface.height()),
                     Qt::AlignLeft | Qt::AlignVCenter, text());
    if (hasFocus()) {
        const qreal reach = kRing * scale - 0.75;
        const qreal radius = 13.0 * scale + reach;
        painter.setPen(QPen(style::tone(colour::kAccent), 1.75));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(surface.adjusted(-reach, -reach, reach, reach), radius, radius);
    }
}

} // namespace zpsg::ui
