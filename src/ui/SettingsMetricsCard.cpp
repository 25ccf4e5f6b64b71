#include "ui/SettingsMetricsCard.h"

#include "ui/SettingRowControls.h"
#include "ui/SettingsEntry.h"
#include "ui/SettingsLink.h"
#include "ui/SettingsMqttRules.h"
#include "ui/SettingsTextRow.h"

#include <QKeyEvent>

namespace zpsg::ui {
namespace {

/// When none was ever set.
constexpr int kUsualPort = 9417;
constexpr const char *kOnKey = QT_TRID_NOOP("SETTING_STR_METRICS_ON");

} // namespace

SettingsMetricsCard::SettingsMetricsCard(SettingsLink &link, QWidget *parent)
    : SettingsCard({QT_TRID_NOOP("SETTING_STR_METRICS"), QT_TRID_NOOP("SETTING_STR_METRICS_HINT")}, parent)
    , link_(link)
    , on_(new SettingSwitchRow({kOnKey, QT_TRID_NOOP("SETTING_STR_METRICS_ON_HINT")}, this))
    , entry_(new SettingsTextRow(
          {QT_TRID_NOOP("SETTING_STR_PORT"), QT_TRID_NOOP("SETTING_STR_METRICS_PORT_HINT")},
          SettingsTextRow::Kind::Number, this))
    , port_(kUsualPort) {
    showStatus(link, SettingStatus::Metrics, addStatus());
    addRow(on_);
    addRow(entry_);
    connect(&link, &SettingsLink::shown, this, [this](SettingField field, const QVariant &value) {
        if (field == SettingField::MetricsPort) {
            show(value.toInt());
        }
    });
    connect(on_, &SettingSwitchRow::thrown, this,
            [this](bool on) { link_.change(SettingField::MetricsPort, on ? port_ : 0); });
    connect(entry_, &SettingsTextRow::edited, this, &SettingsMetricsCard::edited);
    connect(entry_, &SettingsTextRow::left, this, [this] { finish(true); });
    connect(entry_, &SettingsTextRow::returnPressed, this, [this] { finish(false); });
    show(0);
}

void SettingsMetricsCard::show(int port) {
    const bool another = port > 0 && port != port_;
    port_ = port > 0 ? port : port_;
    on_->setOn(port > 0);
    if (another || !entry_->entry()->hasFocus()) { // else it may be half written
        takeBack();
    }
    entry_->setBlocked(port > 0 ? nullptr : QT_TRID_NOOP("SETTING_STR_NEEDS"), kOnKey);
}

void SettingsMetricsCard::edited() {
    const bool another = entry_->text() != QString::number(port_);
    entry_->showFault({});
    entry_->showNote(another ? qtTrId("SETTING_STR_UNSAVED_ROW") : QString(), SettingsStatusLine::Sign::Info);
    entry_->setMarked(another);
}

void SettingsMetricsCard::finish(bool leaving) {
    const int port = portNumber(entry_->text());
    if (port == 0 && !leaving) {
        entry_->showFault(qtTrId("SETTING_STR_FAULT_PORT").arg(kLastPort));
    } else if (port != 0 && port != port_ && on_->on()) {
        link_.change(SettingField::MetricsPort, port);
    } else {
        takeBack();
    }
}

void SettingsMetricsCard::takeBack() {
    entry_->setText(QString::number(port_));
    edited();
}

void SettingsMetricsCard::retranslate() {
    SettingsCard::retranslate();
    if (entry_->faulty()) {
        finish(false);
    } else {
        edited();
    }
}

void SettingsMetricsCard::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape && entry_->text() != QString::number(port_)) {
        takeBack();
        return;
    }
    SettingsCard::keyPressEvent(event);
}

} // namespace zpsg::ui
