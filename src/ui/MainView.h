// The main window's central widget: title bar, pages, and the window's own edge.
#pragma once

#include <QWidget>

class QStackedWidget;

namespace zpsg::ui {

class DashboardPage;
class TitleBar;

class MainView : public QWidget {
    Q_OBJECT

public:
    /// The least size at which every text has room.
    static constexpr QSize kMinimumSize{960, 620};
    static constexpr QSize kDefaultSize{1100, 720};

    explicit MainView(QWidget *parent = nullptr);

    [[nodiscard]] TitleBar *titleBar() const { return titleBar_; }
    [[nodiscard]] DashboardPage *dashboard() const { return dashboard_; }

    /// Disables the pages while no supply is there. What says so, and what helps, stays usable.
    void setMainEnabled(bool enabled);

    [[nodiscard]] QSize sizeHint() const override { return kDefaultSize; }

private:
    TitleBar *titleBar_;
    QStackedWidget *pages_;
    DashboardPage *dashboard_;
};

} // namespace zpsg::ui
