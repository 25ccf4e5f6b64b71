// From the settings page through the whole window to where a setting takes effect.
#include "app/SettingsFeed.h"
#include "app/CvZpsGV2.h"
#include "platform/Autostart.h"
#include "simulator/SimulatedBus.h"
#include "ui/AlarmsPage.h"
#include "ui/ArcGauge.h"
#include "ui/MainView.h"
#include "ui/NavigationRail.h"
#include "ui/SettingsPage.h"
#include "ui/Temperature.h"
#include "ui/ToggleSwitch.h"

#include <QAbstractButton>
#include <QFile>
#include <QLabel>
#include <QSettings>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>

using namespace zpsg;
using ui::SettingField;

namespace {

class SettingsFeedTest : public ::testing::Test {
public:
    ~SettingsFeedTest() override { ui::setTemperatureUnit(ui::TemperatureUnit::Celsius); }

protected:
    SettingsFeedTest() {
        qputenv("XDG_RUNTIME_DIR", dir.path().toUtf8());
        qputenv("XDG_CONFIG_HOME", dir.path().toUtf8());
        bus->plug(simulator::SupplyModel("CVX-1000-D"));
        app::WindowParts parts{
            {dir.filePath(QStringLiteral("zpsg")), QStringLiteral(ZPSG_RESOURCES), dir.path()},
            bus->backend()};
        parts.socketPort = 0;
        window = std::make_unique<app::CvZpsGV2>(std::move(parts));
        page = window->view().settings();
    }

    void change(SettingField field, const QVariant &value) const { emit page->changed(field, value); }

    [[nodiscard]] QVariant kept(const char *key, const char *file = "config_ZPSG.ini") const {
        return QSettings(dir.filePath(QLatin1String(file)), QSettings::IniFormat).value(QLatin1String(key));
    }

    [[nodiscard]] bool served(int port) const {
        QTcpSocket socket;
        socket.connectToHost(QStringLiteral("127.0.0.1"), static_cast<quint16>(port));
        return socket.waitForConnected(2000);
    }

    QTemporaryDir dir;
    std::shared_ptr<simulator::SimulatedBus> bus = simulator::SimulatedBus::create();
    std::unique_ptr<app::CvZpsGV2> window;
    ui::SettingsPage *page = nullptr;
};

TEST_F(SettingsFeedTest, TakesEffectAtOnceAndIsKept) {
    auto &view = window->view();
    change(SettingField::TemperatureUnit, 1);
    EXPECT_EQ(ui::temperatureUnit(), ui::TemperatureUnit::Fahrenheit);
    EXPECT_EQ(kept("Setting/TempType").toInt(), 1);

    change(SettingField::Language, QStringLiteral("fr"));
    QCoreApplication::processEvents();
    const auto *settings = view.navigation()->findChildren<QAbstractButton *>().at(
        static_cast<int>(ui::MainView::Page::Settings));
    EXPECT_EQ(settings->text(), QStringLiteral("Param\u00E8tres"));
    change(SettingField::Language, QStringLiteral("en"));

    change(SettingField::FanWarning, false);
    int off = 0;
    for (const auto *each : view.alarms()->findChildren<ui::ToggleSwitch *>()) {
        off += each->isChecked() ? 0 : 1;
    }
    EXPECT_EQ(off, 1) << "the same switch on the alarms page";

    const QString entry = dir.filePath(QStringLiteral("autostart/zpsg.desktop"));
    change(SettingField::Autostart, true);
    QFile file(entry);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("\" open"));
    change(SettingField::Autostart, false);
    EXPECT_FALSE(QFile::exists(entry));
    std::string error;
    const std::string executable = dir.filePath(QStringLiteral("zpsg")).toStdString();
    ASSERT_TRUE(platform::setAutostart(platform::Autostart::Shown, executable, error)) << "as a setup does";
    window->findChild<app::SettingsFeed *>()->takeUpAutostart();
    EXPECT_TRUE(kept("Setting/Autostart").toBool());
    change(SettingField::Autostart, false);
    EXPECT_FALSE(QFile::exists(entry));

    change(SettingField::Sensors, true);
    EXPECT_TRUE(kept("Features/PcSensors", "config_Features.ini").toBool());
    change(SettingField::Sensors, false);
}

TEST_F(SettingsFeedTest, MetricsAreServedAndNotAnyMore) {
    QTcpServer probe;
    ASSERT_TRUE(probe.listen(QHostAddress::LocalHost));
    const int port = probe.serverPort();
    probe.close();
    change(SettingField::MetricsPort, port);
    EXPECT_TRUE(served(port));
    change(SettingField::MetricsPort, 0);
    EXPECT_FALSE(served(port));
}

TEST_F(SettingsFeedTest, AFileOfSettingsBringsEverythingBack) {
    const QString path = dir.filePath(QStringLiteral("mine.zpsgset"));
    change(SettingField::TemperatureUnit, 1);
    window->changeEleRate(0.3F);
    emit page->exportRequested(path);
    ASSERT_TRUE(QFile::exists(path));
    emit page->resetRequested();
    EXPECT_EQ(ui::temperatureUnit(), ui::TemperatureUnit::Celsius);
    EXPECT_EQ(kept("Setting/Cost_tip").toDouble(), 0.0);
    emit page->importRequested(path);
    EXPECT_EQ(ui::temperatureUnit(), ui::TemperatureUnit::Fahrenheit);
    EXPECT_EQ(kept("Setting/Cost_tip").toDouble(), 0.3) << "not 0.300000012";

    QFile broken(dir.filePath(QStringLiteral("broken.zpsgset")));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("not what it says");
    broken.close();
    emit page->importRequested(broken.fileName());
    EXPECT_EQ(kept("Setting/Cost_tip").toDouble(), 0.3) << "what can't be understood changes nothing";
    const auto *result = page->findChild<QLabel *>(QStringLiteral("lblSettingsResult"));
    ASSERT_NE(result, nullptr);
    EXPECT_TRUE(result->text().startsWith(QStringLiteral("Nothing was taken over")))
        << qPrintable(result->text());
}

} // namespace
