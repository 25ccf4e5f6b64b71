// The program itself against a kernel's HID device: what it prints is what the supply was told, whatever
// happens to the cable.
#include "ChildProcess.h"
#include "GuestFixture.h"
#include "power/CurveFile.h"
#include "power/ModelTable.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <csignal>
#include <filesystem>

namespace zpsg::hardware {
namespace {

using simulator::Fault;
using simulator::SupplyModel;
using vusb::Product;

class ProgramTest : public GuestFixture {
protected:
    ProgramTest() {
        // Each can be carried exactly by a ten-bit mantissa and by six digits.
        told_.acVolts = 117.5;
        told_.volts12 = 12.0625;
        told_.amps12 = 33.5;
        told_.volts5 = 4.96875;
        told_.amps5 = 3.25;
        told_.volts33 = 3.28125;
        told_.amps33 = 1.75;
        told_.celsius = 47.0;
        told_.fanRpm = 1023.0;
        supply_.withModel([this](SupplyModel &model) { model.setQuantities(told_); });
    }

    void start() {
        program_ = std::make_unique<ChildProcess>(
            ZPSG_PROGRAM, std::vector<std::string>{"--headless", "--json", "--data-dir", "/run/zpsg-data"});
    }

    QJsonObject reading() {
        const auto line = program_->readLine(kPatience);
        return line ? QJsonDocument::fromJson(QByteArray::fromStdString(*line)).object() : QJsonObject();
    }

    /// The next reading shows what the supply was told, to within `relative`.
    void expectTold(double relative) {
        const auto shown = reading();
        ASSERT_FALSE(shown.isEmpty()) << "no reading came";
        struct Row {
            const char *key;
            double value;
        };
        const std::array rows{Row{"VIN", told_.acVolts},     Row{"VVOut12", told_.volts12},
                              Row{"VIOut12", told_.amps12},  Row{"VVOut5", told_.volts5},
                              Row{"VIOut5", told_.amps5},    Row{"VVOut33", told_.volts33},
                              Row{"VIOut33", told_.amps33},  Row{"Temp", told_.celsius},
                              Row{"FanSpeed", told_.fanRpm}, Row{"WATTS", told_.outputWatts()}};
        for (const auto &[key, value] : rows) {
            EXPECT_NEAR(shown[QLatin1String(key)].toDouble(), value, value * (relative + 1e-5)) << key;
        }
        EXPECT_EQ(shown[QStringLiteral("model")].toString(), QStringLiteral("CVX-1000-D"));
    }

    void end() {
        program_->signal(SIGTERM);
        while (program_->readLine(kPatience)) {
        }
        EXPECT_EQ(program_->wait(kPatience), 0);
    }

    [[nodiscard]] std::ptrdiff_t descriptors() const {
        const auto folder = "/proc/" + std::to_string(program_->pid()) + "/fd";
        return std::distance(std::filesystem::directory_iterator(folder), {});
    }

