#include "app/ExportCommand.h"

#include "app/CommandLine.h"
#include "platform/Terminal.h"
#include "RecordFolder.h"
#include "support/FullDisk.h"

#include <QFileInfo>

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace zpsg;
using namespace zpsg::app;

namespace {

constexpr const char *kRange = "--from 2026-03-01 --to 2026-03-02 ";

std::optional<ExportCommand> parse(const QByteArray &words) {
    QString error;
    auto command =
        parseExportCommand(QString::fromUtf8(words).split(QLatin1Char(' '), Qt::SkipEmptyParts), error);
    EXPECT_NE(command.has_value(), !error.isEmpty()) << words.toStdString();
    EXPECT_FALSE(error.contains(QLatin1Char('\n')));
    return command;
}

TEST(ExportCommand, UnderstandsItsOptions) {
    const auto minutes = parse("--minutes --from 2026-02-28 --to=2026-02-28 --output=a=b --demo");
    const auto days = parse(QByteArray(kRange) + "--days --data-dir /x");
    ASSERT_TRUE(minutes && days);
    EXPECT_EQ(minutes->from, QDate(2026, 2, 28));
    EXPECT_EQ(minutes->to, minutes->from);
    EXPECT_EQ(minutes->mode, records::ExportMode::Minutes);
    EXPECT_EQ(minutes->output, QStringLiteral("a=b"));
    EXPECT_TRUE(minutes->demo && !minutes->dataDir);
    EXPECT_EQ(days->mode, records::ExportMode::Days);
    EXPECT_EQ(days->dataDir, QStringLiteral("/x"));
    EXPECT_TRUE(!days->output && !days->demo);
    EXPECT_TRUE(parse("--help")->showHelp);
}

TEST(ExportCommand, RefusesWrongUse) {
    for (const char *words :
         {"", "--from 2026-03-01", "--to 2026-03-01", "--from 2026-03-02 --to 2026-03-01",
          "--from 2026-02-29 --to 2026-03-01", "--from 2026-3-1 --to 2026-03-01",
          "--from 01.03.2026 --to 2026-03-01", "--from --to 2026-03-01", "--from= --to=2026-03-01"}) {
        EXPECT_FALSE(parse(QByteArray("--days ") + words)) << words;
    }
    for (const char *words :
         {"", "--minutes --days", "--days --hours", "--days file", "--days --output", "--days --to",
          "--days --output=", "--days --data-dir", "--days=1", "--minutes --demo=X"}) {
        EXPECT_FALSE(parse(QByteArray(kRange) + words)) << words;
    }
}

/// A stream whose text can be read back.
class Stream {
public:
    explicit Stream(std::FILE *file = std::tmpfile()) : file_(file) {}
    ~Stream() { std::fclose(file_); }
    Stream(const Stream &) = delete;
    Stream &operator=(const Stream &) = delete;
    [[nodiscard]] std::FILE *file() const { return file_; }
    [[nodiscard]] QByteArray text() const {
        QFile reader;
        std::rewind(file_);
        return reader.open(file_, QIODevice::ReadOnly) ? reader.readAll() : QByteArray();
    }

private:
    std::FILE *file_;
};

class RunExport : public ::testing::Test {
protected:
    RunExport() {
        QStringList rows;
        for (int i = 0; i < 360; ++i) {
            rows.append(test::minute(QDateTime(QDate(2026, 3, 1), QTime(0, 0)).addSecs(60LL * i)));
        }
        folder.put(1, rows);
        command = *parse(QByteArray(kRange) + "--minutes");
    }

    int run(std::FILE *to) { return runExport(command, folder.path(), to, notes.file()); }

    test::RecordFolder folder;
    ExportCommand command;
    Stream notes;
};

TEST_F(RunExport, WritesToAStreamOrAFile) {
    const Stream out;
    EXPECT_EQ(run(out.file()), kExitOk);
    EXPECT_EQ(out.text().count('\n'), 361);
    command.output = folder.path("out.csv");
    EXPECT_EQ(run(out.file()), kExitOk);
    EXPECT_EQ(test::contentOf(*command.output), out.text());
    EXPECT_EQ(notes.text(), "") << "nobody watches";
    folder.spoilLastRow(records::recordPath(folder.path(), 1));
    EXPECT_EQ(run(out.file()), kExitOk);
    EXPECT_TRUE(notes.text().contains("1 rows")) << notes.text().toStdString();
}

TEST_F(RunExport, SaysWhenTheOutputTakesNoMore) {
    const Stream full(std::fopen("/dev/full", "r+"));
    EXPECT_EQ(run(full.file()), kExitFailed);
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    close(ends[0]);
    const Stream closedPipe(fdopen(ends[1], "w"));
    EXPECT_EQ(run(closedPipe.file()), kExitFailed);
    const Stream readOnly(std::fopen("/dev/null", "r"));
    EXPECT_EQ(run(readOnly.file()), kExitFailed);
    const auto lines = notes.text().split('\n');
    ASSERT_EQ(lines.size(), 4) << notes.text().toStdString();
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(lines[i].startsWith("zpsg: can't write ")) << lines[i].toStdString();
    }
}

// In a folder of the test's own: a program that does it wrong, run by root, would replace a device.
TEST_F(RunExport, WritesIntoAPipeOfTheFileSystemAndDoesNotReplaceIt) {
    command.output = folder.path("pipe");
    const QByteArray name = command.output->toLocal8Bit();
    ASSERT_EQ(mkfifo(name.constData(), 0600), 0);
    const int reader = open(name.constData(), O_RDWR | O_NONBLOCK); // takes 64 KB, more than there is
    ASSERT_GE(reader, 0);
    EXPECT_EQ(run(stdout), kExitOk);
    QByteArray got(1 << 16, '\0');
    got.truncate(static_cast<int>(read(reader, got.data(), static_cast<std::size_t>(got.size()))));
    EXPECT_EQ(got.count('\n'), 361);
    EXPECT_FALSE(QFileInfo(*command.output).isFile());
    close(reader);
}

TEST_F(RunExport, EndsWhenItIsToldTo) {
    command.output = folder.path("out.csv");
    ASSERT_TRUE(test::putContent(*command.output, "old"));
    int asked = 0;
    EXPECT_EQ(runExport(command, folder.path(), stdout, notes.file(), [&asked] { return ++asked == 2; }),
              kExitFailed);
    EXPECT_EQ(test::contentOf(*command.output), "old");
}

TEST(Terminal, IsWhereAPersonLooks) {
    const Stream file;
    EXPECT_FALSE(platform::isTerminal(file.file()));
    const int master = posix_openpt(O_RDWR | O_NOCTTY);
    if (master < 0 || grantpt(master) != 0 || unlockpt(master) != 0) {
        GTEST_SKIP() << "no pseudo terminals here";
    }
    const Stream terminal(std::fopen(ptsname(master), "r+"));
    EXPECT_TRUE(platform::isTerminal(terminal.file()));
    close(master);
}

} // namespace
