#include "ui/MainView.h"

#include "psu/SupplyMonitor.h"
#include "ui/AlarmBanner.h"
#include "ui/AlarmsPage.h"
#include "ui/ArcGauge.h"
#include "ui/DashboardPage.h"
#include "ui/HistoryPage.h"
#include "ui/LightingOptions.h"
#include "ui/LightingPage.h"
#include "ui/NavigationRail.h"
#include "ui/TitleBar.h"
#include "ui/WindowFrame.h"
#include "ui/ZpsCirqDuo_Widget.h"
#include "UiFixture.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include <array>

namespace zpsg::ui::test {
namespace {

using psu::LinkState;

class MainViewTest : public UiTest {
protected:
    MainViewTest() {
        view_.setWindowFlag(Qt::FramelessWindowHint);
        view_.titleBar()->setVersionText(QStringLiteral("ZPS G App Ver:10.20.30  Somewhere in Europe"));
        view_.dashboard()->setRatedWatts(1000.0);
        view_.dashboard()->setRemedy(QStringLiteral(
            "sudo install -m 644 /opt/zpsg/70-zpsg.rules /etc/udev/rules.d/ && sudo udevadm control "
            "--reload && sudo udevadm trigger --subsystem-match=hidraw"));
    }
    void bring(LinkState state) {
        view_.dashboard()->showLinkState(state, QStringLiteral("MODEL-1000-WITH-A-LONG-NAME"));
        view_.dashboard()->showReading(reading(), {{12.05, 5.02, 3.31}, 90.0}, now_ += 1000);
        settle();
    }

    /// That many alarms hold, for days, so that their texts are long.
    static void alarm(MainView &view, std::size_t count) {
        std::vector<psu::AlarmEntry> holding;
        for (std::size_t i = 0; i < count; ++i) {
            holding.push_back({static_cast<psu::AlarmKind>(i), 11.21,
                               QDateTime::currentDateTime().addDays(-5), QDateTime(), true});
        }
        view.alarmBanner()->showAlarms(holding);
        view.alarms()->showLog(holding);
    }