    simulator::Quantities told_;
    std::unique_ptr<ChildProcess> program_;
};

constexpr double kExact = 0.0;
constexpr double kRawStep = 1.0 / 510.0; // one power of two is missing from the raw format

TEST_F(ProgramTest, ShowsWhatTheSupplyWasToldOnBothPaths) {
    plug(Product::Main);
    start();
    expectTold(kExact);
    told_.amps12 = 8.0;
    told_.fanRpm = 0.0;
    supply_.withModel([this](SupplyModel &model) { model.setQuantities(told_); });
    reading(); // may have been taken in between
    expectTold(kExact);
    // Back as the other product, without a restart.
    plug(Product::Raw);
    reading();
    expectTold(kRawStep);
    end();
}

/// The code as a supply reports it: CVX-1000-D for CVX1000D.
std::string reported(std::string_view code) {
    return std::string(code.substr(0, 3)) + '-' + std::string(code.substr(3, 4)) + '-' +
           std::string(code.substr(7));
}

TEST_F(ProgramTest, IdentifiesEachModelAndReadsAnUnknownOneAllTheSame) {
    const auto startTalkative = [this](const std::string &model) {
        supply_.withModel([&](SupplyModel &supply) {
            supply = SupplyModel(model);
            supply.setQuantities(told_);
        });
        plug(Product::Main);
        program_ = std::make_unique<ChildProcess>(
            "/bin/sh",
            std::vector<std::string>{"-c", "QT_LOGGING_RULES='zpsg.app.debug=true' exec " ZPSG_PROGRAM
                                           " --headless --json --data-dir /run/zpsg-data 2>&1"});
    };
    for (const auto &row : power::kCurveModels) {
        SCOPED_TRACE(row.code);
        startTalkative(reported(row.code));
        const auto profile = program_->readLineWith("profile ", kPatience);
        ASSERT_TRUE(profile);
        EXPECT_EQ(
            profile->substr(profile->find("profile "))
                .rfind("profile " + std::to_string(row.ratedWatts) + ' ' + std::string(row.curve) + ' ', 0),
            0U)
            << *profile;
        // The efficiency is that curve's, for the mains voltage that this supply reports.
        const auto path = QFileInfo(QStringLiteral(ZPSG_PROGRAM)).path() + QStringLiteral("/BOX/") +
                          QString::fromStdString(std::string(row.curve)) + QStringLiteral(".ini");
        QString why;
        const auto curve = power::readCurveFile(path, why);
        ASSERT_TRUE(curve) << why.toStdString();
        const auto band = power::curveBand(*curve, QStringLiteral("AC115"), why);
        ASSERT_TRUE(band) << why.toStdString();
        const auto entry =
            std::min<std::size_t>(static_cast<std::size_t>(told_.outputWatts() / 10.0), band->size() - 1);
        EXPECT_NEAR(reading()[QStringLiteral("EFF")].toDouble(), static_cast<double>(band->at(entry)), 1e-4);
        end();
        supply_.unplug();
    }
    startTalkative("CVA-0750-G");
    const auto line = program_->readLineWith("{", kPatience);
    ASSERT_TRUE(line);
    const auto shown = QJsonDocument::fromJson(QByteArray::fromStdString(*line)).object();
    EXPECT_EQ(shown[QStringLiteral("FanSpeed")].toDouble(), told_.fanRpm);
    EXPECT_TRUE(shown[QStringLiteral("EFF")].isNull());
    end();
}

TEST_F(ProgramTest, FindsASupplyThatComesLater) {
    start();
    EXPECT_FALSE(program_->readLine(1500ms));
    plug(Product::Main);
    expectTold(kExact);
    end();
}

TEST_F(ProgramTest, GoesOnAfterAHundredUnplugsInTheMiddleOfAPass) {
    plug(Product::Main);
    start();
    expectTold(kExact);
    const auto before = descriptors();
    for (int round = 0; round < 100; ++round) {
        SCOPED_TRACE(round);
        supply_.withModel([](SupplyModel &model) {
            model.setFault(Fault::Slow);
            model.setFaultDelay(20ms);
            model.clearLog();
        });
        // Some answers of a pass have come, the others have not.
        ASSERT_TRUE(eventually([this] {
            std::size_t asked = 0;
            supply_.withModel([&asked](SupplyModel &model) { asked = model.log().size(); });
            return asked >= 4;
        }));
        supply_.unplug();
        supply_.withModel([](SupplyModel &model) { model.setFault(Fault::None); });
        plug(Product::Main);
        ASSERT_TRUE(eventually([this] { return supply_.inUse(); }));
    }
    while (program_->readLine(100ms)) { // what was read on the way
    }
    expectTold(kExact);
    EXPECT_EQ(descriptors(), before);
    end();
}

TEST_F(ProgramTest, RidesOutEveryKindOfBadAnswer) {
    plug(Product::Main, vusb::InputLength::Loose); // lets short answers through
    start();
    expectTold(kExact);
    for (const auto fault : {Fault::Silent, Fault::Short, Fault::Garbage, Fault::Slow}) {
        SCOPED_TRACE(static_cast<int>(fault));
        supply_.withModel([fault](SupplyModel &model) {
            model.setFault(fault);
            model.setFaultDelay(300ms);
            model.clearLog();
        });
        ASSERT_TRUE(eventually([this] {
            std::size_t asked = 0;
            supply_.withModel([&asked](SupplyModel &model) { asked = model.log().size(); });
            return asked >= 3;
        }));
        supply_.withModel([](SupplyModel &model) { model.setFault(Fault::None); });
        while (program_->readLine(1500ms) && program_->readLine(0ms)) { // until one a second comes again
        }
        expectTold(kExact);
    }
    end();
}

TEST_F(ProgramTest, NamesTheRuleWhenItMayNotOpenTheNode) {
    plug(Product::Main);
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    const int own = dup(STDERR_FILENO);
    dup2(ends[1], STDERR_FILENO); // the program inherits it
    program_ = std::make_unique<ChildProcess>(
        "/usr/bin/setpriv",
        std::vector<std::string>{"--reuid=65534", "--regid=65534", "--clear-groups", ZPSG_PROGRAM,
                                 "--headless", "--data-dir", "/tmp/zpsg-nobody"});
    dup2(own, STDERR_FILENO);
    close(ends[1]);
    close(own);
    std::string said;
    char byte = 0;
    while (said.find("may not open it") == std::string::npos && read(ends[0], &byte, 1) == 1) {
        said.push_back(byte);
    }
    EXPECT_NE(said.find("may not open it"), std::string::npos) << said;
    close(ends[0]);
    program_->signal(SIGTERM);
    EXPECT_EQ(program_->wait(kPatience), 0);
}

} // namespace
} // namespace zpsg::hardware
