// The main window's contents in the states in which they say most.
#pragma once

#include "psu/SupplyMonitor.h"
#include "ui/HistoryQuantity.h"
#include "ui/MainView.h"

#include <QLatin1String>

#include <functional>
#include <vector>

class QPushButton;

namespace zpsg::ui::test {

/// Its weekday and its month are among the longest in most languages.
inline const QDate kToday(2026, 9, 30);

/// The contents, and somebody who plays the supply and the recordings.
class Stage {
public:
    explicit Stage(const QSize &size);

    /// Readings of a state; `volts12`, `rpm` and `celsius` may be such that they are worth a word.
    void bring(psu::LinkState state, double volts12 = 12.31, double rpm = 1234.0, double celsius = 41.0);
    /// That many alarms hold.
    void alarm(std::size_t count);
    /// An hour of a fan at this speed.
    void fan(psu::LinkState state, double rpm);
    void span(HistorySpan span);
    /// Both are among those that the minutes of a day are shown of.
    void show(HistoryQuantity one, HistoryQuantity other);
    [[nodiscard]] QPushButton &button(const char *name) const;
    template <typename Widget>
    [[nodiscard]] Widget &child() const {
        return *view.findChild<Widget *>();
    }
    /// The pointer is in the middle of it.
    static void point(QWidget &plot);

    MainView view;
};

/// What is to be seen on a page; to be played one after the other, on one stage.
struct Scene {
    const char *name;
    MainView::Page page;
    std::function<void(Stage &)> play;
};
[[nodiscard]] const std::vector<Scene> &scenes();

} // namespace zpsg::ui::test
