#include "sensors/pcInfoReader.h"
#include "sensors/PcSource.h"

#include <gtest/gtest.h>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

namespace zpsg::sensors {
namespace {

/// One letter a second: v a value, e none of the sensors that are there, g nothing there.
class ScriptedSource final : public PcSource {
public:
    explicit ScriptedSource(std::string script) : script_(std::move(script)) {}
    SourceReading read(Time /*now*/) override {
        const char letter = script_.at(next_++ % script_.size());
        SourceReading result{
            letter == 'g' ? SourceState::Gone : SourceState::Working, {}, QStringLiteral("why")};
        if (letter == 'v') {
            result.reading.gpuWatts = 7.0;
        }
        result.reading.cpuName = QStringLiteral("name");
        return result;
    }

private:
    std::string script_;
    std::size_t next_ = 0;
};

TEST(PcInfoReaderTest, TellsOfEachReadingAndOnceOfEachFailure) {
    struct Case {
        const char *script;
        const char *told; // r infoRead, f openFail, - nothing
    };
    for (const auto &[script, told] : std::vector<Case>{
             {"vvv", "rrr"},
             {"ggggg", "f----"},
             {"ggvvgggvg", "f-rrf--rf"},
             {"veevev", "r--r-r"},
             {"eeeee", "--f--"},
             {"veeegevg", "r--f--rf"},
             {"gevee", "f-r--"},
             {"eeg", "--f"},
         }) {
        pcInfoReader reader(std::make_unique<ScriptedSource>(script));
        const QSignalSpy read(&reader, &pcInfoReader::infoRead);
        const QSignalSpy failed(&reader, &pcInfoReader::openFail);
        std::string seen;
        while (seen.size() < std::string(script).size()) {
            const auto before = std::pair(read.size(), failed.size());
            reader.refreshInfo();
            ASSERT_LE(read.size() + failed.size(), before.first + before.second + 1);
            seen += read.size() > before.first ? 'r' : failed.size() > before.second ? 'f' : '-';
        }
        EXPECT_EQ(seen, told) << script;
        EXPECT_TRUE(failed.isEmpty() || failed.first().first() == QStringLiteral("why"));
    }
}

TEST(PcInfoReaderTest, ReadingsReachAnotherThread) {
    pcInfoReader reader(std::make_unique<ScriptedSource>("v"));
    QThread thread;
    QObject receiver;
    PcReading got;
    QObject::connect(&reader, &pcInfoReader::infoRead, &receiver,
                     [&got](const PcReading &one) { got = one; });
    QObject::connect(&thread, &QThread::started, &reader, &pcInfoReader::refreshInfo);
    reader.moveToThread(&thread);
    thread.start();
    EXPECT_TRUE(QTest::qWaitFor([&got] { return got.any(); }));
    thread.quit();
    thread.wait();
    EXPECT_EQ(got.gpuWatts, 7.0);
    EXPECT_EQ(got.cpuName, QStringLiteral("name"));
}

TEST(PcInfoReaderTest, ThisPcHasSensorsOrNot) {
    pcInfoReader reader;
    const QSignalSpy read(&reader, &pcInfoReader::infoRead);
    const QSignalSpy failed(&reader, &pcInfoReader::openFail);
    for (int second = 0; second < 3; ++second) { // as long as sensors may be silent
        reader.refreshInfo();
    }
    EXPECT_NE(read.isEmpty(), failed.isEmpty());
}

} // namespace
} // namespace zpsg::sensors
