#include "ui/LightingPage.h"

#include "ui/Controls.h"
#include "ui/Icons.h"
#include "ui/LightingOptions.h"
#include "ui/RGB12LEDWidget.h"
#include "ui/Style.h"
#include "ui/ZpsCirq.h"
#include "ui/ZpsCirqDuo_Widget.h"

#include <QEvent>
#include <QPainter>
#include <QStackedLayout>

namespace zpsg::ui {
LightingPage::LightingPage(QWidget *parent)
    : QWidget(parent)
    , head_(new PageHead(this))
    , body_(new QWidget(this))
    , empty_(new Card(body_))
    , emptyState_(new EmptyState(Icon::Ring, style::colour::kTextTertiary, empty_))
    , single_(new ZpsCirq(body_))
    , plus_(new RGB12LEDWidget(body_))
    , duo_(new ZpsCirqDuo_Widget(body_))
    , options_(new LightingOptions(this)) {
    head_->hint()->setObjectName(QStringLiteral("lblLightingHint"));
    layOut();
    retranslate();
    setRing(Ring::None);
    connect(options_, &LightingOptions::gaugeSet, this, &LightingPage::showGauge);
}

std::array<RingPanel *, 3> LightingPage::panels() const { return {single_, plus_, duo_}; }

void LightingPage::layOut() {
    auto *emptyLayout = new QVBoxLayout(empty_);
    emptyLayout->addWidget(emptyState_);
    stack_ = new QStackedLayout(body_);
    stack_->addWidget(empty_);
    for (RingPanel *panel : panels()) {
        stack_->addWidget(panel);
    }
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(head_);
    layout->addWidget(body_, 1);
    layout->addWidget(options_);
}

void LightingPage::setRing(Ring ring) {
    ring_ = ring;
    stack_->setCurrentIndex(static_cast<int>(ring));
    options_->setVisible(ring != Ring::None);
    showHint();
}

void LightingPage::setReachable(bool reachable) {
    reachable_ = reachable;
    showHint();
}

void LightingPage::showHint() {
    const bool fitted = ring_ != Ring::None;
    head_->setTexts(qtTrId("LIGHTING_PAGE_TITLE"), !fitted      ? QString()
                                                   : reachable_ ? qtTrId("LIGHTING_PAGE_HINT")
                                                                : qtTrId("LIGHTING_UNREACHABLE"));
}

void LightingPage::showGauge(int gauge) {
    for (RingPanel *panel : panels()) {
        panel->showGauge(static_cast<RingGauge>(gauge));
    }
}

void LightingPage::retranslate() {
    emptyState_->setTexts(qtTrId("LIGHTING_NONE"), qtTrId("LIGHTING_NONE_HINT"));
    showHint();
}

void LightingPage::applyScale() {
    const qreal scale = style::windowScale(*this);
    const int margin = qRound(style::space::kL * scale);
    layout()->setContentsMargins(margin, 0, margin, margin);
    layout()->setSpacing(qRound(style::space::kM * scale));
    head_->applyScale(scale);
    emptyState_->applyScale(scale);
    for (RingPanel *panel : panels()) {
        panel->applyScale(scale);
    }
    options_->applyScale(scale);
}

void LightingPage::look() {
    const bool now = isVisible() && !window()->isMinimized();
    if (now != watched_) {
        watched_ = now;
        emit watched(now);
    }
}

void LightingPage::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    window()->installEventFilter(this); // once, however often it is asked for
    look();
}

void LightingPage::hideEvent(QHideEvent *event) {
    QWidget::hideEvent(event);
    look();
}

bool LightingPage::eventFilter(QObject *watched, QEvent *event) {
    if (watched == window() && event->type() == QEvent::WindowStateChange) {
        look();
    }
    return QWidget::eventFilter(watched, event);
}

void LightingPage::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    applyScale();
}

void LightingPage::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        applyScale();
    }
}

} // namespace zpsg::ui
