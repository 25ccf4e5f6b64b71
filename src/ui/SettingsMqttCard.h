// The MQTT settings: a form that is applied as a whole, since half a set of them leads nowhere.
#pragma once

#include "ui/SettingsCard.h"

#include <array>

class QPushButton;

namespace zpsg::ui {

class SettingSwitchRow;
class SettingsTextRow;

class SettingsMqttCard final : public SettingsCard {
    Q_OBJECT

public:
    SettingsMqttCard(SettingsLink &link, QWidget *parent);

    void retranslate() override;
    void applyScale(qreal scale) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    static constexpr std::size_t kEntries = 9;
    struct Entry {
        SettingField field = SettingField::Count;
        SettingsTextRow *row = nullptr;
        QString applied;
    };

    void makeBar();
    void show(SettingField field, const QString &text);
    void check(const Entry &entry);
    void refresh();
    void apply();
    void discard();
    [[nodiscard]] static bool edited(const Entry &entry);

    SettingsLink &link_;
    std::array<Entry, kEntries> entries_; ///< the host is the first
    QWidget *bar_;
    SettingsStatusLine *waiting_;
    QPushButton *discard_;
    QPushButton *apply_;
    SettingSwitchRow *discovery_;
    bool dirty_ = false;
};

} // namespace zpsg::ui
