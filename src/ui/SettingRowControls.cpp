#include "ui/SettingRowControls.h"

#include "ui/Controls.h"
#include "ui/SegmentedControl.h"
#include "ui/Selector.h"
#include "ui/SettingsLink.h"
#include "ui/Style.h"
#include "ui/ToggleSwitch.h"

#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace zpsg::ui {
namespace {

/// Room for the sign of a list and the margins of its text, and the least width of all; in a window of the
/// usual size.
constexpr qreal kListSign = 36.0;
constexpr qreal kLeastList = 140.0;
/// At both sides of a button's text together.
constexpr qreal kButtonPadding = 22.0;
/// Round a switch, for the mark of its focus.
constexpr qreal kSwitchRing = 3.0;

} // namespace

SettingSwitchRow::SettingSwitchRow(const SettingTexts &texts, QWidget *parent)
    : SettingRow(texts, parent), switch_(new ToggleSwitch(this)) {
    setControl(switch_, kSwitchRing);
    connect(switch_, &QAbstractButton::clicked, this, &SettingSwitchRow::thrown);
}

SettingSwitchRow::SettingSwitchRow(const SettingTexts &texts, SettingsLink &link, SettingField field,
                                   QWidget *parent)
    : SettingSwitchRow(texts, parent) {
    connect(&link, &SettingsLink::shown, this, [this, field](SettingField which, const QVariant &value) {
        if (which == field) {
            setOn(value.toBool());
        }
    });
    connect(this, &SettingSwitchRow::thrown, &link, [&link, field](bool on) { link.change(field, on); });
}

void SettingSwitchRow::setOn(bool on) { switch_->setChecked(on); }

bool SettingSwitchRow::on() const { return switch_->isChecked(); }

void SettingSwitchRow::applyScale(qreal scale) {
    SettingRow::applyScale(scale);
    switch_->updateGeometry();
}

SettingListRow::SettingListRow(const SettingTexts &texts, SettingsLink &link, SettingField field,
                               QVariantList values, SettingChoices choices, QWidget *parent)
    : SettingRow(texts, parent)
    , list_(new Selector(this))
    , values_(std::move(values))
    , choices_(std::move(choices)) {
    setControl(list_);
    connect(&link, &SettingsLink::shown, this, [this, field](SettingField which, const QVariant &value) {
        if (which == field) {
            list_->showEntry(std::max(0, values_.indexOf(value)));
        }
    });
    connect(list_, &Selector::entryChosen, &link,
            [this, &link, field](int index) { link.change(field, values_.at(index)); });
}

void SettingListRow::retranslate() {
    list_->setEntries(choices_());
    SettingRow::retranslate();
}

void SettingListRow::applyScale(qreal scale) {
    SettingRow::applyScale(scale);
    list_->applyScale(scale);
    const QFontMetricsF metrics(list_->font());
    qreal widest = 0.0;
    for (int i = 0; i < list_->count(); ++i) {
        widest = std::max(widest, metrics.horizontalAdvance(list_->itemText(i)));
    }
    list_->setFixedWidth(qRound(std::max(widest + kListSign * scale, kLeastList * scale)));
}

SettingSegmentsRow::SettingSegmentsRow(const SettingTexts &texts, SettingsLink &link, SettingField field,
                                       SettingChoices choices, QWidget *parent)
    : SettingRow(texts, parent), segments_(new SegmentedControl(this)), choices_(std::move(choices)) {
    setControl(segments_);
    segments_->setTexts(choices_());
    connect(&link, &SettingsLink::shown, this, [this, field](SettingField which, const QVariant &value) {
        if (which == field) {
            const QSignalBlocker quiet(segments_);
            segments_->setCurrent(value.toInt());
        }
    });
    connect(segments_, &SegmentedControl::currentChanged, &link,
            [&link, field](int index) { link.change(field, index); });
}

void SettingSegmentsRow::retranslate() {
    segments_->setTexts(choices_());
    SettingRow::retranslate();
}

void SettingSegmentsRow::describe(const QString &name, const QString &description) {
    SettingRow::describe(name, description);
    // The focus is on one of them, whose own text says little.
    for (QRadioButton *segment : segments_->findChildren<QRadioButton *>()) {
        segment->setAccessibleName(QStringLiteral("%1: %2").arg(name, segment->text()));
        segment->setAccessibleDescription(description);
    }
}

void SettingSegmentsRow::applyScale(qreal scale) {
    SettingRow::applyScale(scale);
    segments_->setFixedSize(segments_->sizeHint().width(), qRound(kControlHeight * scale));
}

SettingButtonRow::SettingButtonRow(const SettingTexts &texts, const char *buttonKey, QWidget *parent)
    : SettingRow(texts, parent), button_(new QPushButton(this)), buttonKey_(buttonKey) {
    button_->setProperty("slim", true);
    button_->setCursor(Qt::PointingHandCursor);
    setControl(button_);
    connect(button_, &QPushButton::clicked, this, &SettingButtonRow::pressed);
}

void SettingButtonRow::retranslate() {
    button_->setText(qtTrId(buttonKey_));
    SettingRow::retranslate();
}

void SettingButtonRow::applyScale(qreal scale) {
    SettingRow::applyScale(scale);
    applyButtonScale(*button_, scale);
}

void applyButtonScale(QPushButton &button, qreal scale) {
    button.setFont(style::font(style::type::kBody * scale, QFont::Medium));
    button.setFixedHeight(qRound(kControlHeight * scale));
    // The style sheet's padding does not grow with the window.
    const qreal words = QFontMetricsF(button.font()).horizontalAdvance(button.text());
    button.setMinimumWidth(qRound(words + kButtonPadding * scale));
}

} // namespace zpsg::ui
