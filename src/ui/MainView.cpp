#include "ui/MainView.h"

#include "ui/AboutPage.h"
#include "ui/AlarmBanner.h"
#include "ui/AlarmsPage.h"
#include "ui/DashboardPage.h"
#include "ui/ElectricityRateWidget.h"
#include "ui/FanPage.h"
#include "ui/HistoryPage.h"
#include "ui/LightingPage.h"
#include "ui/NavigationRail.h"
#include "ui/SettingsPage.h"
#include "ui/Style.h"
#include "ui/TitleBar.h"
#include "ui/WindowFrame.h"

#include <QApplication>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace zpsg::ui {
namespace {

/// With a button for each of MainView::Page, in that order.
NavigationRail *makeNavigation(QWidget *parent) {
    auto *rail = new NavigationRail(parent);
    rail->addPage(Icon::Gauge, QT_TRID_NOOP("NAV_DASHBOARD"));
    rail->addPage(Icon::Bars, QT_TRID_NOOP("NAV_HISTORY"));
    rail->addPage(Icon::Ring, QT_TRID_NOOP("NAV_LIGHTING"));
    rail->addPage(Icon::Fan, QT_TRID_NOOP("NAV_FAN"));
    rail->addPage(Icon::Bell, QT_TRID_NOOP("NAV_ALARMS"));
    rail->addPage(Icon::Settings, QT_TRID_NOOP("NAV_SETTINGS"));
    rail->addPage(Icon::Info, QT_TRID_NOOP("NAV_ABOUT"));
    return rail;
}

} // namespace

// Tab goes through the controls in the order in which they are made.
MainView::MainView(QWidget *parent)
    : QWidget(parent)
    , titleBar_(new TitleBar(this))
    , navigation_(makeNavigation(this))
    , pages_(new QStackedWidget(this))
    , alarmBanner_(new AlarmBanner(pages_))
    , dashboard_(new DashboardPage(pages_))
    , history_(new HistoryPage(pages_))
    , lighting_(new LightingPage(pages_))
    , fan_(new FanPage(pages_))
    , alarms_(new AlarmsPage(pages_))
    , settings_(new SettingsPage(pages_))
    , about_(new AboutPage(static_cast<int>(Page::About) + 1, pages_))
    , rates_(new ElectricityRateWidget(this)) {
    setObjectName(QStringLiteral("centralMain"));
    setAttribute(Qt::WA_StyledBackground);
    setFont(style::font(style::type::kBody));
    setMinimumSize(kMinimumSize);
    layOut();

    connect(navigation_, &NavigationRail::pageChosen, this,
            [this](int page) { showPage(static_cast<Page>(page)); });
    connect(alarmBanner_, &AlarmBanner::logRequested, this, [this] { showPage(Page::Alarms); });
    connect(alarmBanner_, &AlarmBanner::countChanged, this,
            [this](int count) { navigation_->setBadge(static_cast<int>(Page::Alarms), count); });

    // The window opens with no control marked; the first Tab marks one.
    setFocusPolicy(Qt::ClickFocus);
    setFocus();

    new WindowFrame(this);
    setStyleSheet(style::sheet());
}

void MainView::layOut() {
    pages_->addWidget(dashboard_);
    pages_->addWidget(history_);
    pages_->addWidget(lighting_);
    pages_->addWidget(fan_);
    pages_->addWidget(alarms_);
    pages_->addWidget(settings_);
    pages_->addWidget(about_);
    dashboard_->setAlarmBanner(alarmBanner_);

    auto *body = new QHBoxLayout;
    body->setSpacing(0);
    body->addWidget(navigation_);
    body->addWidget(pages_, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1); // the edge
    layout->setSpacing(0);
    layout->addWidget(titleBar_);
    layout->addLayout(body, 1);
}

void MainView::showPage(Page page) {
    if (page == this->page()) {
        return;
    }
    // What has the focus on a page that goes would hand it to some control of the page that comes.
    const QWidget *focus = QApplication::focusWidget();
    if (focus != nullptr && pages_->isAncestorOf(focus)) {
        setFocus();
    }
    navigation_->setCurrent(static_cast<int>(page));
    pages_->setCurrentIndex(static_cast<int>(page));
    emit pageShown(page);
}

MainView::Page MainView::page() const { return static_cast<Page>(pages_->currentIndex()); }

void MainView::setMainEnabled(bool enabled) { dashboard_->setContentEnabled(enabled); }

void MainView::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    navigation_->fitToWindow();
    alarmBanner_->fitToWindow();
}

} // namespace zpsg::ui
