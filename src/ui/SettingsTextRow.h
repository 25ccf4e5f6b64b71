// A row of the settings page with an entry for text, a number, a password or a file's path.
#pragma once

#include "ui/SettingRow.h"

class QPushButton;

namespace zpsg::ui {

class SettingsEntry;

class SettingsTextRow final : public SettingRow {
    Q_OBJECT

public:
    enum class Kind {
        Plain,
        Number, ///< a narrow one
        Secret, ///< shown as dots, until its button shows it
        File,   ///< with a button for a file dialog
    };

    SettingsTextRow(const SettingTexts &texts, Kind kind, QWidget *parent);

    /// Without blanks around it, except a password.
    [[nodiscard]] QString text() const;
    /// Without a signal.
    void setText(const QString &text);
    /// What is wrong, in words; empty for nothing.
    void showFault(const QString &fault);
    [[nodiscard]] bool faulty() const { return faulty_; }
    [[nodiscard]] SettingsEntry *entry() const { return entry_; }
    void retranslate() override;
    void applyScale(qreal scale) override;

signals:
    /// By the user.
    void edited();
    /// The user is done with it and goes elsewhere.
    void left();
    void returnPressed();

protected:
    void describe(const QString &name, const QString &description) override;
    void hideEvent(QHideEvent *event) override;

private:
    void makeButton();
    void chooseFile();
    void refreshButton();

    Kind kind_;
    QWidget *box_;
    SettingsEntry *entry_;
    QPushButton *button_ = nullptr;
    bool faulty_ = false;
};

} // namespace zpsg::ui
