#include "app/CvZpsGV2.h"
#include "power/ModelTable.h"
#include "simulator/SimulatedBus.h"
#include "ui/CustomFanSpeedWidget.h"
#include "ui/FanPage.h"
#include "ui/LightingPage.h"
#include "ui/RGB12LEDWidget.h"
#include "ui/RingPicture.h"
#include "ui/ZpsCirq.h"
#include "ui/ZpsCirqDuo_Widget.h"

#include <QMessageBox>
#include <QMetaEnum>
#include <QMetaMethod>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>

using namespace zpsg;
using platform::WindowMessage;

namespace {

class ControllerTest : public ::testing::Test {
protected:
    ControllerTest() {
        qputenv("XDG_RUNTIME_DIR", dir.path().toUtf8());
        qputenv("XDG_CONFIG_HOME", dir.path().toUtf8());
    }

    std::unique_ptr<app::CvZpsGV2> make() {
        return std::make_unique<app::CvZpsGV2>(
            app::WindowParts{{dir.filePath(QStringLiteral("zpsg")), dir.path(), dir.path()},
                             bus->backend(),
                             false,
                             {{}, std::chrono::seconds(5)}});
    }

    QTimer *readTimer(app::CvZpsGV2 &window) {
        return window.findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly).at(1);
    }

    QTemporaryDir dir;
    std::shared_ptr<simulator::SimulatedBus> bus = simulator::SimulatedBus::create();
};

TEST_F(ControllerTest, StartsItsTimersInOrder) {
    const auto window = make();
    std::vector<int> intervals;
    for (const auto *timer : window->findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly)) {
        EXPECT_TRUE(timer->isActive());
        intervals.push_back(timer->interval());
    }
    EXPECT_THAT(intervals, ::testing::ElementsAre(1000, 1000, 60000, 120000, 60000, 60000, 60000));
}

// Other programs reach the slots by number: the order is a contract.
TEST_F(ControllerTest, DeclaresItsSignalsAndSlotsInTheAgreedOrder) {
    static const QMetaObject &meta = app::CvZpsGV2::staticMetaObject;
    const auto signature = [](int index) {
        return meta.method(meta.methodOffset() + index).methodSignature().toStdString();
    };
    EXPECT_EQ(signature(0), "mainToSocketHelpRGB_State(bool,int)");
    EXPECT_EQ(signature(5), "closeThisMainApp(QString)");
    EXPECT_EQ(signature(6), "controlableFanSpeed(int)");
    EXPECT_EQ(signature(10), "readInfo()");
    EXPECT_EQ(signature(14), "changeEleRate(float)");
    EXPECT_EQ(signature(23), "ClockTick()");
    EXPECT_EQ(signature(32), "ZpsCirqPlusCustomFansModeSelected(QStringList)");
    EXPECT_EQ(signature(62), "messageFromSocketHelper_stopHelloCV()");
    EXPECT_EQ(signature(63), "thermalMode12LEDSlot()");
    EXPECT_EQ(signature(68), "getMkeyFinishedSlot(QNetworkReply*)");
    EXPECT_EQ(signature(80), "getLocat_China_FinishedSlot(QNetworkReply*)");
    EXPECT_EQ(signature(82), "powerStatusConfirmSlot()");
    EXPECT_EQ(meta.methodCount() - meta.methodOffset(), 83);
}

// The table of models and the registered lists are two places that say the same.
TEST_F(ControllerTest, RegistersTheModelCodesInTheOrderOfTheTable) {
    const auto expectSame = [](const QMetaEnum &list, const auto &rows) {
        ASSERT_EQ(list.keyCount(), static_cast<int>(rows.size()));
        for (std::size_t i = 0; i < rows.size(); ++i) {
            EXPECT_EQ(list.keyToValue(std::string(rows[i].code).c_str()), static_cast<int>(i));
        }
    };
    const auto &meta = app::CvZpsGV2::staticMetaObject;
    expectSame(meta.enumerator(meta.indexOfEnumerator("CWTPowerList")), power::kCurveModels);
    expectSame(meta.enumerator(meta.indexOfEnumerator("EnhancePowerList")), power::kEnhancedModels);
}

