#include "ui/FanSelector.h"

#include "ui/FanModeButton.h"
#include "ui/Style.h"

#include <QBoxLayout>
#include <QEvent>
#include <QStringList>

#include <algorithm>

namespace zpsg::ui {
namespace {

using fan::FanMode;

constexpr std::array kFixedModes{FanMode::Silent, FanMode::Performance, FanMode::ZeroFan};

} // namespace

FanSelector::FanSelector(Place place, QWidget *parent)
    : QWidget(parent), surface_(place == Place::Row ? this : new QWidget(this)) {
    auto *layout =
        new QBoxLayout(place == Place::Row ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, surface_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(style::space::kXs);
    for (const fan::FanModeRow &row : fan::kFanModes) {
        auto *button = new FanModeButton(row.mode, surface_);
        buttons_.at(static_cast<std::size_t>(row.mode)) = button;
        layout->addWidget(button);
        connect(button, &QPushButton::clicked, this, &FanSelector::functionSelected);
    }
    button(FanMode::Custom)->hide();
}

void FanSelector::setCustomSpeed(bool supported) {
    customSpeed_ = supported;
    button(FanMode::Custom)->setVisible(supported);
    showMode(mode_);
}

void FanSelector::showMode(FanMode mode) {
    mode_ = mode;
    const bool known =
        mode == FanMode::Silent || mode == FanMode::Performance || (mode == FanMode::Custom && customSpeed_);
    const FanMode shown = known ? mode : FanMode::ZeroFan;
    // Each once: one that is taken back and chosen again would be styled anew, every second.
    for (const FanMode each : kFixedModes) {
        button(each)->setChosen(each == shown);
    }
    button(FanMode::Custom)->setChosen(shown == FanMode::Custom);
}

void FanSelector::functionSelected() {
    const QString name = sender() != nullptr ? sender()->objectName() : QString();
    const auto *row = std::find_if(fan::kFanModes.begin(), fan::kFanModes.end(), [&](const auto &candidate) {
        return name == QLatin1String(candidate.objectName);
    });
    const FanMode mode = row != fan::kFanModes.end() ? row->mode : FanMode::Silent;
    emit returnSelectFunction({QString::number(static_cast<int>(mode)), name});
}

void FanSelector::applyScale(qreal scale) {
    surface_->layout()->setSpacing(qRound(style::space::kXs * scale));
    for (FanModeButton *each : buttons_) {
        each->updateGeometry();
    }
}

void FanSelector::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        for (FanModeButton *each : buttons_) {
            each->retranslate();
        }
    }
}

} // namespace zpsg::ui
