// The metrics: whether they are offered, and on which port.
#pragma once

#include "ui/SettingsCard.h"

namespace zpsg::ui {

class SettingSwitchRow;
class SettingsTextRow;

class SettingsMetricsCard final : public SettingsCard {
    Q_OBJECT

public:
    SettingsMetricsCard(SettingsLink &link, QWidget *parent);

    void retranslate() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void show(int port);
    void edited();
    void finish(bool leaving);
    void takeBack();

    SettingsLink &link_;
    SettingSwitchRow *on_;
    SettingsTextRow *entry_;
    int port_; ///< while they are off: the one that they come back on
};

} // namespace zpsg::ui
