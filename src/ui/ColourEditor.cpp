#include "ui/ColourEditor.h"

#include "ui/ColourSwatches.h"
#include "ui/ColourWheel.h"
#include "ui/Controls.h"
#include "ui/HexEntry.h"
#include "ui/LevelSlider.h"
#include "ui/Style.h"

#include <QHBoxLayout>
#include <QLocale>

namespace zpsg::ui {
namespace {

/// How the wheel and the column beside it share the width.
constexpr int kWheelShare = 4;
constexpr int kColumnShare = 5;

} // namespace

ColourEditor::ColourEditor(QWidget *parent)
    : QWidget(parent)
    , wheel_(new ColourWheel(this))
    , caption_(new ElidedLabel(this))
    , hex_(new HexEntry(this))
    , fault_(new QLabel(this))
    , swatches_(new ColourSwatches(this))
    , brightnessCaption_(new QLabel(this))
    , brightnessFigure_(new QLabel(this))
    , brightness_(new LevelSlider(this)) {
    fault_->setObjectName(QStringLiteral("lblColourFault"));
    fault_->setProperty("tone", QStringLiteral("caution"));
    fault_->setWordWrap(true);
    fault_->setVisible(false);
    brightnessFigure_->setProperty("figure", true);
    brightnessFigure_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    brightnessCaption_->setProperty("tone", QStringLiteral("secondary"));
    layOut();
    retranslate();
    showColour(Qt::red);
    showBrightness(100);

    connect(wheel_, &ColourWheel::colourPicked, this, &ColourEditor::pick);
    connect(hex_, &HexEntry::colourEntered, this, &ColourEditor::pick);
    connect(swatches_, &ColourSwatches::colourPicked, this, &ColourEditor::pick);
    connect(hex_, &HexEntry::faultyChanged, fault_, &QLabel::setVisible);
    connect(brightness_, &LevelSlider::levelChosen, this, [this](int percent) {
        showPercent(percent);
        emit brightnessPicked(percent);
    });
}

void ColourEditor::layOut() {
    entryRow_ = new QHBoxLayout;
    entryRow_->addWidget(hex_);
    entryRow_->addWidget(fault_, 1);
    entryRow_->addStretch();
    column_ = new QVBoxLayout;
    column_->addStretch(1);
    column_->addLayout(entryRow_);
    column_->addWidget(swatches_);
    column_->addStretch(1);
    colourRow_ = new QHBoxLayout;
    colourRow_->addWidget(wheel_, kWheelShare);
    colourRow_->addLayout(column_, kColumnShare);
    levelRow_ = new QHBoxLayout;
    levelRow_->addWidget(brightnessCaption_);
    levelRow_->addWidget(brightness_, 1);
    levelRow_->addWidget(brightnessFigure_);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(caption_);
    layout->addLayout(colourRow_, 1);
    layout->addLayout(levelRow_);
}

void ColourEditor::setCaption(const QString &caption) {
    caption_->setText(caption);
    wheel_->setAccessibleDescription(caption);
}

void ColourEditor::showColour(const QColor &colour) {
    colour_ = colour;
    wheel_->setColour(colour);
    hex_->setColour(colour);
    swatches_->setColour(colour);
}

void ColourEditor::pick(const QColor &colour) {
    if (colour.rgb() == colour_.rgb()) {
        swatches_->setColour(colour);
        return;
    }
    showColour(colour);
    emit colourPicked(colour);
}

void ColourEditor::showBrightness(int percent) {
    brightness_->showLevel(percent);
    showPercent(percent);
}

void ColourEditor::showPercent(int percent) {
    brightnessFigure_->setText(qtTrId("LIGHTING_PERCENT").arg(QLocale().toString(percent)));
}

void ColourEditor::setColourEnabled(bool enabled) {
    for (QWidget *control :
         {static_cast<QWidget *>(wheel_), static_cast<QWidget *>(hex_), static_cast<QWidget *>(swatches_)}) {
        control->setEnabled(enabled);
    }
}

void ColourEditor::setBrightnessEnabled(bool enabled) {
    for (QWidget *control :
         {static_cast<QWidget *>(brightness_), static_cast<QWidget *>(brightnessFigure_)}) {
        control->setEnabled(enabled);
    }
}

void ColourEditor::retranslate() {
    wheel_->setAccessibleName(qtTrId("LIGHTING_WHEEL"));
    wheel_->setToolTip(qtTrId("LIGHTING_WHEEL_HINT"));
    hex_->setAccessibleName(qtTrId("LIGHTING_HEX"));
    hex_->setToolTip(qtTrId("LIGHTING_HEX"));
    fault_->setText(QStringLiteral("\u25B2 ") + qtTrId("LIGHTING_HEX_FAULT"));
    swatches_->retranslate();
    brightnessCaption_->setText(qtTrId("MAIN_LED_Brightness"));
    brightness_->setAccessibleName(brightnessCaption_->text());
    showPercent(brightness_->value());
}

void ColourEditor::applyScale(qreal scale) {
    const int gap = qRound(style::space::kS * scale);
    layout()->setSpacing(gap);
    colourRow_->setSpacing(qRound(style::space::kL * scale));
    levelRow_->setSpacing(gap);
    column_->setSpacing(qRound(style::space::kM * scale));
    entryRow_->setSpacing(gap);
    caption_->setFont(style::font(style::type::kBody * scale, QFont::DemiBold));
    fault_->setFont(style::font(style::type::kSmall * scale));
    brightnessCaption_->setFont(style::font(style::type::kLabel * scale));
    brightnessFigure_->setFont(style::font(style::type::kBody * scale, QFont::DemiBold));
    hex_->applyScale(scale);
    fitSwatches();
    brightness_->updateGeometry();
    // As wide as the widest, so that the slider stays where it is.
    brightnessFigure_->setMinimumWidth(qRound(
        QFontMetricsF(brightnessFigure_->font()).horizontalAdvance(qtTrId("LIGHTING_PERCENT").arg(100)) +
        2.0 * scale));
}

void ColourEditor::fitSwatches() {
    swatches_->fitTo((width() - colourRow_->spacing()) * kColumnShare / (kWheelShare + kColumnShare));
}

void ColourEditor::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    fitSwatches();
}

} // namespace zpsg::ui
