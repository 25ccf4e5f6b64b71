// The page of the alarms: which of them warn, and the log.
#pragma once

#include "psu/AlarmEntry.h"

#include <QTimer>
#include <QWidget>

#include <array>
#include <vector>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QStackedLayout;

namespace zpsg::ui {

class AlarmLogModel;
class AlarmLogTable;
class Card;
class EmptyState;
class PageHead;
class WarningCard;

class AlarmsPage : public QWidget {
    Q_OBJECT

public:
    explicit AlarmsPage(QWidget *parent = nullptr);

    /// The whole log in the order in which the alarms began, up to a thousand. Selection and scroll position
    /// stay with the entries that they were on.
    void showLog(const std::vector<psu::AlarmEntry> &entries);
    /// Sets a switch without a signal.
    void setWarning(psu::AlarmGroup group, bool on);

signals:
    /// The user has thrown a switch.
    void warningToggled(zpsg::psu::AlarmGroup group, bool on);
    /// The alarms that have ended are to be forgotten.
    void clearRequested();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void layOut();
    void retranslate();
    void refresh();
    void applyScale();
    void tick();

    PageHead *head_; ///< says when a condition becomes an alarm
    std::array<WarningCard *, psu::kAlarmGroups> warnings_{};
    QHBoxLayout *cards_;
    Card *card_;
    QLabel *logTitle_;
    QPushButton *clear_;
    AlarmLogModel *model_;
    AlarmLogTable *table_;
    EmptyState *empty_;
    QStackedLayout *body_; ///< the table, or what is said in its place
    QTimer clock_;         ///< runs while an alarm that holds can be seen lasting
};

} // namespace zpsg::ui
