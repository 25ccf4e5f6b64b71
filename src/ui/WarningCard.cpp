#include "ui/WarningCard.h"

#include "ui/Style.h"
#include "ui/ToggleSwitch.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

namespace zpsg::ui {

WarningCard::WarningCard(QWidget *parent)
    : QWidget(parent), name_(new QLabel(this)), effect_(new QLabel(this)), toggle_(new ToggleSwitch(this)) {
    effect_->setProperty("tone", QStringLiteral("secondary"));
    effect_->setWordWrap(true);
    effect_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);

    auto *words = new QVBoxLayout;
    words->addWidget(name_);
    words->addWidget(effect_, 1);
    auto *row = new QHBoxLayout(this);
    row->addLayout(words, 1);
    row->addWidget(toggle_, 0, Qt::AlignVCenter);
    connect(toggle_, &QAbstractButton::clicked, this, &WarningCard::thrown);
}

void WarningCard::setTexts(const QString &name, const QString &effect) {
    name_->setText(name);
    effect_->setText(effect);
    toggle_->setAccessibleName(name);
    toggle_->setAccessibleDescription(effect);
}

void WarningCard::setOn(bool on) { toggle_->setChecked(on); }

void WarningCard::applyScale(qreal scale) {
    const int margin = qRound(style::space::kM * scale);
    layout()->setContentsMargins(margin, margin, margin, margin);
    layout()->setSpacing(margin);
    layout()->itemAt(0)->layout()->setSpacing(qRound(style::space::kXs * scale));
    name_->setFont(style::font(style::type::kBody * scale, QFont::DemiBold));
    effect_->setFont(style::font(style::type::kLabel * scale));
    toggle_->updateGeometry();
}

void WarningCard::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->pos())) {
        toggle_->click();
    }
}

void WarningCard::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    style::paintCard(painter, *this);
}

} // namespace zpsg::ui
