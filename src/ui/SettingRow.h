// A row of the settings page: what the setting is called, a line on what it does, and its control at the
// right.
#pragma once

#include "ui/SettingsStatusLine.h"

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QSpacerItem;
class QVBoxLayout;

namespace zpsg::ui {

/// Translation keys.
struct SettingTexts {
    const char *name = nullptr;
    const char *hint = nullptr;
    const char *warning = nullptr;       ///< what to be careful about; always in view
    QString (*hintArgument)() = nullptr; ///< for %1 in the hint
};

/// One without a control only tells something.
class SettingRow : public QWidget {
    Q_OBJECT

public:
    SettingRow(const SettingTexts &texts, QWidget *parent);

    [[nodiscard]] QString name() const { return qtTrId(texts_.name); }
    /// A line below the others; an empty text takes it away.
    void showNote(const QString &text, SettingsStatusLine::Sign sign);
    /// Switches the control off and says why, or on again with a key that is null. `%1` in the reason's text
    /// stands for `what`, a key as well. A row that does not `tell` leaves that to the row that it depends
    /// on.
    void setBlocked(const char *reasonKey, const char *what = nullptr, bool tell = true);
    [[nodiscard]] bool blocked() const { return blockedBy_ != nullptr; }
    /// A mark at its edge: what is set here is not applied yet.
    void setMarked(bool marked);
    /// A line above divides it from the row before.
    void setDivided(bool divided) { divided_ = divided; }

    virtual void retranslate();
    virtual void applyScale(qreal scale);

protected:
    /// The control, a child of the row; at most one. So much of it at its right is not to be seen, in a
    /// window of the usual size.
    void setControl(QWidget *control, qreal overhang = 0.0);
    /// A further line below the words.
    void addLine(QWidget *line);
    /// Names the control for assistive programs. `name` and `description` are the row's.
    virtual void describe(const QString &name, const QString &description);
    void paintEvent(QPaintEvent *event) override;

private:
    void refresh();

    SettingTexts texts_;
    QLabel *name_;
    QLabel *hint_;
    SettingsStatusLine *warning_;
    SettingsStatusLine *note_;
    SettingsStatusLine *reason_;
    QWidget *control_ = nullptr;
    qreal overhang_ = 0.0;
    QVBoxLayout *words_;
    QSpacerItem *lineGap_ = nullptr; ///< above a further line
    QHBoxLayout *row_;
    const char *blockedBy_ = nullptr;
    const char *blockedWhat_ = nullptr;
    bool tellsReason_ = true;
    bool marked_ = false;
    bool divided_ = false;
};

} // namespace zpsg::ui
