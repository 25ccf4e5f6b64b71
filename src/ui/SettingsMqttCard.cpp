#include "ui/SettingsMqttCard.h"

#include "ui/SettingRowControls.h"
#include "ui/SettingsEntry.h"
#include "ui/SettingsLink.h"
#include "ui/SettingsMqttRules.h"
#include "ui/SettingsTextRow.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace zpsg::ui {
namespace {

using Kind = SettingsTextRow::Kind;

constexpr const char *kUsualPort = "1883";
constexpr const char *kNeedsHost = QT_TRID_NOOP("SETTING_STR_NEEDS_HOST");

struct RowOf {
    SettingField field;
    Kind kind;
    SettingTexts texts;
};
constexpr std::array kRows{
    RowOf{SettingField::MqttHost,
          Kind::Plain,
          {QT_TRID_NOOP("SETTING_STR_HOST"), QT_TRID_NOOP("SETTING_STR_HOST_HINT")}},
    RowOf{SettingField::MqttPort,
          Kind::Number,
          {QT_TRID_NOOP("SETTING_STR_PORT"), QT_TRID_NOOP("SETTING_STR_PORT_HINT")}},
    RowOf{SettingField::MqttUser,
          Kind::Plain,
          {QT_TRID_NOOP("SETTING_STR_USER"), QT_TRID_NOOP("SETTING_STR_USER_HINT")}},
    RowOf{SettingField::MqttPassword,
          Kind::Secret,
          {QT_TRID_NOOP("SETTING_STR_PASSWORD"), QT_TRID_NOOP("SETTING_STR_PASSWORD_HINT")}},
    RowOf{SettingField::MqttCaFile,
          Kind::File,
          {QT_TRID_NOOP("SETTING_STR_CA"), QT_TRID_NOOP("SETTING_STR_CA_HINT")}},
    RowOf{SettingField::MqttPublishPrefix,
          Kind::Plain,
          {QT_TRID_NOOP("SETTING_STR_PUBLISH"), QT_TRID_NOOP("SETTING_STR_PUBLISH_HINT")}},
    RowOf{SettingField::MqttAccountId,
          Kind::Plain,
          {QT_TRID_NOOP("SETTING_STR_ACCOUNT"), QT_TRID_NOOP("SETTING_STR_ACCOUNT_HINT")}},
    RowOf{SettingField::MqttSubscribePrefix,
          Kind::Plain,
          {QT_TRID_NOOP("SETTING_STR_SUBSCRIBE"), QT_TRID_NOOP("SETTING_STR_SUBSCRIBE_HINT")}},
    RowOf{SettingField::MqttProductId,
          Kind::Plain,
          {QT_TRID_NOOP("SETTING_STR_PRODUCT"), QT_TRID_NOOP("SETTING_STR_PRODUCT_HINT")}},
};
/// From here on they are about topics.
constexpr SettingField kFirstOfTopics = SettingField::MqttPublishPrefix;

} // namespace

SettingsMqttCard::SettingsMqttCard(SettingsLink &link, QWidget *parent)
    : SettingsCard({QT_TRID_NOOP("SETTING_STR_MQTT"), QT_TRID_NOOP("SETTING_STR_MQTT_HINT")}, parent)
    , link_(link) {
    static_assert(kRows.size() == kEntries);
    showStatus(link, SettingStatus::Mqtt, addStatus());
    for (std::size_t i = 0; i < kEntries; ++i) {
        const RowOf &of = kRows.at(i);
        if (of.field == kFirstOfTopics) {
            addCaption(QT_TRID_NOOP("SETTING_STR_TOPICS"));
        }
        auto *row = new SettingsTextRow(of.texts, of.kind, this);
        Entry &entry = entries_.at(i);
        entry = {of.field, row, {}};
        addRow(row);
        connect(row, &SettingsTextRow::edited, this, [this, &entry] {
            if (entry.row->faulty()) {
                check(entry);
            }
            refresh();
        });
        connect(row, &SettingsTextRow::left, this, [this, &entry] { check(entry); });
        connect(row, &SettingsTextRow::returnPressed, this, &SettingsMqttCard::apply);
    }
    makeBar();
    discovery_ = new SettingSwitchRow(
        {QT_TRID_NOOP("SETTING_STR_DISCOVERY"), QT_TRID_NOOP("SETTING_STR_DISCOVERY_HINT")}, link,
        SettingField::MqttDiscovery, this);
    addRow(discovery_);
    connect(&link, &SettingsLink::shown, this,
            [this](SettingField field, const QVariant &value) { show(field, value.toString()); });
    show(SettingField::MqttPort, QLatin1String(kUsualPort));
}

