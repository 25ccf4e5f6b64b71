#include "ui/SettingsStatusLine.h"

#include "ui/Icons.h"
#include "ui/Style.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QVariant>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;
using Sign = SettingsStatusLine::Sign;

/// In a window of the usual size.
constexpr qreal kSignSide = 13.0;
constexpr qreal kGap = 7.0;

struct Look {
    Icon icon;
    QRgb ink;
};

Look lookOf(Sign sign) {
    switch (sign) {
    case Sign::Good:
        return {Icon::Tick, colour::kGood};
    case Sign::Caution:
        return {Icon::Warning, colour::kCaution};
    case Sign::Problem:
        return {Icon::Warning, colour::kDanger};
    case Sign::None:
    case Sign::Info:
        break;
    }
    return {Icon::Info, colour::kTextSecondary};
}

/// What is new to the user stands out from what is always there.
bool quiet(Sign sign) { return sign == Sign::Info || sign == Sign::Caution; }

} // namespace

SettingsStatusLine::SettingsStatusLine(QWidget *parent) : QWidget(parent), label_(new QLabel(this)) {
    label_->setWordWrap(true);
    label_->setTextFormat(Qt::PlainText);
    label_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->addWidget(label_);
    hide();
}

void SettingsStatusLine::setSelectable() {
    label_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QPalette marked = label_->palette();
    marked.setColor(QPalette::Highlight, style::tone(colour::kAccentDeep));
    marked.setColor(QPalette::HighlightedText, style::tone(colour::kText));
    label_->setPalette(marked);
    label_->installEventFilter(this);
}

void SettingsStatusLine::showText(const QString &text, Sign sign) {
    const QVariant tone = quiet(sign) ? QVariant(QStringLiteral("secondary")) : QVariant();
    sign_ = sign;
    label_->setText(text);
    if (label_->property("tone") != tone) {
        label_->setProperty("tone", tone);
        label_->style()->unpolish(label_);
        label_->style()->polish(label_);
    }
    fit();
    setVisible(!text.isEmpty());
    update();
}

void SettingsStatusLine::applyScale(qreal scale) {
    scale_ = scale;
    label_->setFont(style::font(style::type::kLabel * scale));
    fit();
}

void SettingsStatusLine::fit() {
    layout()->setContentsMargins(sign_ == Sign::None ? 0 : qRound((kSignSide + kGap) * scale_), 0, 0, 0);
}

void SettingsStatusLine::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    if (sign_ != Sign::None) {
        const Look look = lookOf(sign_);
        const qreal side = kSignSide * scale_;
        const qreal line = QFontMetricsF(label_->font()).height();
        const QRectF place(contentsRect().x(), contentsRect().y() + (line - side) / 2.0, side, side);
        paintIcon(painter, look.icon, place, style::tone(look.ink));
    }
    if (label_->hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(style::tone(colour::kAccent), 1.5));
        const QRectF under = QRectF(label_->geometry()).adjusted(0.0, 0.0, 0.0, -0.75);
        painter.drawLine(under.bottomLeft(), under.bottomRight());
    }
}

bool SettingsStatusLine::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        update();
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace zpsg::ui
