#include "ui/LightingPage.h"

#include "ui/HistoryControls.h"
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
namespace {

constexpr int kPageTitlePixels = 18;
constexpr qreal kEmptySignSide = 40.0;

/// A fan without lights.
class EmptySign : public QWidget {
public:
    using QWidget::QWidget;

    void applyScale(qreal scale) {
        const int side = qRound(kEmptySignSide * scale);
        setFixedSize(side, side);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        QPainter painter(this);
        paintIcon(painter, Icon::Ring, rect(), style::tone(style::colour::kTextTertiary));
    }
};

} // namespace

LightingPage::LightingPage(QWidget *parent)
    : QWidget(parent)
    , title_(new QLabel(this))
    , hint_(new QLabel(this))
    , body_(new QWidget(this))
    , empty_(new HistoryCard(body_))
    , emptySign_(new EmptySign(empty_))
    , emptyTitle_(new QLabel(empty_))
    , emptyText_(new QLabel(empty_))
    , single_(new ZpsCirq(body_))
    , plus_(new RGB12LEDWidget(body_))
    , duo_(new ZpsCirqDuo_Widget(body_))
    , options_(new LightingOptions(this)) {
    hint_->setObjectName(QStringLiteral("lblLightingHint"));
    hint_->setWordWrap(true);
    hint_->setProperty("tone", QStringLiteral("secondary"));
    emptyText_->setProperty("tone", QStringLiteral("secondary"));
    emptyText_->setWordWrap(true);
    emptyText_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    emptyTitle_->setAlignment(Qt::AlignHCenter);
    layOut();
    retranslate();
    setRing(Ring::None);
    connect(options_, &LightingOptions::gaugeSet, this, &LightingPage::showGauge);
}

std::array<RingPanel *, 3> LightingPage::panels() const { return {single_, plus_, duo_}; }

void LightingPage::layOut() {
    auto *emptyLayout = new QVBoxLayout(empty_);
    emptyLayout->addStretch(2);
    emptyLayout->addWidget(emptySign_, 0, Qt::AlignHCenter);
    emptyLayout->addWidget(emptyTitle_);
    emptyLayout->addWidget(emptyText_);
    emptyLayout->addStretch(3);
    stack_ = new QStackedLayout(body_);
    stack_->addWidget(empty_);
    for (RingPanel *panel : panels()) {
        stack_->addWidget(panel);
    }
    auto *head = new QVBoxLayout;
    head->setSpacing(style::space::kXs);
    head->addWidget(title_);
    head->addWidget(hint_);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(head);
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
    hint_->setText(reachable_ || ring_ == Ring::None ? qtTrId("LIGHTING_PAGE_HINT")
                                                     : qtTrId("LIGHTING_UNREACHABLE"));
    hint_->setVisible(ring_ != Ring::None);
}

void LightingPage::showGauge(int gauge) {
    for (RingPanel *panel : panels()) {
        panel->showGauge(static_cast<RingGauge>(gauge));
    }
}

void LightingPage::retranslate() {
    title_->setText(qtTrId("LIGHTING_PAGE_TITLE"));
    emptyTitle_->setText(qtTrId("LIGHTING_NONE"));
    emptyText_->setText(qtTrId("LIGHTING_NONE_HINT"));
    showHint();
}

void LightingPage::applyScale() {
    const qreal scale = style::windowScale(*this);
    const int margin = qRound(style::space::kL * scale);
    layout()->setContentsMargins(margin, 0, margin, margin);
    layout()->setSpacing(qRound(style::space::kM * scale));
    empty_->layout()->setSpacing(qRound(style::space::kS * scale));
    title_->setFont(style::font(kPageTitlePixels * scale, QFont::DemiBold));
    hint_->setFont(style::font(style::type::kBody * scale));
    emptyTitle_->setFont(style::font(style::type::kTitle * scale, QFont::DemiBold));
    emptyText_->setFont(style::font(style::type::kBody * scale));
    static_cast<EmptySign *>(emptySign_)->applyScale(scale);
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
