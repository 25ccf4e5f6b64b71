// The sections of the settings page.
#pragma once

#include "ui/SettingsCard.h"

#include <QWidget>

#include <vector>

namespace zpsg::ui {

/// Cards, one below the other.
class SettingsSection final : public QWidget {
    Q_OBJECT

public:
    explicit SettingsSection(QWidget *parent);

    /// A child of the section.
    void addCard(SettingsCard *card);
    void retranslate();
    void applyScale(qreal scale);

private:
    std::vector<SettingsCard *> cards_;
};

SettingsSection *makeGeneralSettings(SettingsLink &link, QWidget *parent);
SettingsSection *makeEnergySettings(SettingsLink &link, QWidget *parent);
SettingsSection *makeAlarmSettings(SettingsLink &link, QWidget *parent);
SettingsSection *makeRemoteSettings(SettingsLink &link, QWidget *parent);
SettingsSection *makeSensorSettings(SettingsLink &link, QWidget *parent);
SettingsSection *makeUpdateSettings(SettingsLink &link, QWidget *parent);
SettingsSection *makeDataSettings(SettingsLink &link, QWidget *parent);

} // namespace zpsg::ui
