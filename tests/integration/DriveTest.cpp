// The whole program in a real window on an X server that nobody sees, driven with real clicks and keys: what
// the server sends, not what the toolkit is made to believe. The supply is a simulated one in this process,
// so that what arrives there can be seen.

#include "app/CvZpsGV2.h"
#include "records/RecordStore.h"
#include "simulator/SimulatedBus.h"
#include "ui/FanModeButton.h"
#include "ui/FanPage.h"
#include "ui/FanSelector.h"
#include "ui/HistoryPage.h"
#include "ui/LightingPage.h"
#include "ui/MainView.h"
#include "ui/NavigationRail.h"
#include "ui/SettingsPage.h"
#include "ui/ZpsCirqDuo_Widget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>

using namespace zpsg;
using Page = ui::MainView::Page;
using Section = ui::SettingsPage::Section;

namespace {

constexpr int kPatience = 10000;

/// Carries out what a hand would do, and returns when the server has taken it.
void hand(const QStringList &arguments) {
    QProcess process;
    process.start(QStringLiteral("xdotool"), arguments);
    ASSERT_TRUE(QTest::qWaitFor([&process] { return process.state() == QProcess::NotRunning; }, kPatience));
    ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
    QTest::qWait(30); // the event is on its way to this process
}

void clickAt(const QPoint &place) {
    hand({QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y()),
          QStringLiteral("click"), QStringLiteral("1")});
}

void click(const QWidget *widget) {
    ASSERT_NE(widget, nullptr);
    ASSERT_TRUE(QTest::qWaitFor([widget] { return widget->isVisible(); }, kPatience));
    clickAt(widget->mapToGlobal(widget->rect().center()));
}

void press(const char *key) { hand({QStringLiteral("key"), QLatin1String(key)}); }

void type(const QString &text) { hand({QStringLiteral("type"), QStringLiteral("--"), text}); }

class DriveTest : public ::testing::Test {
protected:
    void SetUp() override {
        qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
        qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
        bus->plug(simulator::SupplyModel("CVX-1000-D"));
        open();
    }

    void open() {
        window.reset(); // its last words are in the files before the next one reads them
        app::WindowParts parts{
            {home.filePath(QStringLiteral("zpsg")), QStringLiteral(ZPSG_RESOURCES), home.path()},
            bus->backend()};
        parts.socketPort = 0;
        window = std::make_unique<app::CvZpsGV2>(std::move(parts));
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get(), kPatience));
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get(), kPatience));
    }

    [[nodiscard]] ui::MainView &view() const { return window->view(); }

    [[nodiscard]] QAbstractButton *button(Page page) const {
        return view().navigation()->findChildren<QAbstractButton *>().at(static_cast<int>(page));
    }

    template <typename Widget>
    [[nodiscard]] Widget *find(const char *name) const {
        return view().findChild<Widget *>(QLatin1String(name));
    }

    /// The visible control that assistive programs call so.
    [[nodiscard]] QWidget *named(const QString &name) const {
        for (auto *widget : view().findChildren<QWidget *>()) {
            if (widget->isVisible() && widget->accessibleName() == name &&
                widget->focusPolicy() != Qt::NoFocus) {
                return widget;
            }
        }
        return nullptr;
    }

    [[nodiscard]] QVariant setting(const char *file, const char *key) const {
        return QSettings(home.filePath(QLatin1String(file)), QSettings::IniFormat).value(QLatin1String(key));
    }

    QTemporaryDir home;
    std::shared_ptr<simulator::SimulatedBus> bus = simulator::SimulatedBus::create();
    std::unique_ptr<app::CvZpsGV2> window;
};

TEST_F(DriveTest, EveryPageByMouseAndByKey) {
    for (int page = static_cast<int>(Page::About); page >= 0; --page) {
        click(button(static_cast<Page>(page)));
        EXPECT_EQ(view().page(), static_cast<Page>(page));
    }
    for (int page = static_cast<int>(Page::About); page >= 0; --page) {
        press(("ctrl+" + std::to_string(page + 1)).c_str());
        EXPECT_EQ(view().page(), static_cast<Page>(page));
    }
}

// With the keyboard alone every control is reached, and each shows that it is.
TEST_F(DriveTest, TabReachesEveryControlOfEveryPage) {
    for (int page = 0; page <= static_cast<int>(Page::About); ++page) {
        press(("ctrl+" + std::to_string(page + 1)).c_str());
        QSet<const QWidget *> reached;
        for (int steps = 0; steps < 120; ++steps) {
            QTest::keyClick(QApplication::focusWidget() != nullptr ? QApplication::focusWidget()
                                                                   : window.get(),
                            Qt::Key_Tab);
            const QWidget *focus = QApplication::focusWidget();
            if (focus == nullptr || reached.contains(focus)) {
                break;
            }
            reached.insert(focus);
            EXPECT_TRUE(focus->isVisible());
            EXPECT_FALSE(focus->accessibleName().isEmpty() &&
                         (qobject_cast<const QAbstractButton *>(focus) == nullptr ||
                          qobject_cast<const QAbstractButton *>(focus)->text().isEmpty()) &&
                         qobject_cast<const QLabel *>(focus) == nullptr)
                << page << ": " << focus->metaObject()->className() << " " << qPrintable(focus->objectName())
                << " has no name";
        }
        EXPECT_GE(reached.size(), 2) << page;
    }
}

