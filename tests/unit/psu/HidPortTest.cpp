#include "psu/HidPort.h"

#include <gmock/gmock.h>

#include <deque>

using namespace zpsg::psu;
using namespace std::chrono_literals;

namespace {

using Bytes = std::vector<std::uint8_t>;

/// What the device does when it gets a report: the input reports that can be read from then on. A write that
/// has no entry fails.
struct Script {
    std::deque<std::vector<Bytes>> onWrite;
    std::deque<Bytes> readable;
    std::vector<Bytes> written;
    std::vector<std::string> calls;
    bool absent = false;
    bool initialises = true;
    bool readFails = false;
    int open = 0;
};

class ScriptedDevice : public HidDevice {
public:
    explicit ScriptedDevice(Script &script) : script_(script) { ++script_.open; }
    ~ScriptedDevice() override { --script_.open; }

    int write(std::span<const std::uint8_t> report) override {
        script_.written.emplace_back(report.begin(), report.end());
        if (script_.onWrite.empty()) {
            return -1;
        }
        for (auto &bytes : script_.onWrite.front()) {
            script_.readable.push_back(bytes);
        }
        script_.onWrite.pop_front();
        return static_cast<int>(report.size());
    }

    int read(std::span<std::uint8_t> buffer, std::chrono::milliseconds) override {
        if (script_.readFails) {
            return -1;
        }
        if (script_.readable.empty()) {
            return 0;
        }
        const Bytes bytes = script_.readable.front();
        script_.readable.pop_front();
        std::copy(bytes.begin(), bytes.end(), buffer.begin());
        return static_cast<int>(bytes.size());
    }

private:
    Script &script_;
};

class ScriptedBackend : public HidBackend {
public:
    explicit ScriptedBackend(Script &script) : script_(script) {}
    bool initialise() override {
        script_.calls.emplace_back("initialise");
        return script_.initialises;
    }
    std::unique_ptr<HidDevice> open(std::uint16_t, std::uint16_t) override {
        script_.calls.emplace_back("open");
        return script_.absent ? nullptr : std::make_unique<ScriptedDevice>(script_);
    }
    std::unique_ptr<zpsg::platform::RawHid> openRaw(std::uint16_t, std::uint16_t) override { return nullptr; }
    Presence presence(std::uint16_t, std::uint16_t) override { return Presence::Absent; }

private:
    Script &script_;
};

const Bytes kAwake{0xFE, 0x31};
Bytes answer(std::uint8_t command, std::uint8_t value) { return {0x31, command, value, 0}; }

class HidPortTest : public ::testing::Test {
protected:
    /// Connects and then asks for these commands, the device doing what the script says at each write.
    std::vector<int> ask(std::vector<std::vector<Bytes>> onWrite,
                         std::initializer_list<std::uint8_t> commands) {
        HidPort port(std::make_unique<ScriptedBackend>(script), {5ms, 1ms, 1ms});
        script.onWrite.assign(onWrite.begin(), onWrite.end());
        script.onWrite.push_front({kAwake});
        EXPECT_EQ(port.connect(OpenOrder::InitialiseFirst).path, Path::Main);
        std::vector<int> values;
        for (const auto command : commands) {
            const auto reply = port.exchange(makeRequest({kReadClass, command}));
            values.push_back(reply ? reply->bytes.at(2) : -1);
        }
        return values;
    }

