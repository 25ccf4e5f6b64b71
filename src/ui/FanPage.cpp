#include "ui/FanPage.h"

#include "ui/CustomFanSpeedWidget.h"
#include "ui/FanCurveEditor.h"
#include "ui/FanFigures.h"
#include "ui/FanModeButton.h"
#include "ui/FanModeLook.h"
#include "ui/FanModeOpener.h"
#include "ui/FanSpeedCustomWidget.h"
#include "ui/FanSpeedCustomWidgetPlus.h"
#include "ui/FanTrend.h"
#include "ui/popupWidget.h"
#include "ui/Style.h"

#include <QHBoxLayout>
#include <QHideEvent>
#include <QPushButton>

namespace zpsg::ui {
namespace {

constexpr int kModePixels = 20;
constexpr int kPopupVariant = 2;

float sampleOf(const std::optional<double> &value) {
    return value ? static_cast<float>(*value) : FanSample::kNone;
}

} // namespace

// Tab goes through the controls in the order in which they are made.
FanPage::FanPage(QWidget *parent)
    : QWidget(parent)
    , head_(new PageHead(this))
    , stateCard_(new Card(this))
    , figures_(new FanFigures(stateCard_))
    , modeCaption_(new QLabel(stateCard_))
    , modeText_(new QLabel(stateCard_))
    , modeBy_(new QLabel(stateCard_))
    , opener_(new FanModeOpener(stateCard_))
    , selectors_{new FanSpeedCustomWidget(stateCard_), new FanSpeedCustomWidgetPlus(stateCard_), nullptr}
    , trend_(new FanTrend(this))
    , curve_(new FanCurveCard(this))
    , popup_(new CustomFanSpeedWidget(fan::kFullRpm, this))
    , small_(new popupWidget(this)) {
    selectors_[kPopupVariant] = small_;
    modeText_->setObjectName(QStringLiteral("lblFanMode"));
    head_->hint()->setObjectName(QStringLiteral("lblFanHint"));
    for (QLabel *label : {modeCaption_, modeBy_}) {
        label->setProperty("tone", QStringLiteral("secondary"));
    }
    layOut();
    retranslate();
    setVariant(0);
    setReachable(true);
    connectParts();
}

void FanPage::layOut() {
    auto *words = new QHBoxLayout;
    words->addWidget(modeText_, 0, Qt::AlignVCenter);
    words->addWidget(opener_, 0, Qt::AlignVCenter);
    words->addWidget(modeBy_, 1, Qt::AlignVCenter);
    auto *modes = new QVBoxLayout;
    modes->setSpacing(0);
    modes->addWidget(modeCaption_);
    modes->addLayout(words, 1);
    modes->addWidget(selectors_[0]);
    modes->addWidget(selectors_[1]);
    auto *state = new QHBoxLayout(stateCard_);
    state->addWidget(figures_, 0, Qt::AlignTop);
    state->addLayout(modes, 1);
    stateCard_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);

