#include "records/DayIndex.h"

#include "records/Logging.h"
#include "records/RecordFile.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <set>

namespace zpsg::records {
namespace {

/// Numbers of the files "<prefix><number>.ini" in a folder.
void collectNumbers(const QString &folder, const QString &prefix, std::set<int> &numbers) {
    const QString suffix = QStringLiteral(".ini");
    const QStringList names = QDir(folder).entryList({prefix + QLatin1Char('*') + suffix},
                                                     QDir::Files | QDir::Hidden, QDir::Unsorted);
    for (const QString &name : names) {
        const int length = name.size() - prefix.size() - suffix.size();
        const int number = name.mid(prefix.size(), length).toInt();
        if (number > 0 && QString::number(number).size() == length) { // not "Rec07.ini"
            numbers.insert(number);
        }
    }
}

} // namespace

std::optional<std::vector<DaySums>> settledDays(const QString &dataDir, int number) {
    const auto content = readFile(dayPath(dataDir, number));
    // An empty file that a crash left behind has no time, and one that was cut off may have no count; a
    // settled file without rows has both.
    if (!content.exists || !content.created.isValid() || !content.counted || content.unreadable > 0 ||
        content.claimed != content.rows.size()) {
        return std::nullopt;
    }
    std::vector<DaySums> days;
    for (const QString &row : content.rows) {
        auto day = DaySums::parse(row);
        if (!day) {
            return std::nullopt;
        }
        days.push_back(std::move(*day));
    }
    return days;
}

void DayIndex::begin() {
    std::set<int> numbers;
    collectNumbers(dataDir_ + QStringLiteral("/Rec"), QStringLiteral("Rec"), numbers);
    collectNumbers(dataDir_ + QStringLiteral("/RecDay"), QStringLiteral("RecDay"), numbers);
    for (auto file = files_.begin(); file != files_.end();) {
        file = numbers.contains(file->first) ? std::next(file) : files_.erase(file);
    }
    pending_.clear();
    next_ = 0;
    std::copy_if(numbers.begin(), numbers.end(), std::back_inserter(pending_), [this](int number) {
        const auto known = files_.find(number);
        return known == files_.end() || !known->second.settled;
    });
}

bool DayIndex::step(int files) {
    for (; files > 0 && next_ < pending_.size(); --files) {
        readFile(pending_[next_++]);
    }
    return next_ < pending_.size();
}

double DayIndex::progress() const {
    return pending_.empty() ? 1.0 : static_cast<double>(next_) / static_cast<double>(pending_.size());
}

void DayIndex::refresh() {
    begin();
    step(static_cast<int>(pending_.size()));
}

void DayIndex::readFile(int number) {
    auto &file = files_[number];
    const auto settled = settledDays(dataDir_, number);
    if (!settled) {
        readRecordFile(number, file);
        return;
    }
    file = File();
    file.settled = true;
    std::transform(settled->begin(), settled->end(), std::back_inserter(file.days),
                   [](const DaySums &day) { return day.date(); });
}

void DayIndex::readRecordFile(int number, File &file) const {
    const QString path = recordPath(dataDir_, number);
    // Taken first: a row that comes while the file is read makes it newer than this.
    const QFileInfo info(path);
    if (file.size == info.size() && file.modified == info.lastModified()) {
        return;
    }
    file = File();
    file.size = info.size();
    file.modified = info.lastModified();
    const auto content = records::readFile(path);
    file.unreadable = content.unreadable;
    for (const QString &row : content.rows) {
        const QDate day = dayOfRow(row);
        if (!day.isValid()) {
            ++file.unreadable;
        } else if (std::find(file.days.rbegin(), file.days.rend(), day) == file.days.rend()) {
            file.days.push_back(day);
        }
    }
    qCDebug(lcRecords).noquote() << path << "is not settled and holds" << file.days.size() << "days";
}

std::vector<int> DayIndex::filesBetween(const QDate &from, const QDate &to) const {
    std::vector<int> numbers;
    for (const auto &[number, file] : files_) {
        if (std::any_of(file.days.begin(), file.days.end(),
                        [&](const QDate &day) { return day >= from && day <= to; })) {
            numbers.push_back(number);
        }
    }
    return numbers;
}

std::vector<MinuteRow> DayIndex::rowsOf(const QDate &day) const {
    std::vector<MinuteRow> rows;
    for (const int number : filesWith(day)) {
        const auto content = records::readFile(recordPath(dataDir_, number));
        for (const QString &text : content.rows) {
            auto row = dayOfRow(text) == day ? parseRow(text) : std::nullopt;
            if (row) {
                rows.push_back(std::move(*row));
            }
        }
    }
    return rows;
}

int DayIndex::lostRows() const {
    int lost = 0;
    for (const auto &[number, file] : files_) {
        lost += file.days.empty() ? file.unreadable : 0;
    }
    return lost;
}

} // namespace zpsg::records