    MainView view_;
    qint64 now_ = 1'700'000'000'000;
};

/// What is wrong with where a child stands; empty when nothing is.
QString misfit(const QWidget &widget, const QWidget &view) {
    const QRect place(widget.mapTo(&view, QPoint(0, 0)), widget.size());
    QSize needed = widget.minimumSizeHint();
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        needed = label->wordWrap() ? QSize(0, label->heightForWidth(label->width())) : label->sizeHint();
    } else if (qobject_cast<const QPushButton *>(&widget) != nullptr) {
        needed = widget.sizeHint();
    }
    if (widget.width() < needed.width() || widget.height() < needed.height()) {
        return QStringLiteral("%1 x %2 needs %3 x %4")
            .arg(widget.width())
            .arg(widget.height())
            .arg(needed.width())
            .arg(needed.height());
    }
    return view.rect().contains(place) ? QString() : QStringLiteral("reaches out of the window");
}

TEST_F(MainViewTest, NothingIsCutAtAnySize) {
    view_.dashboard()->setDemo(true);
    view_.show();
    const auto expectFit = [this](const std::string &when) {
        for (const QWidget *child : view_.findChildren<QWidget *>()) {
            if (child->isVisible() && (qobject_cast<const QLabel *>(child) != nullptr ||
                                       qobject_cast<const QAbstractButton *>(child) != nullptr ||
                                       qobject_cast<const Readout *>(child) != nullptr)) {
                EXPECT_EQ(misfit(*child, view_), QString())
                    << child->metaObject()->className() << " " << qPrintable(child->objectName()) << when;
            }
        }
    };
    struct Case {
        LinkState state;
        std::size_t alarms;
    };
    const std::array cases{Case{LinkState::Live, 0},         Case{LinkState::Live, 1},
                           Case{LinkState::Live, 3},         Case{LinkState::Live, 5},
                           Case{LinkState::Silent, 0},       Case{LinkState::Silent, 2},
                           Case{LinkState::NoPermission, 0}, Case{LinkState::NoDevice, 0}};
    for (const QSize size : {QSize(960, 620), QSize(1100, 720), QSize(3840, 2160), QSize(960, 620)}) {
        view_.resize(size);
        for (const Case &c : cases) {
            alarm(view_, c.alarms);
            bring(c.state);
            ASSERT_EQ(view_.size(), size);
            expectFit(" state " + std::to_string(static_cast<int>(c.state)) + " alarms " +
                      std::to_string(c.alarms) + " width " + std::to_string(size.width()));
        }
        for (const MainView::Page page : {MainView::Page::History, MainView::Page::Lighting,
                                          MainView::Page::Fan, MainView::Page::Alarms}) {
            view_.showPage(page);
            settle();
            expectFit(" on page " + std::to_string(static_cast<int>(page)) + ", width " +
                      std::to_string(size.width()));
        }
        view_.showPage(MainView::Page::Lighting);
        view_.lighting()->setReachable(false);
        view_.lighting()->options()->showState({2, false, false, false});
        view_.lighting()->duo()->showSound(ZpsCirqDuo_Widget::SoundState::NoDevice);
        using Ring = LightingPage::Ring;
        for (const Ring ring : {Ring::None, Ring::Single, Ring::Plus, Ring::Duo}) {
            view_.lighting()->setRing(ring);
            settle();
            expectFit(" lighting, ring " + std::to_string(static_cast<int>(ring)) + ", width " +
                      std::to_string(size.width()));
        }
        view_.showPage(MainView::Page::Dashboard);
    }
}

TEST_F(MainViewTest, NothingIsPaintedWhileHidden) {
    view_.show();
    bring(LinkState::Live);
    view_.hide();
    settle();
    const PaintCounter counter(&view_);
    for (const LinkState state : {LinkState::Live, LinkState::Silent, LinkState::NoDevice, LinkState::Live}) {
        bring(state);
    }
    EXPECT_EQ(counter.paints, 0);
}

TEST_F(MainViewTest, WhatHelpsStaysUsableWhileThePagesAreDisabled) {
    view_.show();
    bring(LinkState::NoPermission);
    view_.setMainEnabled(false);
    for (const ArcGauge *gauge : view_.findChildren<ArcGauge *>()) {
        EXPECT_FALSE(gauge->isEnabled());
    }
    EXPECT_TRUE(view_.findChild<QPushButton *>(QStringLiteral("btnCopyRemedy"))->isEnabled());
    EXPECT_TRUE(view_.findChild<QLabel *>(QStringLiteral("lblRemedy"))->isEnabled());
    EXPECT_TRUE(view_.titleBar()->isEnabled());
    view_.setMainEnabled(true);
    EXPECT_TRUE(view_.findChild<ArcGauge *>()->isEnabled());
}

TEST_F(MainViewTest, AllWaysLeadToThePages) {
    QMainWindow window;
    auto *view = new MainView(&window);
    window.setCentralWidget(view);
    window.show();
    QApplication::setActiveWindow(&window);
    settle();
    EXPECT_EQ(QApplication::focusWidget(), view) << "no control is marked at first";
    view->setMainEnabled(false);
    std::vector<MainView::Page> shown;
    QObject::connect(view, &MainView::pageShown, view,
                     [&shown](MainView::Page page) { shown.push_back(page); });
    const QWidget *table = view->findChild<QTableView *>();
    auto *logButton = view->findChild<QPushButton *>(QStringLiteral("btnShowAlarms"));

    alarm(*view, 2);
    settle();
    logButton->setFocus();
    logButton->click();
    EXPECT_EQ(view->page(), MainView::Page::Alarms);
    EXPECT_EQ(view->navigation()->current(), static_cast<int>(MainView::Page::Alarms));
    EXPECT_TRUE(table->isVisible());
    EXPECT_TRUE(table->isEnabled()) << "the log can be read without a supply";
    EXPECT_EQ(QApplication::focusWidget(), view) << "the page comes with no control marked";
    QTest::keyClick(view, Qt::Key_1, Qt::ControlModifier);
    EXPECT_TRUE(view->dashboard()->isVisible());
    view->showPage(MainView::Page::Dashboard);
    QTest::keyClick(view, Qt::Key_2, Qt::ControlModifier);
    EXPECT_TRUE(view->history()->isVisible());
    EXPECT_TRUE(view->history()->isEnabled()) << "what was recorded can be seen without a supply";
    QTest::keyClick(view, Qt::Key_3, Qt::ControlModifier);
    EXPECT_TRUE(view->lighting()->isVisible());
    EXPECT_TRUE(view->lighting()->isEnabled()) << "the lights can be set without a supply";
    EXPECT_EQ(shown, (std::vector{MainView::Page::Alarms, MainView::Page::Dashboard, MainView::Page::History,
                                  MainView::Page::Lighting}));
}

TEST_F(MainViewTest, TheNavigationCountsTheAlarmsThatHold) {
    const auto *button =
        view_.navigation()->findChildren<QAbstractButton *>().at(static_cast<int>(MainView::Page::Alarms));
    const QString quiet = button->accessibleName();
    alarm(view_, 3);
    EXPECT_TRUE(button->accessibleName().contains(QLatin1Char('3')));
    alarm(view_, 0);
    EXPECT_EQ(button->accessibleName(), quiet);
}

TEST_F(MainViewTest, HasTheGradientAndTheEdge) {
    view_.resize(1100, 720);
    const QImage image = view_.grab().toImage();
    const QColor edge(184, 184, 183);
    for (const QPoint at : {QPoint(0, 0), QPoint(1099, 719), QPoint(550, 0), QPoint(0, 360)}) {
        EXPECT_EQ(image.pixelColor(at), edge) << at.x() << "," << at.y();
    }
    EXPECT_NEAR(image.pixelColor(4, 3).red(), 30, 1);
    EXPECT_NEAR(image.pixelColor(4, 360).red(), 15, 1);
    EXPECT_NEAR(image.pixelColor(4, 716).red(), 0, 1);
}

TEST_F(MainViewTest, CanBeResizedAtEveryEdgeAndCorner) {
    view_.show();
    view_.resize(1200, 800);
    settle();
    const std::array edges{
        std::pair{QPoint(1, 400), Qt::SizeHorCursor},    std::pair{QPoint(1198, 400), Qt::SizeHorCursor},
        std::pair{QPoint(600, 1), Qt::SizeVerCursor},    std::pair{QPoint(600, 798), Qt::SizeVerCursor},
        std::pair{QPoint(2, 2), Qt::SizeFDiagCursor},    std::pair{QPoint(1197, 797), Qt::SizeFDiagCursor},
        std::pair{QPoint(1197, 2), Qt::SizeBDiagCursor}, std::pair{QPoint(2, 797), Qt::SizeBDiagCursor},
    };
    for (const auto &[at, cursor] : edges) {
        const QWidget *grip = view_.childAt(at);
        ASSERT_NE(grip, nullptr);
        EXPECT_EQ(grip->cursor().shape(), cursor) << at.x() << "," << at.y();
    }
    const auto *close = view_.findChild<QWidget *>(QStringLiteral("Close_Window"));
    EXPECT_EQ(view_.childAt(close->mapTo(&view_, close->rect().center())), close)
        << "grips leave the buttons free";
}

TEST_F(MainViewTest, TextsFollowTheLanguage) {
    bring(LinkState::NoDevice);
    const QString english = view_.findChild<ArcGauge *>(QStringLiteral("gaugeFan"))->accessibleName();
    EXPECT_EQ(english, QStringLiteral("Fan"));

    class Marking : public QTranslator {
    public:
        [[nodiscard]] bool isEmpty() const override { return false; }
        [[nodiscard]] QString translate(const char * /*context*/, const char *id, const char * /*hint*/,
                                        int /*n*/) const override {
            return QStringLiteral("~") + QString::fromLatin1(id);
        }
    } marking;
    QCoreApplication::installTranslator(&marking);
    settle();
    for (const QWidget *page :
         {static_cast<QWidget *>(view_.dashboard()), static_cast<QWidget *>(view_.alarms())}) {
        for (const QLabel *label : page->findChildren<QLabel *>()) {
            if (label->isVisibleTo(page) && !label->text().isEmpty()) {
                EXPECT_TRUE(label->text().startsWith(QLatin1Char('~'))) << qPrintable(label->text());
            }
        }
    }
    for (const ArcGauge *gauge : view_.findChildren<ArcGauge *>()) {
        EXPECT_TRUE(gauge->accessibleName().startsWith(QLatin1Char('~')));
    }
    for (const QAbstractButton *button : view_.navigation()->findChildren<QAbstractButton *>()) {
        EXPECT_TRUE(button->text().startsWith(QLatin1Char('~')));
    }
    QCoreApplication::removeTranslator(&marking);
}

} // namespace
} // namespace zpsg::ui::test
