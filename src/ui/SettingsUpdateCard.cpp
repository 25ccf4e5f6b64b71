#include "ui/SettingsUpdateCard.h"

#include "ui/SettingRowControls.h"
#include "ui/SettingsEntry.h"
#include "ui/SettingsLink.h"
#include "ui/SettingsTextRow.h"

#include <QKeyEvent>
#include <QPushButton>

namespace zpsg::ui {
namespace {

using Sign = SettingsStatusLine::Sign;

constexpr const char *kNeedsAddress = QT_TRID_NOOP("SETTING_STR_NEEDS_ADDRESS");

} // namespace

SettingsUpdateCard::SettingsUpdateCard(SettingsLink &link, QWidget *parent)
    : SettingsCard({QT_TRID_NOOP("SETTING_STR_NEW_VERSIONS"), QT_TRID_NOOP("SETTING_STR_NEW_VERSIONS_HINT")},
                   parent)
    , link_(link)
    , on_(new SettingSwitchRow(
          {QT_TRID_NOOP("SETTING_STR_UPDATES_ON"), QT_TRID_NOOP("SETTING_STR_UPDATES_ON_HINT")}, link,
          SettingField::UpdateEnabled, this))
    , entry_(new SettingsTextRow(
          {QT_TRID_NOOP("SETTING_STR_UPDATE_ADDRESS"), QT_TRID_NOOP("SETTING_STR_UPDATE_ADDRESS_HINT")},
          SettingsTextRow::Kind::Plain, this))
    , check_(new SettingButtonRow(
          {QT_TRID_NOOP("SETTING_STR_UPDATE_CHECK"), QT_TRID_NOOP("SETTING_STR_UPDATE_CHECK_HINT")},
          QT_TRID_NOOP("SETTING_STR_CHECK_NOW"), this)) {
    check_->button()->setObjectName(QStringLiteral("btnCheckUpdate"));
    addRow(on_);
    addRow(entry_);
    addRow(check_);
    connect(&link, &SettingsLink::shown, this, [this](SettingField field, const QVariant &value) {
        if (field == SettingField::UpdateAddress) {
            show(value.toString());
        }
    });
    connect(&link, &SettingsLink::statusShown, this,
            [this](SettingStatus status, const QString &text, bool problem) {
                if (status == SettingStatus::Update) {
                    check_->showNote(text, problem ? Sign::Problem : Sign::Info);
                }
            });
    connect(check_, &SettingButtonRow::pressed, &link, &SettingsLink::updateCheckRequested);
    connect(entry_, &SettingsTextRow::edited, this, &SettingsUpdateCard::edited);
    connect(entry_, &SettingsTextRow::left, this, &SettingsUpdateCard::finish);
    connect(entry_, &SettingsTextRow::returnPressed, this, &SettingsUpdateCard::finish);
    show({});
}

void SettingsUpdateCard::show(const QString &address) {
    const bool another = address != address_;
    address_ = address;
    if (another || !entry_->entry()->hasFocus()) { // else it may be half written
        takeBack();
    }
    const char *lack = address_.isEmpty() ? kNeedsAddress : nullptr;
    on_->setBlocked(lack);
    check_->setBlocked(lack, nullptr, false);
}

void SettingsUpdateCard::edited() {
    const bool another = entry_->text() != address_;
    entry_->showFault({});
    entry_->showNote(another ? qtTrId("SETTING_STR_UNSAVED_ROW") : QString(), Sign::Info);
    entry_->setMarked(another);
}

void SettingsUpdateCard::finish() {
    const QString text = entry_->text();
    if (text == address_) {
        takeBack();
    } else if (!text.isEmpty() && link_.addressRule != nullptr && !link_.addressRule(text)) {
        entry_->showFault(qtTrId("UPDATE_STR_BAD_ADDRESS"));
    } else {
        link_.change(SettingField::UpdateAddress, text);
    }
}

void SettingsUpdateCard::takeBack() {
    entry_->setText(address_);
    edited();
}

void SettingsUpdateCard::retranslate() {
    SettingsCard::retranslate();
    if (entry_->faulty()) {
        finish();
    } else {
        edited();
    }
}

void SettingsUpdateCard::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape && entry_->text() != address_) {
        takeBack();
        return;
    }
    SettingsCard::keyPressEvent(event);
}

} // namespace zpsg::ui
