// The row that resets all settings; it asks in its own place first.
#pragma once

#include "ui/SettingRow.h"

class QPushButton;

namespace zpsg::ui {

class SettingsResetRow final : public SettingRow {
    Q_OBJECT

public:
    explicit SettingsResetRow(QWidget *parent);

    void retranslate() override;
    void applyScale(qreal scale) override;

signals:
    /// The user has said yes.
    void confirmed();

protected:
    void describe(const QString &name, const QString &description) override;
    void keyPressEvent(QKeyEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void ask(bool asking);

    QWidget *box_;
    QPushButton *reset_;
    QLabel *question_;
    QPushButton *yes_;
    QPushButton *no_;
};

} // namespace zpsg::ui
