// New versions of the program: whether to ask for them, where, and what was found.
#pragma once

#include "ui/SettingsCard.h"

namespace zpsg::ui {

class SettingButtonRow;
class SettingSwitchRow;
class SettingsTextRow;

class SettingsUpdateCard final : public SettingsCard {
    Q_OBJECT

public:
    SettingsUpdateCard(SettingsLink &link, QWidget *parent);

    void retranslate() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void show(const QString &address);
    void edited();
    void finish();
    void takeBack();

    SettingsLink &link_;
    SettingSwitchRow *on_;
    SettingsTextRow *entry_;
    SettingButtonRow *check_;
    QString address_; ///< as applied
};

} // namespace zpsg::ui