TEST_F(ControllerTest, FirstReadingIsThereWhenTheWindowIs) {
    bus->plug(simulator::SupplyModel("CVA-0750-G"));
    const auto window = make();
    EXPECT_TRUE(window->monitor().hasReading());
    EXPECT_EQ(window->monitor().modelText(), QStringLiteral("CVA-0750-G"));
    QSettings written(dir.filePath(QStringLiteral("config_ZPSG.ini")), QSettings::IniFormat);
    for (const char *key :
         {"Setting/totalUsedTime", "Setting/totalUsedKWH", "Setting/totalUsedCost", "Setting/lastUsedTime"}) {
        EXPECT_TRUE(written.contains(QLatin1String(key))) << key;
    }
}

TEST_F(ControllerTest, RecordsFreshReadingsOnly) {
    const QString file = records::recordPath(dir.path(), 1);
    const auto window = make();
    window->saveData();
    EXPECT_FALSE(QFile::exists(file)) << "nothing was ever read";
    bus->plug(simulator::SupplyModel("CVX-1000-D"));
    window->windowMessage({platform::kDeviceChange, 0, 0});
    window->readInfo();
    window->saveData();
    window->saveData();
    EXPECT_EQ(records::readFile(file).rows.size(), 2);
    bus->unplug();
    window->windowMessage({platform::kDeviceChange, 0, 0});
    window->saveData();
    EXPECT_EQ(records::readFile(file).rows.size(), 2) << "a gap is no use";
}

TEST_F(ControllerTest, FollowsASupplyThatComesAndGoes) {
    const auto window = make();
    EXPECT_FALSE(window->monitor().hasReading());
    const WindowMessage changed{platform::kDeviceChange, 0, 0};
    EXPECT_TRUE(window->windowMessage(changed));
    EXPECT_FALSE(readTimer(*window)->isActive());
    bus->plug(simulator::SupplyModel("CVA-0750-G"));
    EXPECT_TRUE(window->windowMessage(changed));
    EXPECT_TRUE(readTimer(*window)->isActive());
    EXPECT_EQ(window->monitor().modelText(), QStringLiteral("CVA-0750-G"));
    window->readInfo();
    EXPECT_TRUE(window->monitor().hasReading());
    bus->unplug();
    EXPECT_TRUE(window->windowMessage(changed));
    EXPECT_FALSE(readTimer(*window)->isActive());
}

TEST_F(ControllerTest, ActsOnItsOwnMessagesOnly) {
    const auto window = make();
    EXPECT_TRUE(window->windowMessage({platform::kShowRequest, 0, 1}));
    EXPECT_TRUE(window->isVisible());
    window->close(); // only takes it off the screen
    EXPECT_TRUE(window->windowMessage({platform::kShowRequest, 0, 1}));
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(window->isMinimized());
    for (const std::uint32_t number : {0U, 536U, 9012U, 33024U, 33029U, 33026U, 33027U, 33028U}) {
        EXPECT_FALSE(window->windowMessage({number, 0, 0})) << number; // no Duo set is fitted
    }
}

