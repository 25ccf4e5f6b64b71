#include "ui/SettingsSections.h"

#include "psu/AlarmEntry.h"
#include "ui/SettingRowControls.h"
#include "ui/SettingsLink.h"
#include "ui/SettingsMetricsCard.h"
#include "ui/SettingsMqttCard.h"
#include "ui/SettingsUpdateCard.h"
#include "ui/Style.h"
#include "ui/Temperature.h"

#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace zpsg::ui {
namespace {

using Field = SettingField;
using Sign = SettingsStatusLine::Sign;

constexpr const char *kAutostart = QT_TRID_NOOP("SETTING_STR_AUTOSTART");

struct Language {
    const char *code;
    const char16_t *name; ///< in itself, so that whoever reads it finds it
};
constexpr std::array kLanguages{
    Language{"en", u"English"},
    Language{"tc", u"\u7e41\u9ad4\u4e2d\u6587"},
    Language{"sc", u"\u7b80\u4f53\u4e2d\u6587"},
    Language{"fr", u"Fran\u00e7ais"},
    Language{"de", u"Deutsch"},
    Language{"jp", u"\u65e5\u672c\u8a9e"},
    Language{"ru", u"\u0420\u0443\u0441\u0441\u043a\u0438\u0439"},
    Language{"sh", u"Espa\u00f1ol"},
};

QVariantList languageCodes() {
    QVariantList codes{QString()};
    for (const Language &language : kLanguages) {
        codes.append(QString(QLatin1String(language.code)));
    }
    return codes;
}

QStringList languageNames() {
    QStringList names{qtTrId("SETTING_STR_LANGUAGE_SYSTEM")};
    for (const Language &language : kLanguages) {
        names.append(QString::fromUtf16(language.name));
    }
    return names;
}

QStringList units() { return {QStringLiteral("\u00b0C"), QStringLiteral("\u00b0F")}; }

QStringList textSizes() { return {qtTrId("SETTING_STR_TEXT_USUAL"), qtTrId("SETTING_STR_TEXT_LARGE")}; }

QStringList trayFigures() {
    return {qtTrId("SETTING_STR_TRAY_LOAD"), qtTrId("SETTING_STR_TRAY_TEMPERATURE"),
            qtTrId("SETTING_STR_TRAY_NOTHING")};
}

QString hotText() { return degreesText(psu::kHotCelsius); }

SettingsCard *makeLook(SettingsLink &link, QWidget *parent) {
    auto *card = new SettingsCard({QT_TRID_NOOP("SETTING_STR_LOOK")}, parent);
    card->addRow(
        new SettingListRow({QT_TRID_NOOP("SETTING_STR_LANGUAGE"), QT_TRID_NOOP("SETTING_STR_LANGUAGE_HINT")},
                           link, Field::Language, languageCodes(), languageNames, card));
    card->addRow(
        new SettingSegmentsRow({QT_TRID_NOOP("SETTING_STR_UNIT"), QT_TRID_NOOP("SETTING_STR_UNIT_HINT")},
                               link, Field::TemperatureUnit, units, card));
    card->addRow(
        new SettingSegmentsRow({QT_TRID_NOOP("SETTING_STR_TEXT"), QT_TRID_NOOP("SETTING_STR_TEXT_HINT")},
                               link, Field::TextSize, textSizes, card));
    return card;
}

SettingsCard *makeStart(SettingsLink &link, QWidget *parent) {
    auto *card = new SettingsCard({QT_TRID_NOOP("SETTING_STR_START")}, parent);
    auto *autostart = new SettingSwitchRow({kAutostart, QT_TRID_NOOP("SETTING_STR_AUTOSTART_HINT")}, link,
                                           Field::Autostart, card);
    auto *hidden =
        new SettingSwitchRow({QT_TRID_NOOP("SETTING_STR_HIDDEN"), QT_TRID_NOOP("SETTING_STR_HIDDEN_HINT")},
                             link, Field::StartHidden, card);
    card->addRow(autostart);
    card->addRow(hidden);
    card->addRow(
        new SettingSegmentsRow({QT_TRID_NOOP("SETTING_STR_TRAY"), QT_TRID_NOOP("SETTING_STR_TRAY_HINT")},
                               link, Field::TrayFigure, trayFigures, card));
    const auto block = [hidden](bool started) {
        hidden->setBlocked(started ? nullptr : QT_TRID_NOOP("SETTING_STR_NEEDS"), kAutostart);
    };
    block(false);
    QObject::connect(&link, &SettingsLink::shown, hidden, [block](Field field, const QVariant &value) {
        if (field == Field::Autostart) {
            block(value.toBool());
        }
    });
    QObject::connect(&link, &SettingsLink::statusShown, autostart,
                     [autostart](SettingStatus status, const QString &text, bool problem) {
                         if (status == SettingStatus::Autostart) {
                             autostart->showNote(text, problem ? Sign::Problem : Sign::Info);
                         }
                     });
    return card;
}

SettingsCard *makePower(SettingsLink &link, QWidget *parent) {
    auto *card = new SettingsCard({QT_TRID_NOOP("SETTING_STR_POWER")}, parent);
    card->addRow(new SettingSwitchRow({QT_TRID_NOOP("SETTING_STR_REMOTE_POWER"),
                                       QT_TRID_NOOP("SETTING_STR_REMOTE_POWER_HINT"),
                                       QT_TRID_NOOP("SETTING_STR_REMOTE_POWER_WARNING")},
                                      link, Field::RemotePower, card));
    return card;
}

} // namespace

SettingsSection::SettingsSection(QWidget *parent) : QWidget(parent) {
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
}

void SettingsSection::addCard(SettingsCard *card) {
    cards_.push_back(card);
    layout()->addWidget(card);
}

