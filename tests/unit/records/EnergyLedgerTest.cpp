#include "records/EnergyLedger.h"

#include "support/DebugLines.h"
#include "support/FullDisk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QVariant>

#include <gmock/gmock.h>

#include <array>
#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

using namespace zpsg;
using power::Energy;
using records::EnergyLedger;

namespace {

const QDate kDay(2026, 11, 20);
const QDate kFirst(1, 1, 1);
const QDate kLast(9999, 12, 31);
constexpr Energy kMinute{60.0, 0.1, 0.125, 0.0375};

Energy times(int count, const Energy &energy = kMinute) {
    return {count * energy.seconds, count * energy.outputKwh, count * energy.wallKwh, count * energy.cost};
}

void expectNear(const Energy &seen, const Energy &wanted) {
    EXPECT_NEAR(seen.seconds, wanted.seconds, 1e-6);
    EXPECT_NEAR(seen.outputKwh, wanted.outputKwh, 1e-9);
    EXPECT_NEAR(seen.wallKwh, wanted.wallKwh, 1e-9);
    EXPECT_NEAR(seen.cost, wanted.cost, 1e-9);
}

class EnergyLedgerTest : public ::testing::Test {
protected:
    /// As the next program run finds it.
    void expectInFile(const Energy &wanted) const {
        expectNear(EnergyLedger(path).sum(kFirst, kLast), wanted);
    }

    /// Another program's hand on the file, until the result goes.
    class Other {
    public:
        explicit Other(const QString &path) {
            auto database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("other"));
            database.setDatabaseName(path);
            EXPECT_TRUE(database.open());
        }
        ~Other() { QSqlDatabase::removeDatabase(QStringLiteral("other")); }
        Other(const Other &) = delete;
        Other &operator=(const Other &) = delete;
        static QVariant run(const char *statement) {
            QSqlQuery query(QSqlDatabase::database(QStringLiteral("other")));
            EXPECT_TRUE(query.exec(QString::fromLatin1(statement))) << statement;
            return query.next() ? query.value(0) : QVariant();
        }
    };

