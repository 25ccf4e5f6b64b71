#include "ui/AlarmLogModel.h"

#include "ui/AlarmText.h"
#include "ui/Figures.h"

#include <QSet>

#include <algorithm>

namespace zpsg::ui {
namespace {

using psu::AlarmEntry;
using Entries = std::vector<AlarmEntry>;
using Key = std::pair<int, qint64>;

/// What makes an entry the same one in the next update.
Key keyOf(const AlarmEntry &entry) { return {static_cast<int>(entry.kind), entry.begin.toMSecsSinceEpoch()}; }

bool looksLike(const AlarmEntry &a, const AlarmEntry &b) {
    return a.value == b.value && a.end == b.end && a.holds == b.holds;
}

int offset(Entries::const_iterator from, Entries::const_iterator to) { return static_cast<int>(to - from); }

} // namespace

void AlarmLogModel::setEntries(const Entries &entries, const QDateTime &now) {
    Entries wanted(entries.rbegin(), entries.rend());
    std::stable_partition(wanted.begin(), wanted.end(), [](const AlarmEntry &entry) { return entry.holds; });
    dropAllBut(wanted);
    // From the top down each place gets its entry. What is left over at the end is there twice.
    for (std::size_t place = 0; place < wanted.size(); ++place) {
        const int row = static_cast<int>(place);
        const auto rest = rows_.cbegin() + row;
        const auto findInRest = [&](const AlarmEntry &entry) {
            return std::find_if(rest, rows_.cend(), [key = keyOf(entry)](const AlarmEntry &candidate) {
                return keyOf(candidate) == key;
            });
        };
        const auto found = findInRest(wanted[place]);
        if (found == rows_.cend()) {
            const auto first = wanted.cbegin() + row;
            const auto last = std::find_if(first + 1, wanted.cend(), [&](const AlarmEntry &entry) {
                return findInRest(entry) != rows_.cend();
            });
            beginInsertRows({}, row, row + offset(first, last) - 1);
            rows_.insert(rest, first, last);
            endInsertRows();
            place += static_cast<std::size_t>(offset(first, last)) - 1;
        } else if (found != rest) {
            const int from = offset(rows_.cbegin(), found);
            beginMoveRows({}, from, from, {}, row);
            std::rotate(rows_.begin() + row, rows_.begin() + from, rows_.begin() + from + 1);
            endMoveRows();
        }
        if (!looksLike(rows_[place], wanted[place])) {
            rows_[place] = wanted[place];
            const int changed = static_cast<int>(place);
            emit dataChanged(index(changed, 0), index(changed, kColumns - 1));
        }
    }
    if (rows_.size() > wanted.size()) {
        beginRemoveRows({}, static_cast<int>(wanted.size()), rowCount() - 1);
        rows_.resize(wanted.size());
        endRemoveRows();
    }
    setNow(now);
}

void AlarmLogModel::dropAllBut(const Entries &wanted) {
    QSet<Key> keys;
    for (const AlarmEntry &entry : wanted) {
        keys.insert(keyOf(entry));
    }
    const auto unwanted = [&keys](const AlarmEntry &entry) { return !keys.contains(keyOf(entry)); };
    auto first = std::find_if(rows_.cbegin(), rows_.cend(), unwanted);
    while (first != rows_.cend()) {
        const auto last = std::find_if_not(first, rows_.cend(), unwanted);
        beginRemoveRows({}, offset(rows_.cbegin(), first), offset(rows_.cbegin(), last) - 1);
        first = rows_.erase(first, last);
        endRemoveRows();
        first = std::find_if(first, rows_.cend(), unwanted);
    }
}

void AlarmLogModel::setNow(const QDateTime &now) {
    now_ = now;
    // Those that hold are on top.
    const auto ended =
        std::find_if_not(rows_.cbegin(), rows_.cend(), [](const AlarmEntry &entry) { return entry.holds; });
    if (ended != rows_.cbegin()) {
        emit dataChanged(index(0, Lasted), index(offset(rows_.cbegin(), ended) - 1, Lasted));
    }
}

void AlarmLogModel::retranslate() {
    emit headerDataChanged(Qt::Horizontal, 0, kColumns - 1);
    if (!rows_.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, kColumns - 1));
    }
}

bool AlarmLogModel::anyHolds() const { return !rows_.empty() && rows_.front().holds; }

bool AlarmLogModel::anyEnded() const { return !rows_.empty() && !rows_.back().holds; }

int AlarmLogModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int AlarmLogModel::columnCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : kColumns; }

QString AlarmLogModel::text(const AlarmEntry &entry, int column) const {
    switch (column) {
    case What:
        return alarmTitle(entry.kind);
    case Value:
        return alarmValue(entry.kind, entry.value);
    case Began:
        return momentText(entry.begin);
    case Ended:
        return entry.holds ? qtTrId("ALARM_HOLDS") : momentText(entry.end);
    default:
        break;
    }
    const auto seconds = alarmSeconds(entry, now_);
    return seconds ? durationText(*seconds) : QString(kNoValue);
}

QVariant AlarmLogModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const AlarmEntry &entry = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return text(entry, index.column());
    case Qt::ToolTipRole:
        if (index.column() == What) {
            return alarmAdvice(entry.kind);
        }
        return index.column() >= Ended && !entry.holds && !entry.end.isValid()
                   ? QVariant(qtTrId("ALARM_END_UNKNOWN"))
                   : QVariant();
    case kHoldsRole:
        return entry.holds;
    default:
        return {};
    }
}

QVariant AlarmLogModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case What:
        return qtTrId("ALARM_COLUMN_WHAT");
    case Value:
        return qtTrId("ALARM_COLUMN_VALUE");
    case Began:
        return qtTrId("ALARM_COLUMN_BEGAN");
    case Ended:
        return qtTrId("ALARM_COLUMN_ENDED");
    default:
        return qtTrId("ALARM_COLUMN_LASTED");
    }
}

} // namespace zpsg::ui
