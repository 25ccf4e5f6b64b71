#include "app/Recorder.h"

#include "app/Logging.h"

#include <QFile>

#include <algorithm>

namespace zpsg::app {
namespace {

/// The database in the data directory, made from the one that ships when there is none.
QString seededDatabase(const QString &dataDir, const QString &resourceDir) {
    const QString name = QStringLiteral("/database.db");
    QString path = dataDir + name;
    if (!QFile::exists(path)) {
        // A copy under another name first: a program that is killed on the way leaves no half database.
        const QString draft = path + QStringLiteral(".new");
        QFile::remove(draft);
        // Where both folders are one, the history must not be a file that a newer version brings along.
        const QString beside = resourceDir + QStringLiteral("/empty.db");
        const QString empty = QFile::exists(beside) ? beside : resourceDir + name;
        if (QFile::copy(empty, draft)) {
            QFile::setPermissions(draft, QFile::permissions(draft) | QFile::ReadOwner | QFile::WriteOwner);
            QFile::rename(draft, path);
        } else {
            qCWarning(lcApp).noquote() << "there is no history database" << empty;
        }
    }
    return path;
}

} // namespace

Recorder::Recorder(Settings &settings, const QString &dataDir, const QString &resourceDir,
                   power::RandomSource random, QObject *parent)
    : QObject(parent)
    , settings_(settings)
    , dataDir_(dataDir)
    , random_(std::move(random))
    , history_(seededDatabase(dataDir, resourceDir))
    , store_(dataDir, counters())
    , settlement_(dataDir, counters(), history_) {}

Recorder::~Recorder() { store_.flush(QDateTime::currentDateTime()); }

records::Counters Recorder::counters() {
    return {[this] { return settings_.integer(Setting::RecFileNumber); },
            [this](int number) {
                settings_.write({{Setting::RecFileNumber, number}});
            },
            [this] { return settings_.integer(Setting::RecFiledayNumber); },
            [this](int number) {
                settings_.write({{Setting::RecFiledayNumber, number}});
            }};
}

void Recorder::saveData(const psu::TelemetryRecord &record, const QString &serial,
                        const records::PcSensors &sensors, const QDateTime &now) {
    const auto result = store_.append(records::makeRow(record, now, serial, sensors, random_), now);
    if (result.beganFailing) {
        qCWarning(lcApp) << "this minute can't be recorded; it is kept and written later";
        emit recordingFailed();
    } else if (failing_ && result.allWritten) {
        emit recordingResumed();
    }
    failing_ = !result.allWritten;
    if (result.allWritten) {
        emit historyGrew();
    }
}

bool Recorder::getNextDailySettlement(const QDateTime &now) {
    const bool settled = settlement_.getNextDailySettlement(now);
    if (settled) {
        emit historyGrew();
    }
    return settled;
}

std::vector<records::DayTotals> Recorder::totals(const QDate &from, const QDate &to) {
    auto days = history_.totals(from, to);
    const int newest = settings_.integer(Setting::RecFileNumber);
    for (int number = settings_.integer(Setting::RecFiledayNumber) + 1; number <= newest; ++number) {
        for (const auto &day :
             records::sumByDay(records::readFile(records::recordPath(dataDir_, number)).rows).days) {
            if (day.date() < from || day.date() > to) {
                continue;
            }
            auto known = std::find_if(days.begin(), days.end(), [&day](const records::DayTotals &total) {
                return total.date == day.date();
            });
            if (known == days.end()) {
                known = days.insert(days.end(), {day.date(), 0.0F, 0.0F, 0.0F, 0});
            }
            known->kwh += static_cast<float>(day.kwh());
            known->watts += static_cast<float>(day.watts());
            known->efficiency += static_cast<float>(day.efficiency());
            known->count += day.count();
        }
    }
    std::sort(days.begin(), days.end(),
              [](const records::DayTotals &a, const records::DayTotals &b) { return a.date < b.date; });
    return days;
}

} // namespace zpsg::app