    void fill(const QByteArray &content) const {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    [[nodiscard]] QStringList files(const char *pattern) const {
        return QDir(dir.path()).entryList({QString::fromLatin1(pattern)}, QDir::Files);
    }

    QTemporaryDir dir;
    QString path = dir.filePath(QStringLiteral("energy.db"));
};

TEST_F(EnergyLedgerTest, AddsToDaysAndSumsThem) {
    EnergyLedger ledger(path);
    EXPECT_TRUE(ledger.write());
    ledger.add(kDay, {});
    ledger.add(QDate(), kMinute);
    EXPECT_TRUE(ledger.write());
    EXPECT_FALSE(QFile::exists(path)) << "nothing was metered, nothing is touched";
    EXPECT_FALSE(ledger.firstDay().isValid());
    for (const int day : {0, 1, 1, 30, -400}) {
        ledger.add(kDay.addDays(day), kMinute);
        EXPECT_TRUE(day == 1 || ledger.write()) << "with or without a write";
    }
    ledger.add(kDay, kMinute);
    for (const auto &[from, to, minutes] :
         {std::tuple(0, 0, 2), {0, 1, 4}, {1, 29, 2}, {1, 30, 3}, {-400, 30, 6}, {31, 99, 0}, {1, 0, 0}}) {
        expectNear(ledger.sum(kDay.addDays(from), kDay.addDays(to)), times(minutes));
    }
    EXPECT_EQ(ledger.firstDay(), kDay.addDays(-400));
    EXPECT_EQ(ledger.firstDay(kDay.addDays(-399)), kDay);
    EXPECT_FALSE(ledger.firstDay(kDay.addDays(31)).isValid());
    expectInFile(times(5));
    EXPECT_TRUE(ledger.write());
    expectInFile(times(6));
    EXPECT_EQ(files("*"), QStringList(QStringLiteral("energy.db"))) << "no journal stays";
    const Other other(path);
    EXPECT_EQ(Other::run("SELECT wall_kwh FROM energy_day WHERE day = '2026-11-20'").toDouble(), 0.25);
}

TEST_F(EnergyLedgerTest, WaitsForWhoHasTheFile) {
    EnergyLedger ledger(path);
    ledger.add(kDay, kMinute);
    ASSERT_TRUE(ledger.write());
    {
        const Other other(path);
        Other::run("BEGIN EXCLUSIVE");
        EnergyLedger late(path); // can't read now
        const support::DebugLines lines(QStringLiteral("zpsg.*.debug=false"));
        for (int i = 0; i < 3; ++i) {
            ledger.add(kDay, kMinute);
            EXPECT_FALSE(ledger.write());
        }
        late.add(kDay.addDays(1), kMinute);
        EXPECT_FALSE(late.write());
        expectNear(late.sum(kFirst, kLast), times(1));
        expectNear(ledger.sum(kFirst, kLast), times(4));
        EXPECT_EQ(support::DebugLines::text().count(QStringLiteral("can't be written")), 2) << "once each";
        Other::run("COMMIT");
        EXPECT_TRUE(late.write());
        expectNear(late.sum(kFirst, kLast), times(2));
    }
    EXPECT_TRUE(ledger.write());
    expectInFile(times(5));
}

// However far a write gets before the disk is full, it counts once, later.
TEST_F(EnergyLedgerTest, AFullDiskLosesAndDoublesNothing) {
    int written = 0;
    for (const bool fresh : {true, false}) {
        for (const rlim_t bytes : {0, 100, 512, 600, 4096, 4700, 5000, 8191}) {
            if (fresh) {
                QFile::remove(path);
                written = 0;
            }
            EnergyLedger ledger(path);
            ledger.add(kDay.addDays(written), kMinute);
            ++written;
            {
                const test::FullDisk disk(bytes);
                EXPECT_EQ(ledger.write(), false) << bytes;
                ledger.add(kDay, kMinute);
                ++written;
                EXPECT_EQ(ledger.write(), false) << bytes;
            }
            expectNear(ledger.sum(kFirst, kLast), times(written));
            EXPECT_TRUE(ledger.write()) << bytes;
            EXPECT_TRUE(ledger.write());
            expectInFile(times(written));
        }
    }
    for (const rlim_t room : {0, 4096, 8192, 12288}) { // for a part of it
        EnergyLedger ledger(path);
        for (int day = 0; day < 400; ++day) {
            ledger.add(kLast.addDays(-written), kMinute);
            ++written;
        }
        {
            const test::FullDisk disk(static_cast<rlim_t>(QFileInfo(path).size()) + room);
            EXPECT_EQ(ledger.write(), false) << room;
        }
        EXPECT_TRUE(ledger.write()) << room;
        expectInFile(times(written));
    }
    EXPECT_TRUE(files("*damaged*").isEmpty());
}

TEST_F(EnergyLedgerTest, ADamagedFileIsSetAsideAndWhatWasReadLivesOn) {
    const auto garbage = [this] {
        fill(QByteArray("no database, but long enough to be one. ").repeated(300));
    };
    const auto shape = [this](const char *statement) {
        const Other other(path);
        Other::run("DROP TABLE energy_day");
        Other::run(statement);
    };
    struct Case {
        const char *name;
        std::function<void()> damage;
        bool setAside;
    };
    const std::array cases{
        Case{"garbage", garbage, true},
        Case{"cut", [this] { QFile::resize(path, 4096); }, true},
        Case{"other columns", [&] { shape("CREATE TABLE energy_day (day TEXT)"); }, true},
        Case{"no key", [&] { shape("CREATE TABLE energy_day (day, seconds, output_kwh, wall_kwh, cost)"); },
             true},
        Case{"empty", [this] { fill({}); }, false},
        Case{"gone", [this] { QFile::remove(path); }, false},
    };
    for (const bool running : {false, true}) {
        for (const auto &[name, damage, setAside] : cases) {
            SCOPED_TRACE(name);
            for (const auto &file : files("*")) {
                QFile::remove(dir.filePath(file));
            }
            auto ledger = std::make_unique<EnergyLedger>(path);
            ledger->add(kDay, kMinute);
            ASSERT_TRUE(ledger->write());
            damage();
            if (!running) {
                ledger = std::make_unique<EnergyLedger>(path);
            }
            const support::DebugLines lines(QStringLiteral("zpsg.*.debug=false"));
            for (int i = 0; i < 2; ++i) {
                ledger->add(kDay.addDays(1), kMinute);
                EXPECT_TRUE(ledger->write());
            }
            EXPECT_EQ(files("energy.db.damaged-*").size(), setAside ? 1 : 0);
            EXPECT_EQ(support::DebugLines::text().count(QStringLiteral("is damaged")), setAside ? 1 : 0);
            expectInFile(times(running && setAside ? 3 : 2));
            expectNear(ledger->sum(kFirst, kLast), times(running ? 3 : 2));
        }
    }
}

// A page that is not whole reads as one that is; what is before it is kept.
TEST_F(EnergyLedgerTest, SalvagesWhatIsReadableOfADamagedFile) {
    constexpr int kManyDays = 300;
    {
        EnergyLedger ledger(path);
        for (int day = 0; day < kManyDays; ++day) {
            ledger.add(kDay.addDays(day), kMinute);
        }
        ASSERT_TRUE(ledger.write());
    }
    QFile::resize(path, QFileInfo(path).size() - 100);
    {
        EnergyLedger ledger(path);
        ledger.add(kDay, kMinute);
        EXPECT_TRUE(ledger.write());
    }
    EXPECT_EQ(files("energy.db.damaged-*").size(), 1);
    const EnergyLedger ledger(path);
    const double minutes = ledger.sum(kFirst, kLast).seconds / 60.0;
    EXPECT_GT(minutes, kManyDays / 2);
    EXPECT_LE(minutes, kManyDays + 1);
    EXPECT_EQ(ledger.sum(kDay, kDay).seconds, 120.0);
}

TEST_F(EnergyLedgerTest, FiguresThatMakeNoSenseCountAsNone) {
    EnergyLedger(path).write();
    {
        EnergyLedger ledger(path);
        ledger.add(kDay, kMinute);
        ASSERT_TRUE(ledger.write());
        const Other other(path);
        Other::run("INSERT INTO energy_day VALUES ('2026-11-21', -5, 'text', 9e999, 1)");
        Other::run("INSERT INTO energy_day VALUES ('someday', 60, 1, 1, 1)");
    }
    auto wanted = kMinute;
    wanted.cost += 1.0;
    expectInFile(wanted);
}

// What was written when write() said so is there whenever the program dies, and never twice.
TEST_F(EnergyLedgerTest, SurvivesBeingKilled) {
    for (int round = 0; round < 8; ++round) {
        const double before = EnergyLedger(path).sum(kFirst, kLast).seconds;
        std::array<int, 2> told{};
        ASSERT_EQ(pipe(told.data()), 0);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            EnergyLedger ledger(path);
            for (;;) {
                ledger.add(kDay, kMinute);
                if (!ledger.write() || write(told[1], "w", 1) != 1) {
                    _exit(1);
                }
            }
        }
        close(told[1]);
        int writes = 0;
        char told1 = 0;
        while (writes < 3 + round && read(told[0], &told1, 1) == 1) {
            ++writes;
        }
        usleep(static_cast<useconds_t>(700 * round)); // into the middle of the next
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        while (read(told[0], &told1, 1) == 1) {
            ++writes;
        }
        close(told[0]);
        EnergyLedger ledger(path);
        ledger.add(kDay, kMinute);
        ASSERT_TRUE(ledger.write());
        const auto sum = ledger.sum(kFirst, kLast);
        const double minutes = (sum.seconds - before) / 60.0 - 1.0;
        EXPECT_GE(minutes, writes);
        EXPECT_LE(minutes, writes + 1);
        EXPECT_NEAR(sum.cost / sum.seconds, kMinute.cost / kMinute.seconds, 1e-12);
        EXPECT_TRUE(files("*damaged*").isEmpty());
    }
}

} // namespace
