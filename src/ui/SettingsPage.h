// The page of the settings: a list of sections, and the rows of the chosen one.
#pragma once

#include "ui/SettingField.h"

#include <QVariant>
#include <QWidget>

class QHBoxLayout;

namespace zpsg::ui {

class PageHead;
class SettingsLink;
class SettingsScroll;
class SettingsSectionList;

/// Changes are told at once, except those of the MQTT form, which are told when the user applies them.
class SettingsPage final : public QWidget {
    Q_OBJECT

public:
    enum class Section { General, Energy, Alarms, Remote, Sensors, Updates, Data };

    explicit SettingsPage(QWidget *parent = nullptr);

    /// Shows a value, of the type that stands at the field, without a signal. What the user is writing in the
    /// MQTT form stays unless the value of that field is another one than before.
    void setValue(SettingField field, const QVariant &value);
    /// In plain words; an empty text takes the line away.
    void setStatus(SettingStatus status, const QString &text, bool problem = false);
    /// How the last export, import or reset ended; an empty text takes it away.
    void showResult(const QString &text, bool problem);
    /// Which texts may be the address that is asked for new versions; any, while there is no rule.
    void setAddressRule(bool (*rule)(const QString &text));
    void showSection(Section section);
    [[nodiscard]] Section section() const;

signals:
    /// The user has changed this.
    void changed(zpsg::ui::SettingField field, const QVariant &value);
    /// The MQTT form is applied: all of its changes have been told.
    void mqttApplied();
    void ratesRequested();
    void alarmsRequested();
    void openFolderRequested();
    void exportRequested(const QString &path);
    void importRequested(const QString &path);
    /// The user was asked and has agreed.
    void resetRequested();
    /// The user wants to know now whether there is a newer version.
    void updateCheckRequested();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void makeSections();
    void forwardSignals();
    void retranslate();
    void applyScale();

    SettingsLink *link_;
    PageHead *head_;
    SettingsSectionList *list_;
    SettingsScroll *scroll_;
    QHBoxLayout *body_;
    qreal scale_ = 0.0; ///< of the window, as applied
};

} // namespace zpsg::ui
