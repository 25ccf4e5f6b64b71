#include "app/Headless.h"
#include "simulator/SimulatedBus.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>

#include <gmock/gmock.h>

#include <memory>

using namespace zpsg;

namespace {

struct Closer {
    void operator()(std::FILE *file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Closer>;

QByteArrayList linesOf(std::FILE *file) {
    std::rewind(file);
    QByteArray all;
    for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) {
        all.append(static_cast<char>(c));
    }
    all.chop(all.endsWith('\n') ? 1 : 0);
    return all.isEmpty() ? QByteArrayList() : all.split('\n');
}

class HeadlessTest : public ::testing::Test {
protected:
    HeadlessTest() { bus->plug(simulator::SupplyModel("CVA-0750-G")); }

    std::shared_ptr<simulator::SimulatedBus> bus = simulator::SimulatedBus::create();
    File out{std::tmpfile()};
    File notes{std::tmpfile()};
};

TEST_F(HeadlessTest, PrintsTheRecordAsOneJsonObject) {
    app::Headless headless(bus->backend(), {}, app::ReadingFormat::Json, "do this", out.get(), notes.get());
    headless.start();
    const auto lines = linesOf(out.get());
    ASSERT_EQ(lines.size(), 1);
    const auto reading = QJsonDocument::fromJson(lines.first()).object();
    EXPECT_EQ(reading[QStringLiteral("model")].toString(), QStringLiteral("CVA-0750-G"));
    EXPECT_NEAR(reading[QStringLiteral("VVOut12")].toDouble(), 12.18, 0.01);
    EXPECT_EQ(reading[QStringLiteral("VIN")].toDouble(), 230.0);
    const auto time = QDateTime::fromString(reading[QStringLiteral("time")].toString(), Qt::ISODateWithMs);
    EXPECT_LT(qAbs(time.secsTo(QDateTime::currentDateTime())), 60);
    EXPECT_TRUE(linesOf(notes.get()).isEmpty());
}

TEST_F(HeadlessTest, ColumnsStandUnderTheirHeadings) {
    app::Headless headless(bus->backend(), {}, app::ReadingFormat::Text, "do this", out.get(), notes.get());
    headless.start();
    const auto lines = linesOf(out.get());
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0].size(), lines[1].size());
    EXPECT_TRUE(lines[1].endsWith(" 700"));
}

TEST_F(HeadlessTest, SaysWhatIsMissingAndPrintsNoReading) {
    bus->denyAccess(true);
    app::Headless headless(bus->backend(), {}, app::ReadingFormat::Json, "do this", out.get(), notes.get());
    headless.start();
    EXPECT_TRUE(linesOf(out.get()).isEmpty());
    EXPECT_THAT(linesOf(notes.get()).join('\n').toStdString(),
                ::testing::AllOf(::testing::HasSubstr("may not open it"), ::testing::HasSubstr("do this")));
}

TEST_F(HeadlessTest, TellsWhenItsOutputIsFull) {
    const File full(std::fopen("/dev/full", "w"));
    ASSERT_TRUE(full);
    app::Headless headless(bus->backend(), {}, app::ReadingFormat::Json, "do this", full.get(), notes.get());
    const QSignalSpy failed(&headless, &app::Headless::outputFailed);
    headless.start();
    EXPECT_EQ(failed.count(), 1);
}

} // namespace
