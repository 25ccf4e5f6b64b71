#include "ui/TrendPanel.h"

#include "ui/DayView.h"
#include "ui/EfficiencyView.h"
#include "ui/PowerTrace.h"
#include "ui/SegmentedControl.h"
#include "ui/Style.h"

#include <QEvent>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <array>

namespace zpsg::ui {

TrendPanel::TrendPanel(QWidget *parent)
    : QWidget(parent)
    , stack_(new QStackedWidget(this))
    , power_(new PowerTrace(stack_))
    , day_(new DayView(stack_))
    , efficiency_(new EfficiencyView(stack_))
    , switch_(new SegmentedControl(this)) {
    switch_->setObjectName(QStringLiteral("switchTrend"));
    for (TrendView *view : std::array<TrendView *, 3>{power_, day_, efficiency_}) {
        stack_->addWidget(view);
    }
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(stack_);
    retranslate();
    connect(switch_, &SegmentedControl::currentChanged, this, [this](int view) {
        stack_->setCurrentIndex(view);
        emit viewChanged(view);
    });
}

int TrendPanel::view() const { return stack_->currentIndex(); }

void TrendPanel::setView(int view) { switch_->setCurrent(view); }

void TrendPanel::retranslate() {
    setAccessibleName(qtTrId("MAIN_STR_TREND"));
    switch_->setAccessibleName(qtTrId("MAIN_STR_TREND"));
    switch_->setTexts({qtTrId("MAIN_STR_TREND_MINUTES"), qtTrId("MAIN_STR_TREND_TODAY"),
                       qtTrId("MAIN_STR_TREND_EFFICIENCY")});
    placeSwitch();
}

void TrendPanel::placeSwitch() {
    const style::CardLayout card(*this);
    const QSize needed = switch_->sizeHint();
    const int middle = qRound(card.captionLine.center().y());
    switch_->setGeometry(width() - qRound(card.margin) - needed.width(), middle - needed.height() / 2,
                         needed.width(), needed.height());
    switch_->raise();
    for (TrendView *view : std::array<TrendView *, 3>{power_, day_, efficiency_}) {
        view->setReserved(needed.width() + qRound(style::space::kL * card.scale));
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
