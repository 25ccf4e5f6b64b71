#include "psu/SupplyMonitor.h"
#include "simulator/SimulatedBus.h"

#include <QLoggingCategory>
#include <QSignalSpy>

#include <gmock/gmock.h>

#include <cmath>
#include <thread>

using namespace zpsg;
using namespace std::chrono_literals;
using psu::LinkState;
using simulator::Fault;
using simulator::SupplyModel;

namespace {

constexpr int kLong = 30000;

/// The debug lines written while it lives.
class Messages {
public:
    Messages() {
        lines().clear();
        previous_ = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &text) { lines().append(text); });
    }
    ~Messages() { qInstallMessageHandler(previous_); }
    static QStringList &lines() {
        static QStringList kept;
        return kept;
    }

private:
    QtMessageHandler previous_;
};

class SupplyMonitorTest : public ::testing::Test {
protected:
    SupplyMonitorTest() {
        qRegisterMetaType<zpsg::psu::LinkState>();
        told.acVolts = 117.5;
        told.volts12 = 12.0625;
        told.amps12 = 33.5;
        told.volts5 = 4.96875;
        told.amps5 = 3.25;
        told.volts33 = 3.28125;
        told.amps33 = 1.75;
        told.celsius = 47.0;
        told.fanRpm = 1023.0;
    }

    void plug(std::uint16_t product = psu::kMainProductId) {
        SupplyModel model("CVA-0750-G", "SN42");
        model.setQuantities(told);
        bus->plug(std::move(model), product);
    }

    void fault(Fault kind, std::size_t length = 2) {
        bus->withModel([&](SupplyModel &model) {
            model.setFault(kind);
            model.setFaultLength(length);
        });
    }

    double value(const char *key) { return monitor.record().number(QLatin1String(key)); }

    void expectTold(double relative = 0.0) {
        const auto near = [&](const char *key, double expected) {
            EXPECT_NEAR(value(key), expected, expected * relative + 1e-9) << key;
        };
        near("VIN", told.acVolts);
        near("VVOut12", told.volts12);
        near("VIOut12", told.amps12);
        near("VVOut5", told.volts5);
        near("VIOut5", told.amps5);
        near("VVOut33", told.volts33);
        near("VIOut33", told.amps33);
        near("Temp", told.celsius);
        near("FanSpeed", told.fanRpm);
        EXPECT_NEAR(value("WATTS"), told.outputWatts(), told.outputWatts() * (relative + 1e-5));
    }

    std::shared_ptr<simulator::SimulatedBus> bus = simulator::SimulatedBus::create();
    psu::MonitorTiming timing{{100ms, 10ms, 5ms},
                              5s}; // patient: nothing here may depend on how busy the machine is
    simulator::Quantities told;
    psu::SupplyMonitor monitor{bus->backend(), timing};
};

TEST_F(SupplyMonitorTest, ReadsWhatTheMainPathWasTold) {
    plug();
    QSignalSpy taken(&monitor, &psu::SupplyMonitor::readingTaken);
    EXPECT_FALSE(monitor.hasReading());
    ASSERT_TRUE(monitor.openAtStart());
    EXPECT_TRUE(monitor.mainPathPresent());
    EXPECT_EQ(monitor.readModelText(), QStringLiteral("CVA-0750-G"));
    EXPECT_EQ(monitor.serialText(), QStringLiteral("SN42"));
    EXPECT_FALSE(monitor.noSerial());
    monitor.readInfo();
    expectTold();
    EXPECT_EQ(taken.count(), 1);
    EXPECT_EQ(value("EFF"), 60.2); // no pass of this path fills it
    bus->withModel([](SupplyModel &model) {
        std::string commands;
        for (const auto &report : model.log()) {
            commands.push_back(static_cast<char>(report[1]));
        }
        EXPECT_EQ(commands, "1>=456789:;3"); // wake-up, serial, model, then the pass in its order
    });
}

TEST_F(SupplyMonitorTest, ReadsWhatTheRawPathWasToldAndLeavesTheMainOneAlone) {
    plug(psu::kRawProductId);
    ASSERT_TRUE(monitor.connectPsu());
    EXPECT_TRUE(monitor.rawPathPresent());
    EXPECT_FALSE(monitor.mainPathPresent());
    monitor.readInfo();
    expectTold(1.0 / 510.0);
    EXPECT_NEAR(value("EFF"), 89.0, 5.0);
    EXPECT_EQ(monitor.readModelText(), QStringLiteral("CVA-0750-G"));
    EXPECT_EQ(monitor.serialText(), QStringLiteral("SN42"));
    EXPECT_EQ(std::string(monitor.rawBlock(1).begin(), monitor.rawBlock(1).begin() + 4), "SN42");
    bus->withModel([](SupplyModel &model) { EXPECT_TRUE(model.log().empty()); });
    bus->unplug();
    const double before = value("VVOut12");
    monitor.readInfo();
    EXPECT_EQ(value("VVOut12"), before);
    EXPECT_FALSE(monitor.readRawSample());
}

