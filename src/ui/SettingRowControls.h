// The rows by what is at their right: a switch, a list, a choice of a few, a button.
#pragma once

#include "ui/SettingField.h"
#include "ui/SettingRow.h"

#include <QVariant>

#include <functional>

class QPushButton;

namespace zpsg::ui {

class SegmentedControl;
class Selector;
class SettingsLink;
class ToggleSwitch;

class SettingSwitchRow final : public SettingRow {
    Q_OBJECT

public:
    SettingSwitchRow(const SettingTexts &texts, QWidget *parent);
    /// Shows and changes this field.
    SettingSwitchRow(const SettingTexts &texts, SettingsLink &link, SettingField field, QWidget *parent);

    /// Without a signal.
    void setOn(bool on);
    [[nodiscard]] bool on() const;
    void applyScale(qreal scale) override;

signals:
    void thrown(bool on);

private:
    ToggleSwitch *switch_;
};

/// What the choices of a row are called, in the language of the moment.
using SettingChoices = std::function<QStringList()>;

/// A list whose entries stand for these values of the field.
class SettingListRow final : public SettingRow {
    Q_OBJECT

public:
    SettingListRow(const SettingTexts &texts, SettingsLink &link, SettingField field, QVariantList values,
                   SettingChoices choices, QWidget *parent);

    void retranslate() override;
    void applyScale(qreal scale) override;

private:
    Selector *list_;
    QVariantList values_;
    SettingChoices choices_;
};

/// A few choices side by side, for a field of the values 0, 1 ...
class SettingSegmentsRow final : public SettingRow {
    Q_OBJECT

public:
    SettingSegmentsRow(const SettingTexts &texts, SettingsLink &link, SettingField field,
                       SettingChoices choices, QWidget *parent);

    void retranslate() override;
    void applyScale(qreal scale) override;

protected:
    void describe(const QString &name, const QString &description) override;

private:
    SegmentedControl *segments_;
    SettingChoices choices_;
};

class SettingButtonRow final : public SettingRow {
    Q_OBJECT

public:
    SettingButtonRow(const SettingTexts &texts, const char *buttonKey, QWidget *parent);

    [[nodiscard]] QPushButton *button() const { return button_; }
    using SettingRow::addLine;
    void retranslate() override;
    void applyScale(qreal scale) override;

signals:
    void pressed();

private:
    QPushButton *button_;
    const char *buttonKey_;
};

/// A button among the rows' controls.
void applyButtonScale(QPushButton &button, qreal scale);

} // namespace zpsg::ui