void SettingsMqttCard::makeBar() {
    bar_ = new QWidget(this);
    waiting_ = new SettingsStatusLine(bar_);
    discard_ = new QPushButton(bar_);
    apply_ = new QPushButton(bar_);
    discard_->setObjectName(QStringLiteral("btnMqttDiscard"));
    apply_->setObjectName(QStringLiteral("btnMqttApply"));
    apply_->setProperty("primary", true);
    auto *layout = new QHBoxLayout(bar_);
    layout->addWidget(waiting_, 1, Qt::AlignVCenter);
    QSizePolicy staying = waiting_->sizePolicy(); // the buttons keep their places while it is not there
    staying.setRetainSizeWhenHidden(true);
    waiting_->setSizePolicy(staying);
    for (QPushButton *button : {discard_, apply_}) {
        button->setProperty("slim", true);
        button->setCursor(Qt::PointingHandCursor);
        layout->addWidget(button);
    }
    column()->addWidget(bar_);
    connect(discard_, &QPushButton::clicked, this, &SettingsMqttCard::discard);
    connect(apply_, &QPushButton::clicked, this, &SettingsMqttCard::apply);
}

bool SettingsMqttCard::edited(const Entry &entry) { return entry.row->text() != entry.applied; }

// The program may tell what is applied at any time; what the user is writing stays unless it has changed.
void SettingsMqttCard::show(SettingField field, const QString &text) {
    const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                    [field](const Entry &each) { return each.field == field; });
    if (entry != entries_.end() && (text != entry->applied || !edited(*entry))) {
        entry->applied = text;
        if (entry->row->text() != text) {
            entry->row->setText(text);
        }
        entry->row->showFault({});
        refresh();
    }
}

void SettingsMqttCard::check(const Entry &entry) {
    entry.row->showFault(entry.row->blocked() ? QString() : mqttFault(entry.field, entry.row->text()));
    refresh();
}

void SettingsMqttCard::refresh() {
    const Entry &host = entries_.front();
    const bool none = host.row->text().isEmpty();
    for (const Entry &entry : entries_) {
        if (&entry != &host && entry.row->blocked() != none) {
            entry.row->setBlocked(none ? kNeedsHost : nullptr, nullptr, false);
        }
        const bool marked = edited(entry) && !entry.row->blocked();
        entry.row->setMarked(marked);
        if (!entry.row->faulty()) {
            QString note = marked ? qtTrId("SETTING_STR_UNSAVED_ROW") : QString();
            if (none && &entry == &host) {
                note = qtTrId("SETTING_STR_HOST_FIRST");
            }
            entry.row->showNote(note, SettingsStatusLine::Sign::Info);
        }
    }
    discovery_->setBlocked(host.applied.isEmpty() ? kNeedsHost : nullptr);
    const bool dirty = std::any_of(entries_.begin(), entries_.end(), edited);
    discard_->setEnabled(dirty);
    apply_->setEnabled(dirty);
    waiting_->showText(dirty ? qtTrId("SETTING_STR_UNSAVED") : QString(), SettingsStatusLine::Sign::Info);
    if (dirty != dirty_) {
        dirty_ = dirty;
        emit link_.editsWaiting(dirty);
    }
}

void SettingsMqttCard::apply() {
    if (!dirty_) {
        return;
    }
    if (entries_.front().row->text().isEmpty()) {
        for (Entry &entry : entries_) { // without a host the others count for nothing
            if (entry.row->blocked()) {
                entry.row->setText(entry.applied);
            }
        }
    }
    for (const Entry &entry : entries_) {
        check(entry);
    }
    const auto faulty = std::find_if(entries_.begin(), entries_.end(),
                                     [](const Entry &entry) { return entry.row->faulty(); });
    if (faulty != entries_.end()) {
        faulty->row->entry()->setFocus(Qt::OtherFocusReason);
        return;
    }
    for (const Entry &entry : entries_) {
        const QString text = entry.row->text();
        if (text != entry.applied) {
            const bool number = entry.field == SettingField::MqttPort;
            link_.change(entry.field, number ? QVariant(portNumber(text)) : QVariant(text));
        }
    }
    emit link_.mqttApplied();
}

void SettingsMqttCard::discard() {
    for (Entry &entry : entries_) {
        entry.row->setText(entry.applied);
        entry.row->showFault({});
    }
    refresh();
}

void SettingsMqttCard::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape && dirty_) {
        discard();
        return;
    }
    SettingsCard::keyPressEvent(event);
}

void SettingsMqttCard::retranslate() {
    SettingsCard::retranslate();
    discard_->setText(qtTrId("SETTING_STR_DISCARD"));
    apply_->setText(qtTrId("SETTING_STR_APPLY"));
    for (const Entry &entry : entries_) {
        if (entry.row->faulty()) {
            check(entry);
        }
    }
    refresh();
}

void SettingsMqttCard::applyScale(qreal scale) {
    SettingsCard::applyScale(scale);
    const int margin = qRound(style::space::kM * scale);
    bar_->layout()->setContentsMargins(margin, qRound(style::space::kXs * scale), margin, margin);
    bar_->layout()->setSpacing(qRound(style::space::kS * scale));
    waiting_->applyScale(scale);
    applyButtonScale(*discard_, scale);
    applyButtonScale(*apply_, scale);
}

} // namespace zpsg::ui
