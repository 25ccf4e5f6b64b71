#include "ui/TrendPanel.h"

#include "ui/DayView.h"
#include "ui/EfficiencyView.h"
#include "ui/EnergyView.h"
#include "ui/PcView.h"
#include "ui/PowerTrace.h"
#include "ui/SegmentedControl.h"
#include "ui/Style.h"

#include <QEvent>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace zpsg::ui {
namespace {

/// A summary may be made smaller down to this where the caption line is short.
constexpr qreal kLeastSummary = 10.0;

QStringList segmentTexts() {
    return {qtTrId("MAIN_STR_TREND_MINUTES"), qtTrId("MAIN_STR_TREND_TODAY"),
            qtTrId("MAIN_STR_TREND_EFFICIENCY"), qtTrId("MAIN_STR_TREND_ENERGY"),
            qtTrId("MAIN_STR_TREND_PC")};
}

/// With its segments: what is made before the views is reached by the Tab key before what they hold.
SegmentedControl *makeSwitch(QWidget *parent) {
    auto *made = new SegmentedControl(parent);
    made->setObjectName(QStringLiteral("switchTrend"));
    made->setTexts(segmentTexts());
    return made;
}

} // namespace

TrendPanel::TrendPanel(QWidget *parent)
    : QWidget(parent)
    , switch_(makeSwitch(this))
    , stack_(new QStackedWidget(this))
    , power_(new PowerTrace(stack_))
    , day_(new DayView(stack_))
    , efficiency_(new EfficiencyView(stack_))
    , energy_(new EnergyView(stack_))
    , pc_(new PcView(stack_)) {
    for (TrendView *view : views()) {
        stack_->addWidget(view);
    }
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(stack_);
    retranslate();
    connect(switch_, &SegmentedControl::currentChanged, this, [this](int view) {
        stack_->setCurrentIndex(view);
        placeSwitch();
        emit viewChanged(view);
    });
}

std::array<TrendView *, 5> TrendPanel::views() const { return {power_, day_, efficiency_, energy_, pc_}; }

int TrendPanel::view() const { return stack_->currentIndex(); }

void TrendPanel::setView(int view) { switch_->setCurrent(view); }

void TrendPanel::retranslate() {
    setAccessibleName(qtTrId("MAIN_STR_TREND"));
    switch_->setAccessibleName(qtTrId("MAIN_STR_TREND"));
    switch_->setTexts(segmentTexts());
    placeSwitch();
}

bool TrendPanel::captionsLeave(qreal pixels) const {
    const style::CardLayout card(*this);
    const QFontMetricsF caption(style::font(card.captionPixels, QFont::Medium));
    const QFontMetricsF summary(style::font(kLeastSummary * card.scale));
    const auto views = this->views();
    return std::all_of(views.begin(), views.end(), [&](const TrendView *view) {
        const QString sum = view->summaryText();
        const qreal beside = sum.isEmpty() ? 0.0 : summary.horizontalAdvance(sum) + style::space::kXl;
        return caption.horizontalAdvance(view->captionText()) + beside <= card.captionLine.width() - pixels;
    });
}

void TrendPanel::placeSwitch() {
    const style::CardLayout card(*this);
    const QSize needed = switch_->sizeHint();
    const int taken = needed.width() + qRound(style::space::kL * card.scale);
    const bool beside = captionsLeave(taken);
    const int above = beside ? 0 : needed.height() + qRound(style::space::kXs * card.scale);
    const int middle = qRound(card.captionLine.center().y());
    const int top = beside ? middle - needed.height() / 2 : 0;
    const int left = beside ? width() - qRound(card.margin) - needed.width() : width() - needed.width();
    layout()->setContentsMargins(0, above, 0, 0);
    switch_->setGeometry(std::max(0, left), top, needed.width(), needed.height());
    switch_->raise();
    for (TrendView *view : views()) {
        view->setReserved(beside ? taken : 0);
    }
}

void TrendPanel::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    placeSwitch();
}

void TrendPanel::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

} // namespace zpsg::ui