    Script script;
};

TEST_F(HidPortTest, LateAnswersNeverAnswerALaterQuestion) {
    using ::testing::ElementsAre;
    // The answer comes with the next question: dropped, the next question gets its own.
    EXPECT_THAT(ask({{}, {answer(0x34, 1), answer(0x35, 2)}}, {0x34, 0x35}), ElementsAre(-1, 2));
    // The same question again: of two answers the later is the true one.
    EXPECT_THAT(ask({{}, {answer(0x34, 1), answer(0x34, 2)}}, {0x34, 0x34}), ElementsAre(-1, 2));
    // Two are late.
    EXPECT_THAT(ask({{}, {}, {answer(0x34, 1), answer(0x35, 2), answer(0x36, 3)}}, {0x34, 0x35, 0x36}),
                ElementsAre(-1, -1, 3));
    // The late one never comes: nothing is taken for it.
    EXPECT_THAT(ask({{}, {answer(0x35, 2)}, {answer(0x36, 3)}}, {0x34, 0x35, 0x36}), ElementsAre(-1, 2, 3));
    // Two answers to one question: the second is not kept for the next.
    EXPECT_THAT(ask({{answer(0x34, 1), answer(0x34, 9)}, {answer(0x35, 2)}}, {0x34, 0x35}),
                ElementsAre(1, 2));
}

TEST_F(HidPortTest, KeepsWhatAnOutOfTurnDeviceAnswersWhenNothingIsLate) {
    EXPECT_THAT(ask({{answer(0x39, 7)}}, {0x34}), ::testing::ElementsAre(7));
}

TEST_F(HidPortTest, OpensInTheOrderThatIsAskedFor) {
    script.onWrite = {{kAwake}, {kAwake}};
    HidPort port(std::make_unique<ScriptedBackend>(script), {5ms, 1ms, 1ms});
    EXPECT_EQ(port.connect(OpenOrder::OpenFirst).path, Path::Main);
    EXPECT_THAT(script.calls, ::testing::ElementsAre("open", "initialise"));
    script.calls.clear();
    EXPECT_EQ(port.connect(OpenOrder::InitialiseFirst).path, Path::Main);
    EXPECT_THAT(script.calls, ::testing::ElementsAre("initialise", "open"));
    EXPECT_EQ(script.open, 1);
    script.absent = true;
    script.calls.clear();
    EXPECT_EQ(port.connect(OpenOrder::OpenFirst).path, Path::None);
    EXPECT_THAT(script.calls, ::testing::ElementsAre("open"));
    EXPECT_EQ(script.open, 0);
}

TEST_F(HidPortTest, SendsTheWakeUpReportAndWholeReports) {
    ask({{answer(0x34, 1)}}, {0x34});
    ASSERT_EQ(script.written.size(), 2U);
    Bytes wakeUp(65, 0);
    wakeUp[1] = 0xFE;
    wakeUp[2] = 0x31;
    EXPECT_EQ(script.written[0], wakeUp);
    Bytes question(65, 0);
    question[1] = 0x31;
    question[2] = 0x34;
    EXPECT_EQ(script.written[1], question);
}

TEST_F(HidPortTest, TellsARefusedWakeUpFromAnAbsentDevice) {
    HidPort port(std::make_unique<ScriptedBackend>(script), {5ms, 1ms, 1ms});
    const auto refused = port.connect(OpenOrder::OpenFirst); // no script for the write: it fails
    EXPECT_EQ(refused.path, Path::None);
    EXPECT_TRUE(refused.wakeUpFailed);
    EXPECT_EQ(script.open, 0);
    script.initialises = false;
    script.onWrite = {{kAwake}};
    const auto carriedOn = port.connect(OpenOrder::InitialiseFirst);
    EXPECT_EQ(carriedOn.path, Path::Main);
    EXPECT_TRUE(carriedOn.initialiseFailed);
}

TEST_F(HidPortTest, ClosesALostDeviceAndOpensItAgain) {
    HidPort port(std::make_unique<ScriptedBackend>(script), {5ms, 1ms, 1ms});
    script.onWrite = {{kAwake}, {}};
    port.connect(OpenOrder::InitialiseFirst);
    script.readFails = true;
    EXPECT_FALSE(port.exchange(makeRequest({0x31, 0x34})));
    EXPECT_TRUE(port.lost());
    EXPECT_EQ(script.open, 0);
    EXPECT_FALSE(port.exchange(makeRequest({0x31, 0x34})));
    script.readFails = false;
    script.onWrite = {{kAwake}, {answer(0x34, 5)}};
    port.connect(OpenOrder::InitialiseFirst);
    EXPECT_FALSE(port.lost());
    EXPECT_TRUE(port.exchange(makeRequest({0x31, 0x34})));
}

} // namespace
