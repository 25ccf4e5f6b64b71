#include "ui/SettingsTextRow.h"

#include "ui/SettingRowControls.h"
#include "ui/SettingsEntry.h"
#include "ui/Style.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVariant>

#include <algorithm>

namespace zpsg::ui {
namespace {

/// Of the entry with its button, and the least of the entry beside one; in a window of the usual size.
constexpr qreal kWidth = 250.0;
constexpr qreal kNumberWidth = 96.0;
constexpr qreal kLeastBesideButton = 140.0;

} // namespace

SettingsTextRow::SettingsTextRow(const SettingTexts &texts, Kind kind, QWidget *parent)
    : SettingRow(texts, parent), kind_(kind), box_(new QWidget(this)), entry_(new SettingsEntry(box_)) {
    auto *layout = new QHBoxLayout(box_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(entry_);
    if (kind == Kind::Secret || kind == Kind::File) {
        makeButton();
    }
    setControl(box_);
    connect(entry_, &QLineEdit::textEdited, this, &SettingsTextRow::edited);
    connect(entry_, &QLineEdit::returnPressed, this, &SettingsTextRow::returnPressed);
    connect(entry_, &SettingsEntry::left, this, &SettingsTextRow::left);
}

void SettingsTextRow::makeButton() {
    button_ = new QPushButton(box_);
    button_->setProperty("slim", true);
    button_->setCursor(Qt::PointingHandCursor);
    box_->layout()->addWidget(button_);
    if (kind_ == Kind::File) {
        connect(button_, &QPushButton::clicked, this, &SettingsTextRow::chooseFile);
        return;
    }
    entry_->setEchoMode(QLineEdit::Password);
    button_->setCheckable(true);
    connect(button_, &QPushButton::toggled, this, [this](bool plain) {
        entry_->setEchoMode(plain ? QLineEdit::Normal : QLineEdit::Password);
        refreshButton();
    });
}

QString SettingsTextRow::text() const {
    return kind_ == Kind::Secret ? entry_->text() : entry_->text().trimmed();
}

void SettingsTextRow::setText(const QString &text) {
    entry_->setText(text);
    entry_->setCursorPosition(0);
}

void SettingsTextRow::showFault(const QString &fault) {
    faulty_ = !fault.isEmpty();
    entry_->setFaulty(faulty_);
    showNote(fault, SettingsStatusLine::Sign::Problem);
}

void SettingsTextRow::chooseFile() {
    // A child of the window, so that it does not take on the page's looks.
    auto *dialog = new QFileDialog(window(), qtTrId("SETTING_STR_CA_TITLE"), QFileInfo(text()).absolutePath(),
                                   qtTrId("SETTING_STR_CA_FILTER"));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString &path) {
        setText(path);
        emit edited();
    });
    dialog->open();
}

void SettingsTextRow::refreshButton() {
    if (kind_ == Kind::File) {
        button_->setText(qtTrId("SETTING_STR_CHOOSE"));
    } else if (kind_ == Kind::Secret) {
        button_->setText(button_->isChecked() ? qtTrId("SETTING_STR_HIDE") : qtTrId("SETTING_STR_SHOW"));
    }
    if (button_ != nullptr) {
        button_->setAccessibleName(QStringLiteral("%1: %2").arg(name(), button_->text()));
    }
}

void SettingsTextRow::retranslate() {
    refreshButton();
    SettingRow::retranslate();
}

void SettingsTextRow::describe(const QString &name, const QString &description) {
    entry_->setAccessibleName(name);
    entry_->setAccessibleDescription(description);
    if (button_ != nullptr) {
        button_->setAccessibleDescription(description);
    }
}

void SettingsTextRow::applyScale(qreal scale) {
    SettingRow::applyScale(scale);
    const int gap = qRound(6.0 * scale);
    box_->layout()->setSpacing(gap);
    entry_->applyScale(scale);
    if (button_ == nullptr) {
        entry_->setFixedWidth(qRound((kind_ == Kind::Number ? kNumberWidth : kWidth) * scale));
        return;
    }
    applyButtonScale(*button_, scale);
    int beside = button_->minimumWidth();
    if (kind_ == Kind::Secret) { // nothing moves when its text changes
        const QFontMetrics metrics(button_->font());
        beside += std::max(metrics.horizontalAdvance(qtTrId("SETTING_STR_SHOW")),
                           metrics.horizontalAdvance(qtTrId("SETTING_STR_HIDE"))) -
                  metrics.horizontalAdvance(button_->text());
    }
    button_->setFixedWidth(beside);
    const int room = qRound(kWidth * scale) - gap - beside;
    entry_->setFixedWidth(std::max(room, qRound(kLeastBesideButton * scale)));
}

void SettingsTextRow::hideEvent(QHideEvent *event) {
    SettingRow::hideEvent(event);
    if (kind_ == Kind::Secret) {
        button_->setChecked(false); // nobody else is to read it there later
    }
}

} // namespace zpsg::ui
