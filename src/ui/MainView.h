// The main window's central widget: title bar, navigation, pages, and the window's own edge.
#pragma once

#include <QWidget>

class QStackedWidget;

namespace zpsg::ui {

class AboutPage;
class AlarmBanner;
class AlarmsPage;
class DashboardPage;
class ElectricityRateWidget;
class FanPage;
class HistoryPage;
class LightingPage;
class NavigationRail;
class SettingsPage;
class TitleBar;

class MainView : public QWidget {
    Q_OBJECT

public:
    /// In the order of the rail.
    enum class Page { Dashboard, History, Lighting, Fan, Alarms, Settings, About };
    Q_ENUM(Page)

    /// The least size at which every text has room.
    static constexpr QSize kMinimumSize{960, 620};
    static constexpr QSize kDefaultSize{1100, 720};

    explicit MainView(QWidget *parent = nullptr);

    [[nodiscard]] TitleBar *titleBar() const { return titleBar_; }
    [[nodiscard]] NavigationRail *navigation() const { return navigation_; }
    [[nodiscard]] DashboardPage *dashboard() const { return dashboard_; }
    [[nodiscard]] HistoryPage *history() const { return history_; }
    [[nodiscard]] LightingPage *lighting() const { return lighting_; }
    [[nodiscard]] FanPage *fan() const { return fan_; }
    [[nodiscard]] AlarmsPage *alarms() const { return alarms_; }
    [[nodiscard]] SettingsPage *settings() const { return settings_; }
    [[nodiscard]] AboutPage *about() const { return about_; }
    /// Lies over the whole view while it is open.
    [[nodiscard]] ElectricityRateWidget *rates() const { return rates_; }
    /// Stands on the dashboard; the navigation counts what it shows.
    [[nodiscard]] AlarmBanner *alarmBanner() const { return alarmBanner_; }

    void showPage(Page page);
    [[nodiscard]] Page page() const;

    /// Disables the dashboard's figures of the supply while it is not there. What says so, and what helps,
    /// stays usable; so do the views below the figures and the other pages.
    void setMainEnabled(bool enabled);

    [[nodiscard]] QSize sizeHint() const override { return kDefaultSize; }

signals:
    /// Another page is shown than before.
    void pageShown(zpsg::ui::MainView::Page page);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void layOut();

    TitleBar *titleBar_;
    NavigationRail *navigation_;
    QStackedWidget *pages_;
    AlarmBanner *alarmBanner_;
    DashboardPage *dashboard_;
    HistoryPage *history_;
    LightingPage *lighting_;
    FanPage *fan_;
    AlarmsPage *alarms_;
    SettingsPage *settings_;
    AboutPage *about_;
    ElectricityRateWidget *rates_;
};

} // namespace zpsg::ui
