// The alarms that hold now, above the figures.
#pragma once

#include "psu/AlarmEntry.h"

#include <QWidget>

#include <array>
#include <vector>

class QGridLayout;
class QLabel;
class QPushButton;

namespace zpsg::ui {

/// Hidden while no alarm holds. One alarm comes with its advice when the window is high enough; up to three
/// stand one below the other; of more than three the first is shown, and how many more there are.
class AlarmBanner : public QWidget {
    Q_OBJECT

public:
    explicit AlarmBanner(QWidget *parent = nullptr);

    /// The alarms that hold, in the order in which they began. Paints nothing anew when that looks the same.
    void showAlarms(const std::vector<psu::AlarmEntry> &holding);
    /// To be called when the window's size has changed: whether there is room for the advice depends on it.
    void fitToWindow();

    /// All that holds, with the advice, whatever there is room for; empty when nothing does.
    [[nodiscard]] QString spokenText() const;

signals:
    /// The number of alarms that hold has changed.
    void countChanged(int count);
    void logRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    /// One alarm's line.
    struct Line {
        QLabel *title;
        QLabel *value;
        QLabel *since;
    };
    static constexpr std::size_t kLines = 3;

    void layOut();
    void refresh();
    void applyScale();

    std::vector<psu::AlarmEntry> holding_;
    QString shown_; ///< spokenText() as of the last refresh
    std::array<Line, kLines> lines_{};
    QLabel *more_;
    QLabel *advice_;
    QPushButton *log_;
    QGridLayout *grid_; ///< of the lines
    qreal scale_ = 1.0; ///< of the window, as applied
    bool roomy_ = false;
};

} // namespace zpsg::ui