// From the panel through the window to the supply, and back into the panel's picture.
TEST_F(ControllerTest, ThePanelShowsWhatTheLedsOfTheSupplyHold) {
    struct Case {
        const char *model;
        lighting::RingKind ring;
    };
    for (const auto &[model, ring] :
         {Case{"CVD-0650-F", lighting::RingKind::Single}, Case{"CVG-0850-Z", lighting::RingKind::Plus},
          Case{"CVX-1000-D", lighting::RingKind::Duo}}) {
        SCOPED_TRACE(model);
        bus->plug(simulator::SupplyModel(model));
        const auto kind = ring;
        const auto window = make();
        window->show();
        window->popLightModel();
        auto *page = window->findChild<ui::LightingPage *>();
        ui::RingPicture *picture = page->single()->picture();
        if (ring == lighting::RingKind::Single) {
            emit page->single()->colourChanged(
                {QStringLiteral("200"), QStringLiteral("100"), QStringLiteral("50")});
            emit page->single()->brightnessChanged(30);
        } else if (ring == lighting::RingKind::Plus) {
            lighting::PlusRingState state;
            state.lightMode = lighting::kPlusFullLighted;
            state.brightness[4] = 0.3F;
            emit page->plus()->edited(state);
            picture = page->plus()->picture();
        } else {
            lighting::DuoState state;
            state.lightMode = {6, 6};
            state.brightness[3] = 0.3;
            emit page->duo()->edited(state);
            picture = page->duo()->picture();
        }
        const auto same = [&] {
            auto report = psu::makeRequest({0x30, 0x42});
            bus->withModel([&report](simulator::SupplyModel &supply) {
                std::copy(supply.ledFrame().begin(), supply.ledFrame().end(), report.begin() + 3);
            });
            const auto held = lighting::heldBy(report, kind)->colours;
            const bool dark =
                std::all_of(held.begin(), held.end(), [](auto led) { return led == lighting::kDark; });
            return !dark && picture->leds() == held;
        };
        EXPECT_TRUE(QTest::qWaitFor(same));
        if (ring == lighting::RingKind::Duo) {
            EXPECT_TRUE(window->windowMessage({platform::kSyncOnByFans, 0, 0}));
        }
    }
}

TEST_F(ControllerTest, TheFanObeysTheSlotsAndThePage) {
    bus->plug(simulator::SupplyModel("CVX-1000-D"));
    const auto window = make();
    const auto fan = [&] {
        EXPECT_TRUE(window->monitor().waitSent(std::chrono::seconds(5)));
        simulator::FanMode mode{};
        int percent = 0;
        bus->withModel([&](simulator::SupplyModel &supply) {
            mode = supply.fanMode();
            percent = supply.customFanPercent();
        });
        return std::pair(mode, percent);
    };
    window->fansModeSelected({QStringLiteral("1")});
    EXPECT_EQ(fan().first, simulator::FanMode::Performance);
    window->ZpsCirqCustomFansModeSelected({QStringLiteral("2")});
    EXPECT_EQ(fan().first, simulator::FanMode::ZeroFan);
    auto *page = window->findChild<ui::FanPage *>();
    emit page->modeChosen({QStringLiteral("0"), QStringLiteral("btnSlient")});
    EXPECT_EQ(fan().first, simulator::FanMode::Silent);
    window->controlableFanSpeed(12);
    EXPECT_EQ(fan(), std::pair(simulator::FanMode::Custom, 30));
    emit page->customSpeedChosen(80);
    EXPECT_EQ(fan().second, 80);
    window->fansModeSelected({QStringLiteral("3")});
    EXPECT_TRUE(page->popup()->isVisibleTo(page)) << "asks for the speed";
    EXPECT_EQ(fan().second, 80);
}

TEST_F(ControllerTest, SaysThatTheLightingFileIsMissing) {
    bus->plug(simulator::SupplyModel("CVG-0850-Z"));
    const auto window = make();
    window->saveLED();
    EXPECT_EQ(window->findChild<QMessageBox *>(), nullptr);
    QFile::remove(dir.filePath(QStringLiteral("config_12LED.ini")));
    window->saveLED();
    const auto *box = window->findChild<QMessageBox *>();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->windowTitle(), QStringLiteral("ErrorMessage"));
    EXPECT_EQ(box->text(), QStringLiteral("config_12LED.ini，檔案不存在"));
}

TEST_F(ControllerTest, EndsWithTheSensorThreadRunning) {
    {
        QSettings features(dir.filePath(QStringLiteral("config_Features.ini")), QSettings::IniFormat);
        features.setValue(QStringLiteral("Features/PcSensors"), true);
    }
    const auto window = make();
    EXPECT_EQ(window->findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly).size(), 7);
}

} // namespace