void SettingsSection::retranslate() {
    for (SettingsCard *card : cards_) {
        card->retranslate();
    }
}

void SettingsSection::applyScale(qreal scale) {
    layout()->setSpacing(qRound(style::space::kM * scale));
    for (SettingsCard *card : cards_) {
        card->applyScale(scale);
    }
}

SettingsSection *makeGeneralSettings(SettingsLink &link, QWidget *parent) {
    auto *section = new SettingsSection(parent);
    section->addCard(makeLook(link, section));
    section->addCard(makeStart(link, section));
    return section;
}

SettingsSection *makeEnergySettings(SettingsLink &link, QWidget *parent) {
    auto *section = new SettingsSection(parent);
    auto *cost = new SettingsCard({QT_TRID_NOOP("SETTING_STR_COST")}, section);
    auto *rate =
        new SettingButtonRow({QT_TRID_NOOP("SETTING_STR_RATE"), QT_TRID_NOOP("SETTING_STR_RATE_HINT")},
                             QT_TRID_NOOP("SETTING_STR_CHANGE"), cost);
    rate->button()->setObjectName(QStringLiteral("btnRates"));
    cost->addRow(rate);
    QObject::connect(rate, &SettingButtonRow::pressed, &link, &SettingsLink::ratesRequested);
    QObject::connect(&link, &SettingsLink::statusShown, rate,
                     [rate](SettingStatus status, const QString &text, bool problem) {
                         if (status == SettingStatus::Rate) {
                             rate->showNote(text, problem ? Sign::Problem : Sign::None);
                         }
                     });
    section->addCard(cost);
    auto *counted = new SettingsCard({QT_TRID_NOOP("SETTING_STR_COUNTED")}, section);
    counted->addRow(new SettingRow(
        {QT_TRID_NOOP("SETTING_STR_AT_WALL"), QT_TRID_NOOP("SETTING_STR_AT_WALL_HINT")}, counted));
    counted->addRow(
        new SettingRow({QT_TRID_NOOP("SETTING_STR_GAPS"), QT_TRID_NOOP("SETTING_STR_GAPS_HINT")}, counted));
    section->addCard(counted);
    return section;
}

SettingsSection *makeAlarmSettings(SettingsLink &link, QWidget *parent) {
    auto *section = new SettingsSection(parent);
    auto *warnings = new SettingsCard({QT_TRID_NOOP("SETTING_STR_WARNINGS")}, section);
    warnings->addRow(
        new SettingSwitchRow({QT_TRID_NOOP("ALARM_GROUP_VOLTAGE"), QT_TRID_NOOP("ALARM_GROUP_VOLTAGE_HINT")},
                             link, Field::VoltWarning, warnings));
    warnings->addRow(
        new SettingSwitchRow({QT_TRID_NOOP("ALARM_GROUP_FAN"), QT_TRID_NOOP("ALARM_GROUP_FAN_HINT")}, link,
                             Field::FanWarning, warnings));
    warnings->addRow(new SettingSwitchRow({QT_TRID_NOOP("ALARM_GROUP_TEMPERATURE"),
                                           QT_TRID_NOOP("ALARM_GROUP_TEMPERATURE_HINT"), nullptr, hotText},
                                          link, Field::TempWarning, warnings));
    section->addCard(warnings);
    auto *past = new SettingsCard({}, section);
    auto *log = new SettingButtonRow(
        {QT_TRID_NOOP("SETTING_STR_ALARM_LOG"), QT_TRID_NOOP("SETTING_STR_ALARM_LOG_HINT")},
        QT_TRID_NOOP("ALARM_SHOW_LOG"), past);
    past->addRow(log);
    QObject::connect(log, &SettingButtonRow::pressed, &link, &SettingsLink::alarmsRequested);
    section->addCard(past);
    return section;
}

SettingsSection *makeRemoteSettings(SettingsLink &link, QWidget *parent) {
    auto *section = new SettingsSection(parent);
    auto *socket = new SettingsCard(
        {QT_TRID_NOOP("SETTING_STR_SOCKET"), QT_TRID_NOOP("SETTING_STR_SOCKET_HINT")}, section);
    showStatus(link, SettingStatus::Socket, socket->addStatus());
    socket->addRow(new SettingSwitchRow({QT_TRID_NOOP("SETTING_STR_ALLOW_REMOTE"),
                                         QT_TRID_NOOP("SETTING_STR_ALLOW_REMOTE_HINT"),
                                         QT_TRID_NOOP("SETTING_STR_ALLOW_REMOTE_WARNING")},
                                        link, Field::SocketAllowRemote, socket));
    section->addCard(socket);
    section->addCard(new SettingsMqttCard(link, section));
    section->addCard(new SettingsMetricsCard(link, section));
    section->addCard(makePower(link, section));
    return section;
}

SettingsSection *makeSensorSettings(SettingsLink &link, QWidget *parent) {
    auto *section = new SettingsSection(parent);
    auto *card = new SettingsCard({QT_TRID_NOOP("SETTING_STR_SENSORS_CARD")}, section);
    card->addRow(new SettingSwitchRow(
        {QT_TRID_NOOP("SETTING_STR_READ_SENSORS"), QT_TRID_NOOP("SETTING_STR_READ_SENSORS_HINT")}, link,
        Field::Sensors, card));
    showStatus(link, SettingStatus::Sensors, card->addFoot());
    section->addCard(card);
    return section;
}

SettingsSection *makeUpdateSettings(SettingsLink &link, QWidget *parent) {
    auto *section = new SettingsSection(parent);
    section->addCard(new SettingsUpdateCard(link, section));
    return section;
}

} // namespace zpsg::ui
