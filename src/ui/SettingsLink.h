// Between the settings page and its rows: brings them what the program sets, takes up what the user changes.
#pragma once

#include "ui/SettingField.h"

#include <QObject>
#include <QVariant>

namespace zpsg::ui {

class SettingsLink final : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// By the program.
    void setValue(SettingField field, const QVariant &value) { emit shown(field, value); }
    void setStatus(SettingStatus status, const QString &text, bool problem) {
        emit statusShown(status, text, problem);
    }
    /// By the user. The rows know it before the program, whose answer may be to set another value.
    void change(SettingField field, const QVariant &value) {
        emit shown(field, value);
        emit changed(field, value);
    }

signals:
    /// By whomever it was set.
    void shown(zpsg::ui::SettingField field, const QVariant &value);
    void statusShown(zpsg::ui::SettingStatus status, const QString &text, bool problem);
    /// How an export, an import or a reset ended.
    void resultShown(const QString &text, bool problem);

    void changed(zpsg::ui::SettingField field, const QVariant &value);
    void mqttApplied();
    /// There are edits that wait to be applied, or none any more.
    void editsWaiting(bool waiting);
    void ratesRequested();
    void alarmsRequested();
    void openFolderRequested();
    void exportRequested(const QString &path);
    void importRequested(const QString &path);
    void resetRequested();
    void updateCheckRequested();

public:
    /// Whether a text may be the address that is asked for new versions. Without a rule any may.
    using AddressRule = bool (*)(const QString &text);
    AddressRule addressRule = nullptr;
};

} // namespace zpsg::ui