    cards_ = new QHBoxLayout;
    cards_->addWidget(trend_, 1);
    cards_->addWidget(curve_, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(head_);
    layout->addWidget(stateCard_);
    layout->addLayout(cards_, 1);
}

void FanPage::connectParts() {
    for (const FanSelector *each : selectors_) {
        connect(each, &FanSelector::returnSelectFunction, this, &FanPage::choose);
    }
    connect(opener_, &QPushButton::clicked, this, [this] { small_->openAt(opener_); });
    connect(popup_, &CustomFanSpeedWidget::sentFanSpeed, this, &FanPage::customSpeedChosen);
    connect(curve_, &FanCurveCard::toggled, this, &FanPage::curveToggled);
    connect(curve_, &FanCurveCard::edited, this, &FanPage::curveEdited);
    connect(curve_, &FanCurveCard::tuningEdited, this, &FanPage::curveTuningEdited);
}

void FanPage::choose(const QStringList &indexAndName) {
    emit modeChosen(indexAndName);
    if (indexAndName.constFirst() == QString::number(static_cast<int>(fan::FanMode::Custom))) {
        popup_->setPercent(customPercent_);
        popup_->open();
    }
}

FanSelector *FanPage::selector() const { return selectors_.at(static_cast<std::size_t>(variant_)); }

void FanPage::setVariant(int variant) {
    variant_ = variant >= 0 && variant <= kPopupVariant ? variant : 0;
    const bool small = variant_ == kPopupVariant;
    selectors_[0]->setVisible(variant_ == 0);
    selectors_[1]->setVisible(variant_ == 1);
    if (!small) {
        small_->closeSelf();
    }
    opener_->setVisible(small);
    modeText_->setVisible(!small);
}

void FanPage::showHead() {
    head_->setTexts(qtTrId("FAN_PAGE_TITLE"), reachable_ ? QString() : qtTrId("FAN_UNREACHABLE"));
}

void FanPage::setReachable(bool reachable) {
    reachable_ = reachable;
    showHead();
    figures_->setEnabled(reachable);
    for (const FanSelector *each : selectors_) {
        each->button(fan::FanMode::Custom)->setEnabled(reachable);
    }
    if (!reachable) {
        figures_->show(std::nullopt, std::nullopt, std::nullopt);
        curve_->editor()->showNow(std::nullopt, std::nullopt);
        popup_->closeSelf();
    }
    showCurveCard();
}

void FanPage::showCurveCard() {
    const bool usable = selectors_[0]->customSpeed();
    curve_->setUsable(usable, reachable_);
    // One sentence needs less room.
    cards_->setStretchFactor(trend_, usable ? 1 : 5);
    cards_->setStretchFactor(curve_, usable ? 1 : 2);
}

void FanPage::setCustomSpeed(bool supported) {
    for (FanSelector *each : selectors_) {
        each->setCustomSpeed(supported);
    }
    if (!supported) {
        popup_->closeSelf();
    }
    showCurveCard();
}

void FanPage::setFullRpm(float fullRpm) { popup_->setFullRpm(fullRpm); }

void FanPage::showMode(fan::FanMode mode, int customPercent) {
    mode_ = mode;
    customPercent_ = fan::fittedPercent(customPercent);
    for (FanSelector *each : selectors_) {
        each->showMode(mode);
    }
    showModeText();
}

void FanPage::showModeText() {
    const QString text = modeText(mode_, drivenPercent_.value_or(customPercent_));
    modeText_->setText(text);
    opener_->setText(text);
    opener_->setAccessibleName(QStringLiteral("%1: %2").arg(qtTrId("FAN_MODE"), text));
    opener_->updateGeometry();
    const bool byCurve = drivenPercent_.has_value() && mode_ == fan::FanMode::Custom;
    modeBy_->setText(byCurve ? qtTrId("FAN_MODE_BY_CURVE") : QString());
}

void FanPage::takeReading(const FanReading &reading, qint64 msecsSinceEpoch) {
    trend_->take({msecsSinceEpoch, sampleOf(reading.rpm), sampleOf(reading.celsius), reading.mode});
    if (reachable_) {
        figures_->show(reading.rpm, reading.dutyPercent, reading.celsius);
        curve_->editor()->showNow(reading.celsius, reading.loadPercent);
    }
}

void FanPage::showCurve(bool on, const fan::FanCurve &curve, int hysteresis, int minSeconds) {
    curve_->showCurve(on, curve, hysteresis, minSeconds);
}

void FanPage::showCurveState(CurveState state, int percent) {
    drivenPercent_ = state == CurveState::Driving ? std::optional(percent) : std::nullopt;
    curve_->showState(state, percent);
    showModeText();
}

void FanPage::retranslate() {
    showHead();
    modeCaption_->setText(qtTrId("FAN_MODE"));
    figures_->setAccessibleName(qtTrId("FAN_SPEED"));
    opener_->setToolTip(qtTrId("FAN_CHOOSE_MODE"));
    curve_->retranslate();
    showModeText();
}

void FanPage::applyScale() {
    const qreal scale = style::windowScale(*this);
    const int gap = qRound(style::space::kM * scale);
    const int margin = qRound(style::space::kL * scale);
    layout()->setContentsMargins(margin, 0, margin, margin);
    layout()->setSpacing(gap);
    cards_->setSpacing(gap);
    stateCard_->layout()->setContentsMargins(gap, gap - qRound(2.0 * scale), gap, gap);
    stateCard_->layout()->setSpacing(qRound(style::space::kXl * scale));
    head_->applyScale(scale);
    modeCaption_->setFont(style::font(style::type::kBody * scale, QFont::Medium));
    modeText_->setFont(style::font(kModePixels * scale, QFont::DemiBold));
    opener_->setFont(style::font(kModePixels * scale, QFont::DemiBold));
    modeBy_->setFont(style::font(style::type::kLabel * scale));
    modeBy_->setIndent(gap);
    // In line with the captions beside it, and with the surfaces of the buttons below.
    modeCaption_->setFixedHeight(qRound(FanFigures::kCaptionHeight * scale));
    for (QLabel *label : {modeCaption_, modeText_}) {
        label->setIndent(qRound(FanModeButton::kRing * scale));
    }
    figures_->updateGeometry();
    for (FanSelector *each : selectors_) {
        each->applyScale(scale);
    }
    curve_->applyScale(scale);
}

void FanPage::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    applyScale();
}

void FanPage::hideEvent(QHideEvent *event) {
    QWidget::hideEvent(event);
    if (!event->spontaneous()) {
        // Another page is shown; what was not confirmed is not waited for.
        popup_->closeSelf();
        small_->closeSelf();
    }
}

void FanPage::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        applyScale();
    }
}

} // namespace zpsg::ui