TEST_F(SupplyMonitorTest, WithoutASupplyItSaysSoAndShowsNoBox) {
    QSignalSpy boxes(&monitor, &psu::SupplyMonitor::message);
    Messages messages;
    QLoggingCategory::setFilterRules(QStringLiteral("zpsg.psu.debug=true"));
    EXPECT_FALSE(monitor.connectPsu());
    QLoggingCategory::setFilterRules(QString());
    EXPECT_EQ(Messages::lines(), QStringList(QStringLiteral("!handle")));
    EXPECT_EQ(boxes.count(), 0);
    EXPECT_EQ(monitor.state(), LinkState::NoDevice);
    monitor.readInfo();
    EXPECT_FALSE(monitor.hasReading());
    bus->failInitialise(true);
    EXPECT_FALSE(monitor.connectPsu());
    ASSERT_EQ(boxes.count(), 1);
    EXPECT_EQ(boxes[0][0].toString(), QStringLiteral("hid_init"));
    plug();
    EXPECT_TRUE(monitor.connectPsu()); // carries on
    bus->denyAccess(true);
    EXPECT_FALSE(monitor.connectPsu());
    EXPECT_EQ(monitor.state(), LinkState::NoPermission);
}

TEST_F(SupplyMonitorTest, BadRepliesLeaveTheLastGoodValues) {
    struct Case {
        Fault fault;
        std::size_t length;
    };
    plug();
    ASSERT_TRUE(monitor.connectPsu());
    monitor.readInfo();
    told.amps12 = 1.0;
    bus->withModel([this](SupplyModel &model) { model.setQuantities(told); });
    told.amps12 = 33.5;
    std::vector<Case> cases{{Fault::Silent, 0}};
    for (std::size_t length = 1; length < 4; ++length) {
        cases.push_back({Fault::Short, length});
    }
    for (const auto &[kind, length] : cases) {
        fault(kind, length);
        monitor.readInfo();
        expectTold();
        EXPECT_EQ(monitor.state(), LinkState::Silent);
        fault(Fault::None);
        ASSERT_TRUE(monitor.connectPsu());
    }
    fault(Fault::Garbage);
    for (int i = 0; i < 50; ++i) {
        monitor.readInfo();
    }
    const auto &entries = monitor.record().entries();
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        bool number = false;
        EXPECT_TRUE(std::isfinite(entry->toDouble(&number)));
        EXPECT_TRUE(number) << entry.key().toStdString();
    }
    fault(Fault::None);
    bus->withModel([this](SupplyModel &model) { model.setQuantities(told); });
    monitor.readInfo();
    monitor.readInfo();
    expectTold();
}

TEST_F(SupplyMonitorTest, AnAnswerToAnotherQuestionIsKeptUnderItsOwnKey) {
    plug();
    ASSERT_TRUE(monitor.connectPsu());
    fault(Fault::WrongEcho); // 12 V volts arrive as 5 V volts, and so on
    monitor.readInfo();
    EXPECT_EQ(value("VVOut5"), told.volts12);
    EXPECT_EQ(value("VIOut5"), told.amps12);
    EXPECT_EQ(value("VIN"), told.fanRpm);
}

TEST_F(SupplyMonitorTest, ASlowSupplyIsReadLateAndHoldsNobody) {
    plug();
    psu::SupplyMonitor hasty(bus->backend(), {{5s, 10ms, 5ms}, 1ms});
    QSignalSpy due(&hasty, &psu::SupplyMonitor::reconnectDue);
    if (!hasty.connectPsu()) {
        ASSERT_TRUE(due.wait(kLong)); // the attempt had taken longer than a millisecond
        ASSERT_TRUE(hasty.connectPsu());
    }
    bus->blockWrites(true);
    QSignalSpy taken(&hasty, &psu::SupplyMonitor::readingTaken);
    hasty.readInfo();
    hasty.readInfo(); // the pass is still running: no second one is started
    EXPECT_EQ(taken.count(), 0);
    bus->blockWrites(false);
    ASSERT_TRUE(taken.wait(kLong));
    EXPECT_EQ(taken.count(), 1);
    EXPECT_EQ(hasty.record().number(QStringLiteral("VVOut12")), told.volts12);
}

TEST_F(SupplyMonitorTest, AConnectionThatBlocksArrivesLater) {
    plug();
    psu::SupplyMonitor hasty(bus->backend(), {{5s, 10ms, 5ms}, 1ms});
    bus->blockWrites(true);
    QSignalSpy due(&hasty, &psu::SupplyMonitor::reconnectDue);
    EXPECT_FALSE(hasty.connectPsu());
    while (bus->openDevices() == 0) { // the link's thread has got as far as the write
        std::this_thread::yield();
    }
    EXPECT_FALSE(hasty.connectPsu());  // still the same attempt
    EXPECT_EQ(bus->openAttempts(), 2); // one for each product
    bus->blockWrites(false);
    ASSERT_TRUE(due.wait(kLong));
    EXPECT_TRUE(hasty.connectPsu());
    EXPECT_TRUE(hasty.mainPathPresent());
    EXPECT_EQ(bus->openDevices(), 1);
}

TEST_F(SupplyMonitorTest, SurvivesUnpluggingAndComesBackAsWhatIsPlugged) {
    QSignalSpy due(&monitor, &psu::SupplyMonitor::reconnectDue);
    for (int round = 0; round < 100; ++round) {
        const bool raw = round % 3 == 2;
        plug(raw ? psu::kRawProductId : psu::kMainProductId);
        ASSERT_TRUE(monitor.connectPsu());
        monitor.readInfo();
        ASSERT_EQ(monitor.state(), LinkState::Live);
        ASSERT_EQ(monitor.rawPathPresent(), raw);
        bus->unplug();
        monitor.readInfo();
        ASSERT_FALSE(monitor.connectPsu());
        ASSERT_EQ(monitor.state(), LinkState::NoDevice);
    }
    EXPECT_EQ(bus->openDevices(), 0);
    EXPECT_EQ(due.count(), 67); // each loss on the main path asks once to connect again
    expectTold(1.0 / 510.0);
}

} // namespace
