// The panel for an export: what goes into the file, how far it has come, and how it ended.
#pragma once

#include "ui/HistoryControls.h"
#include "ui/HistoryData.h"

class QHBoxLayout;
class QProgressBar;
class QStackedLayout;

namespace zpsg::ui {

class SegmentedControl;

class HistoryExport final : public Card {
    Q_OBJECT

public:
    explicit HistoryExport(QWidget *parent);

    /// Asks what to export, with this range to begin with; while an export runs that stays in view.
    void open(const HistoryRange &range, const QDate &today);
    void showProgress(double fraction);
    void showDone(const QString &message, bool failed);
    [[nodiscard]] bool running() const;
    void applyScale(qreal scale);

signals:
    void exportWanted(const QDate &from, const QDate &to, bool minutes, const QString &fileName);
    void exportCancelled();
    /// An export has begun, or ended.
    void runningChanged();
    /// The panel is no longer needed.
    void closed();

protected:
    void changeEvent(QEvent *event) override;

private:
    enum Step { Ask, Running, Done };
    class Sign;

    [[nodiscard]] QWidget *makeAsk();
    [[nodiscard]] QWidget *makeRunning();
    [[nodiscard]] QWidget *makeDone();
    void retranslate();
    void chooseFile();
    void begin(const QString &fileName);
    void go(Step step);

    QStackedLayout *steps_;
    HistoryDateEdit *from_ = nullptr;
    HistoryDateEdit *to_ = nullptr;
    SegmentedControl *kind_ = nullptr;
    QLabel *askTitle_ = nullptr;
    QPushButton *file_ = nullptr;
    QPushButton *dismiss_ = nullptr;
    QLabel *progressText_ = nullptr;
    QProgressBar *progress_ = nullptr;
    QPushButton *cancel_ = nullptr;
    Sign *sign_ = nullptr;
    ElidedLabel *result_ = nullptr;
    QPushButton *close_ = nullptr;
    QString folder_; ///< of the last file
};

} // namespace zpsg::ui
