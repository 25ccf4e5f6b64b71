#include "ui/LightingOptions.h"

#include "ui/SegmentedControl.h"
#include "ui/Style.h"
#include "ui/ToggleSwitch.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QSignalBlocker>
#include <QVariant>

namespace zpsg::ui {
namespace {

enum Switch { SafePalette, AlarmOnRing, OffWhenLocked };

struct Texts {
    const char *name;
    const char *hint;
};
constexpr std::array kTexts{
    Texts{QT_TRID_NOOP("LIGHTING_SAFE_PALETTE"), QT_TRID_NOOP("LIGHTING_SAFE_PALETTE_HINT")},
    Texts{QT_TRID_NOOP("LIGHTING_ALARM_ON_RING"), QT_TRID_NOOP("LIGHTING_ALARM_ON_RING_HINT")},
    Texts{QT_TRID_NOOP("LIGHTING_OFF_WHEN_LOCKED"), QT_TRID_NOOP("LIGHTING_OFF_WHEN_LOCKED_HINT")},
};

} // namespace

LightingOptions::LightingOptions(QWidget *parent)
    : QWidget(parent), shownCaption_(new QLabel(this)), shown_(new SegmentedControl(this)) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    shown_->setObjectName(QStringLiteral("switchRingShows"));
    shownCaption_->setProperty("tone", QStringLiteral("secondary"));
    constexpr std::array kNames{"switchSafePalette", "switchAlarmOnRing", "switchOffWhenLocked"};
    for (std::size_t i = 0; i < kSwitches; ++i) {
        names_.at(i) = new QLabel(this);
        names_.at(i)->setWordWrap(true);
        switches_.at(i) = new ToggleSwitch(this);
        switches_.at(i)->setObjectName(QLatin1String(kNames.at(i)));
        connect(switches_.at(i), &QAbstractButton::clicked, this, &LightingOptions::readControls);
    }
    retranslate();
    layOut();
    showState(state_);
    connect(shown_, &SegmentedControl::currentChanged, this, &LightingOptions::readControls);
}

void LightingOptions::layOut() {
    auto *gauge = new QVBoxLayout;
    gauge->addWidget(shownCaption_);
    gauge->addWidget(shown_);
    row_ = new QHBoxLayout(this);
    row_->addLayout(gauge);
    for (std::size_t i = 0; i < kSwitches; ++i) {
        auto *pair = new QHBoxLayout;
        pair->addWidget(switches_.at(i), 0, Qt::AlignVCenter);
        pair->addWidget(names_.at(i), 1);
        row_->addLayout(pair, i == SafePalette ? 5 : 4);
    }
}

void LightingOptions::showState(const LightingOptionsState &state) {
    const bool otherGauge = state.gauge != state_.gauge;
    state_ = state;
    {
        const QSignalBlocker quiet(shown_);
        shown_->setCurrent(state.gauge);
    }
    switches_[SafePalette]->setChecked(state.safePalette);
    switches_[AlarmOnRing]->setChecked(state.alarmOnRing);
    switches_[OffWhenLocked]->setChecked(state.offWhenLocked);
    if (otherGauge) {
        emit gaugeSet(state.gauge);
    }
}

void LightingOptions::readControls() {
    const LightingOptionsState now{shown_->current(), switches_[SafePalette]->isChecked(),
                                   switches_[AlarmOnRing]->isChecked(),
                                   switches_[OffWhenLocked]->isChecked()};
    if (now != state_) {
        showState(now);
        emit changed(state_);
    }
}

void LightingOptions::retranslate() {
    shownCaption_->setText(qtTrId("LIGHTING_SHOW_ON_RING"));
    shown_->setAccessibleName(shownCaption_->text());
    shown_->setTexts({qtTrId("LIGHTING_GAUGE_EFFECT"), qtTrId("LIGHTING_GAUGE_LOAD"),
                      qtTrId("LIGHTING_GAUGE_TEMPERATURE")});
    shown_->updateGeometry();
    for (std::size_t i = 0; i < kSwitches; ++i) {
        const QString name = qtTrId(kTexts.at(i).name);
        const QString hint = qtTrId(kTexts.at(i).hint);
        names_.at(i)->setText(name);
        names_.at(i)->setToolTip(hint);
        switches_.at(i)->setAccessibleName(name);
        switches_.at(i)->setAccessibleDescription(hint);
        switches_.at(i)->setToolTip(hint);
    }
}

void LightingOptions::applyScale(qreal scale) {
    const int margin = qRound(style::space::kM * scale);
    row_->setContentsMargins(margin, margin, margin, margin);
    row_->setSpacing(qRound(style::space::kL * scale));
    row_->itemAt(0)->layout()->setSpacing(qRound(style::space::kXs * scale));
    shownCaption_->setFont(style::font(style::type::kLabel * scale));
    shown_->setFixedHeight(qRound(26.0 * scale));
    shown_->setFixedWidth(shown_->sizeHint().width());
    for (std::size_t i = 0; i < kSwitches; ++i) {
        row_->itemAt(static_cast<int>(i) + 1)->layout()->setSpacing(qRound(style::space::kS * scale));
        names_.at(i)->setFont(style::font(style::type::kLabel * scale, QFont::Medium));
        switches_.at(i)->updateGeometry();
    }
}

void LightingOptions::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    style::paintCard(painter, *this);
}

void LightingOptions::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

} // namespace zpsg::ui