TEST_F(DriveTest, AnotherLanguageAtOnceAndAtTheNextStart) {
    press("ctrl+6");
    view().settings()->showSection(Section::General);
    auto *list = qobject_cast<QComboBox *>(named(qtTrId("SETTING_STR_LANGUAGE")));
    ASSERT_NE(list, nullptr);
    click(list);
    const int german = list->findText(QStringLiteral("Deutsch"));
    ASSERT_GE(german, 0);
    press("Home");
    for (int i = 0; i < german; ++i) {
        press("Down");
    }
    press("Return");
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return button(Page::Settings)->text() == QStringLiteral("Einstellungen"); }, kPatience))
        << qPrintable(button(Page::Settings)->text());
    EXPECT_EQ(setting("config_ZPSG.ini", "Setting/Language").toString(), QStringLiteral("de"));
    EXPECT_EQ(QLocale().decimalPoint(), QLatin1Char(','));
    open();
    EXPECT_EQ(button(Page::Settings)->text(), QStringLiteral("Einstellungen"));
    EXPECT_EQ(view().page(), Page::Settings) << "the window comes back with its page";
}

TEST_F(DriveTest, TheFanDoesWhatIsClicked) {
    press("ctrl+4");
    click(find<QWidget>("btnFanMode")); // opens the selector of the Duo set's fan
    const auto isIn = [this](fan::FanMode wanted) {
        bool same = false;
        bus->withModel([&](simulator::SupplyModel &supply) {
            same = static_cast<int>(supply.fanMode()) ==
                   fan::kFanModes.at(static_cast<std::size_t>(wanted)).modeByte;
        });
        return same;
    };
    for (const auto wanted : {fan::FanMode::Performance, fan::FanMode::Silent}) {
        if (auto *opener = find<QWidget>("btnFanMode"); !view().fan()->selector()->isVisible()) {
            click(opener);
        }
        click(view().fan()->selector()->button(wanted));
        EXPECT_TRUE(QTest::qWaitFor([&] { return isIn(wanted); }, kPatience));
    }
}

TEST_F(DriveTest, TheLightsGoOffAndOnAgain) {
    press("ctrl+3");
    const auto dark = [this] {
        auto report = psu::makeRequest({0x30, 0x42});
        bus->withModel([&report](simulator::SupplyModel &supply) {
            std::copy(supply.ledFrame().begin(), supply.ledFrame().end(), report.begin() + 3);
        });
        const auto leds = lighting::heldBy(report, lighting::RingKind::Duo)->colours;
        return std::all_of(leds.begin(), leds.end(), [](auto led) { return led == lighting::kDark; });
    };
    auto *lights = view().lighting()->duo()->findChild<QAbstractButton *>(QStringLiteral("switchLights"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !dark(); }, kPatience));
    click(lights);
    EXPECT_TRUE(QTest::qWaitFor(dark, kPatience));
    lights->setFocus(Qt::TabFocusReason);
    press("space");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dark(); }, kPatience));
}

TEST_F(DriveTest, ARateIsEnteredAndKept) {
    press("ctrl+6");
    view().settings()->showSection(Section::Energy);
    click(find<QWidget>("btnRates"));
    ASSERT_TRUE(QTest::qWaitFor(
        [] { return qobject_cast<QLineEdit *>(QApplication::focusWidget()) != nullptr; }, kPatience));
    press("ctrl+a");
    type(QStringLiteral("0.25"));
    press("Return");
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return setting("config_ZPSG.ini", "Setting/Cost_tip").toDouble() == 0.25; }, kPatience));
}

TEST_F(DriveTest, HistoryIsExportedToAFile) {
    window->saveData(); // a minute to be exported
    press("ctrl+2");
    click(find<QWidget>("btnHistoryExport"));
    click(find<QWidget>("btnExportFile"));
    QFileDialog *dialog = nullptr;
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return (dialog = window->findChild<QFileDialog *>()) != nullptr && dialog->isVisible(); },
        kPatience));
    const QString path = home.filePath(QStringLiteral("out.csv"));
    dialog->activateWindow();
    QTest::qWait(200);
    press("ctrl+a");
    type(path);
    press("Return");
    ASSERT_TRUE(QTest::qWaitFor([&path] { return QFile::exists(path); }, kPatience));
    QFile file(path);
    ASSERT_TRUE(QTest::qWaitFor(
        [&file] {
            file.close();
            return file.open(QIODevice::ReadOnly) && file.readAll().count('\n') >= 2;
        },
        kPatience));
}

TEST_F(DriveTest, SettingsAreExportedChangedAndBroughtBack) {
    press("ctrl+6");
    view().settings()->showSection(Section::Alarms);
    auto *warn = named(qtTrId("ALARM_GROUP_FAN"));
    click(warn);
    EXPECT_FALSE(setting("config_ZPSG.ini", "Setting/FanWarning").toBool());
    view().settings()->showSection(Section::Data);
    click(find<QWidget>("btnReset"));
    click(find<QWidget>("btnResetYes"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return setting("config_ZPSG.ini", "Setting/FanWarning").toBool(); },
                                kPatience));
}

TEST_F(DriveTest, TheWindowComesBackAsItWasLeft) {
    press("ctrl+5");
    window->resize(1200, 740);
    open();
    EXPECT_EQ(window->size(), QSize(1200, 740));
    EXPECT_EQ(view().page(), Page::Alarms);
}

} // namespace
