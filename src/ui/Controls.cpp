#include "ui/Controls.h"

#include <QPainter>
#include <QVariant>
#include <QVBoxLayout>

namespace zpsg::ui {
namespace {

constexpr int kPageTitlePixels = 18;
constexpr qreal kSignSide = 40.0;

class Sign : public QWidget {
public:
    Sign(Icon icon, QRgb ink, QWidget *parent) : QWidget(parent), icon_(icon), ink_(ink) {}

protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        QPainter painter(this);
        paintIcon(painter, icon_, rect(), style::tone(ink_));
    }

private:
    Icon icon_;
    QRgb ink_;
};

} // namespace

void drawFocus(QPainter &painter, const QWidget &widget) {
    const qreal radius = style::kCardRadius * style::windowScale(widget);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(style::tone(style::colour::kAccent), 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(widget.rect()).adjusted(0.75, 0.75, -0.75, -0.75), radius, radius);
}

void Card::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    style::paintCard(painter, *this);
}

PageHead::PageHead(QWidget *parent) : QWidget(parent), title_(new QLabel(this)), hint_(new QLabel(this)) {
    hint_->setWordWrap(true);
    hint_->setProperty("tone", QStringLiteral("secondary"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(style::space::kXs);
    layout->addWidget(title_);
    layout->addWidget(hint_);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void PageHead::setTexts(const QString &title, const QString &hint) {
    title_->setText(title);
    hint_->setText(hint);
    hint_->setVisible(!hint.isEmpty());
}

void PageHead::applyScale(qreal scale) {
    title_->setFont(style::font(kPageTitlePixels * scale, QFont::DemiBold));
    hint_->setFont(style::font(style::type::kBody * scale));
}

EmptyState::EmptyState(Icon icon, QRgb ink, QWidget *parent)
    : QWidget(parent), sign_(new Sign(icon, ink, this)), title_(new QLabel(this)), text_(new QLabel(this)) {
    title_->setAlignment(Qt::AlignHCenter);
    title_->setWordWrap(true);
    text_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    text_->setWordWrap(true);
    text_->setProperty("tone", QStringLiteral("secondary"));
    auto *layout = new QVBoxLayout(this);
    layout->addStretch(2);
    layout->addWidget(sign_, 0, Qt::AlignHCenter);
    layout->addWidget(title_);
    layout->addWidget(text_);
    layout->addStretch(3);
}

void EmptyState::setTexts(const QString &title, const QString &text) {
    title_->setText(title);
    text_->setText(text);
}

void EmptyState::applyScale(qreal scale) {
    const int side = qRound(kSignSide * scale);
    sign_->setFixedSize(side, side);
    layout()->setSpacing(qRound(style::space::kS * scale));
    title_->setFont(style::font(style::type::kTitle * scale, QFont::DemiBold));
    text_->setFont(style::font(style::type::kBody * scale));
}

QSize ElidedLabel::sizeHint() const {
    return {qRound(QFontMetricsF(font()).averageCharWidth() * 12.0), QLabel::sizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.setFont(font());
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(rect(), static_cast<int>(alignment()),
                     QFontMetrics(font()).elidedText(text(), Qt::ElideMiddle, width()));
}

void ElidedLabel::resizeEvent(QResizeEvent *event) {
    QLabel::resizeEvent(event);
    setToolTip(QFontMetrics(font()).horizontalAdvance(text()) > width() ? text() : QString());
}

} // namespace zpsg::ui
