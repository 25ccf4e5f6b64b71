#include "records/RangeExport.h"

#include "records/CsvLog.h"
#include "records/RecordFile.h"
#include "records/Settlement.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace zpsg::records {
namespace {

constexpr int kIndexFilesPerStep = 32; // day files, some 40 microseconds each

// The shares of the whole that finding the files takes, as a bar shows it.
constexpr double kIndexShareMinutes = 0.1;
constexpr double kIndexShareDays = 0.5;

} // namespace

std::unique_ptr<QFileDevice> exportTarget(const QString &path, QString &why) {
    const QFileInfo info(path);
    std::unique_ptr<QFileDevice> target;
    if (info.exists() && !info.isFile() && !info.isDir()) {
        target = std::make_unique<QFile>(path); // replacing would put a file in a device's place
    } else {
        target = std::make_unique<QSaveFile>(path);
    }
    if (target->open(QIODevice::WriteOnly)) {
        return target;
    }
    why = target->errorString();
    return nullptr;
}

std::unique_ptr<QFileDevice> exportTarget(std::FILE *stream, QString &why) {
    auto target = std::make_unique<QFile>();
    if (target->open(stream, QIODevice::WriteOnly)) {
        return target;
    }
    why = target->errorString();
    return nullptr;
}

RangeExport::RangeExport(DayIndex &index, const QDate &from, const QDate &to, ExportMode mode,
                         std::unique_ptr<QFileDevice> target)
    : index_(index), from_(from), to_(to), mode_(mode), target_(std::move(target)) {
    index_.begin();
    const auto columns = mode_ == ExportMode::Minutes ? kMinuteLogColumns : kDayLogColumns;
    if (!write(QByteArray(columns.data(), static_cast<int>(columns.size())) + '\n')) {
        state_ = State::Failed;
    }
}

RangeExport::State RangeExport::step() {
    if (state_ != State::Working) {
        return state_;
    }
    if (indexing_) {
        indexing_ = index_.step(kIndexFilesPerStep);
        if (!indexing_) {
            files_ = index_.filesBetween(from_, to_);
            unreadable_ = index_.lostRows();
        }
    } else if (next_ < files_.size()) {
        state_ = takeFile(files_[next_++]) ? State::Working : State::Failed;
    } else {
        state_ = writeDays() && finish() ? State::Done : State::Failed;
    }
    return state_;
}

double RangeExport::progress() const {
    if (state_ == State::Done) {
        return 1.0;
    }
    const double share = mode_ == ExportMode::Minutes ? kIndexShareMinutes : kIndexShareDays;
    if (indexing_) {
        return share * index_.progress();
    }
    const double written =
        files_.empty() ? 1.0 : static_cast<double>(next_) / static_cast<double>(files_.size());
    return share + (1.0 - share) * written;
}

bool RangeExport::takeFile(int number) {
    if (mode_ == ExportMode::Minutes) {
        return writeMinutes(number);
    }
    sumDays(number);
    return true;
}

bool RangeExport::writeMinutes(int number) {
    const auto content = readFile(recordPath(index_.dataDir(), number));
    missing_ += content.exists ? 0 : 1;
    unreadable_ += content.unreadable;
    QByteArray lines;
    for (const QString &row : content.rows) {
        const QDate day = dayOfRow(row);
        if (!day.isValid()) {
            ++unreadable_;
        } else if (inRange(day)) {
            lines += row.toUtf8() + '\n';
            ++rows_;
        }
    }
    return write(lines);
}

void RangeExport::sumDays(int number) {
    auto days = settledDays(index_.dataDir(), number);
    if (!days) {
        const auto content = readFile(recordPath(index_.dataDir(), number));
        auto sums = sumByDay(content.rows);
        unreadable_ += content.unreadable + sums.notRows;
        days = std::move(sums.days);
    }
    for (const DaySums &day : *days) {
        if (inRange(day.date())) {
            days_.try_emplace(day.date(), day.date()).first->second.add(day);
        }
    }
}

bool RangeExport::writeDays() {
    QByteArray lines;
    for (const auto &[date, sums] : days_) {
        lines += sums.text().toUtf8() + '\n';
        ++rows_;
    }
    return write(lines);
}

bool RangeExport::finish() {
    if (!target_->flush()) {
        return false;
    }
    auto *file = qobject_cast<QSaveFile *>(target_.get());
    return file == nullptr || file->commit();
}

} // namespace zpsg::records
