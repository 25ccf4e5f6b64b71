// The window comes back as it was left: as large, and with the same page.
#pragma once

#include "app/Settings.h"

#include <QObject>
#include <QTimer>

class QWidget;

namespace zpsg::ui {
class MainView;
}

namespace zpsg::app {

/// GUI thread only. What it is given outlives it.
class WindowMemory : public QObject {
    Q_OBJECT

public:
    /// Gives the window the size and the page that are kept, no larger than the screen.
    WindowMemory(QWidget &window, ui::MainView &view, Settings &settings, QObject *parent = nullptr);
    ~WindowMemory() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void restore();
    void save();

    QWidget &window_;
    ui::MainView &view_;
    Settings &settings_;
    QTimer settled_; ///< runs while the user is still at it
};

} // namespace zpsg::app
