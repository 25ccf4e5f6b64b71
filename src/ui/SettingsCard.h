// A surface with rows of the settings page that belong together, under a title and a line on how they are.
#pragma once

#include "ui/Controls.h"
#include "ui/SettingField.h"
#include "ui/SettingRow.h"

#include <vector>

namespace zpsg::ui {

class SettingsLink;

class SettingsCard : public Card {
    Q_OBJECT

public:
    /// Title, and a line below it; both may be left out.
    SettingsCard(const SettingTexts &texts, QWidget *parent);

    /// Below the ones that are there; a child of the card.
    void addRow(SettingRow *row);
    /// A small caption above the rows that follow.
    void addCaption(const char *key);
    /// A line that can be copied: below the title, or below all rows.
    SettingsStatusLine *addStatus();
    SettingsStatusLine *addFoot();

    virtual void retranslate();
    virtual void applyScale(qreal scale);

protected:
    [[nodiscard]] QVBoxLayout *column() const { return column_; }

private:
    struct Caption {
        QLabel *label;
        QVBoxLayout *place;
        const char *key;
    };

    SettingTexts texts_;
    QLabel *title_;
    QLabel *hint_;
    SettingsStatusLine *status_ = nullptr;
    SettingsStatusLine *foot_ = nullptr;
    QVBoxLayout *head_;
    QVBoxLayout *column_;
    std::vector<SettingRow *> rows_;
    std::vector<Caption> captions_;
    bool divided_ = false; ///< the next row is divided from what is above it
};

/// Has the line show this status.
void showStatus(SettingsLink &link, SettingStatus status, SettingsStatusLine *line);

} // namespace zpsg::ui
