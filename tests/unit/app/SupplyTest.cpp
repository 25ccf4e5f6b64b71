#include "app/Supply.h"
#include "power/CurveFile.h"
#include "simulator/SimulatedBus.h"

#include <QDir>
#include <QLoggingCategory>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace zpsg;
using namespace std::chrono_literals;
using simulator::Fault;
using simulator::SupplyModel;

namespace {

QStringList &debugLines() {
    static QStringList lines;
    return lines;
}

class SupplyTest : public ::testing::Test {
protected:
    SupplyTest() {
        QDir(dir.path()).mkdir(QStringLiteral("BOX"));
        QJsonObject band;
        for (int k = 1; k <= 120; ++k) {
            band.insert(QString::number(k), 88.5);
        }
        QString why;
        EXPECT_TRUE(power::writeCurveFile(dir.filePath(QStringLiteral("BOX/ZPSG_DUO_100.ini")),
                                          {{QStringLiteral("dataSize"), 120},
                                           {QStringLiteral("AC115"), band},
                                           {QStringLiteral("AC230"), band}},
                                          why));
    }

    std::unique_ptr<app::Supply> make(std::chrono::milliseconds patience = 5s) {
        return std::make_unique<app::Supply>(bus->backend(), psu::MonitorTiming{{100ms, 10ms, 5ms}, patience},
                                             QStringList(dir.path()));
    }

    QTemporaryDir dir;
    std::shared_ptr<simulator::SimulatedBus> bus = simulator::SimulatedBus::create();
};

TEST_F(SupplyTest, IdentifiesWhatItKnowsAndReadsWhatItDoesNot) {
    struct Case {
        std::string model;
        std::uint16_t product;
        bool found;
        float ratedWatts;
        bool efficiency;
    };
    const auto main = psu::kMainProductId;
    const auto raw = psu::kRawProductId;
    const std::string spaced("C\0V\0X\0-1000-D", 13);
    for (const auto &[model, product, found, ratedWatts, efficiency] :
         {Case{"CVX-1000-D", main, true, 1000, true}, Case{spaced, main, true, 1000, true},
          Case{"CVX1000D-EU", main, true, 1000, true}, Case{"CVA-0750-G", main, false, 0, false},
          Case{"CVE-0850-A", main, false, 0, false}, Case{"", main, false, 0, false},
          Case{std::string(62, 'X'), main, false, 0, false}, Case{"\xE9\xFF\x80", main, false, 0, false},
          Case{"CVE-0850-A", raw, true, 850, true}, Case{"ANOTHER", raw, true, 0, true}}) {
        SCOPED_TRACE(model);
        bus->plug(SupplyModel(model), product);
        const auto supply = make();
        EXPECT_EQ(supply->identifyModel(), found);
        EXPECT_EQ(supply->profile().ratedWatts, ratedWatts);
        supply->monitor().readInfo();
        EXPECT_TRUE(supply->monitor().hasReading());
        EXPECT_NEAR(supply->monitor().record().number(QStringLiteral("VVOut12")), 12.18, 0.1);
        EXPECT_EQ(supply->monitor().record().measured(QStringLiteral("EFF")), efficiency);
        EXPECT_TRUE(supply->monitor().noSerial());
    }
}

TEST_F(SupplyTest, WritesDownHowItFoundTheModel) {
    bus->plug(SupplyModel("CVX-1000-D"));
    const auto supply = make();
    debugLines().clear();
    const auto previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { debugLines().append(text); });
    QLoggingCategory::setFilterRules(QStringLiteral("zpsg.*.debug=true"));
    EXPECT_TRUE(supply->identifyModel());
    QLoggingCategory::setFilterRules(QString());
    qInstallMessageHandler(previous);
    const auto at = [](const char *line) { return debugLines().indexOf(QString::fromUtf8(line)); };
    EXPECT_EQ(at("MFRModel \"CVX-1000-D\""), 0);
    EXPECT_EQ(debugLines().count(QStringLiteral("modelName \"CVX1000D\"")) % 25, 0); // up to position 24
    EXPECT_GT(at("success 應該是在這邊做就好"), at("model \"CVG1250Z\""));
    EXPECT_GT(at("VinValue: 200"), at("success 應該是在這邊做就好"));
    EXPECT_GT(at("dataSize: 120"), at("VinValue: 200"));
}

TEST_F(SupplyTest, IdentifiesOneThatComesLaterAndDoesNotAskAgain) {
    const auto supply = make();
    const QSignalSpy changed(supply.get(), &app::Supply::profileChanged);
    EXPECT_FALSE(supply->identifyModel());
    bus->plug(SupplyModel("CVX-1000-D"));
    EXPECT_TRUE(supply->connectPsu());
    EXPECT_EQ(supply->profile().ratedWatts, 1000.0F);
    EXPECT_EQ(changed.count(), 1);
    bus->plug(SupplyModel("CVG-0850-Z"));
    EXPECT_TRUE(supply->connectPsu());
    EXPECT_EQ(supply->profile().ratedWatts, 1000.0F);
    bus->withModel([](SupplyModel &model) { EXPECT_EQ(model.log().size(), 1U); }); // the wake-up alone
}

TEST_F(SupplyTest, IdentifiesOneThatWasDumbAtFirst) {
    bus->plug(SupplyModel("CVX-1000-D"));
    bus->withModel([](SupplyModel &model) { model.setFault(Fault::Silent); });
    const auto supply = make();
    EXPECT_FALSE(supply->identifyModel());
    bus->withModel([](SupplyModel &model) { model.setFault(Fault::None); });
    QSignalSpy changed(supply.get(), &app::Supply::profileChanged);
    while (changed.isEmpty()) { // each pass answers; the model is asked along the way
        supply->monitor().readInfo();
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    }
    EXPECT_TRUE(supply->identified());
}

} // namespace
