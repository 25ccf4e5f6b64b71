#include "psu/AlarmLog.h"

#include "psu/Logging.h"
#include "storage/WholeFile.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <optional>

namespace zpsg::psu {
namespace {

constexpr qint64 kRetrySeconds = 60;
/// A thousand entries take some 150 kB; what is larger is no alarm log.
constexpr qint64 kLargestFile = 4LL * 1024 * 1024;

/// The file's words, by AlarmKind.
constexpr std::array kKindWords{"rail12", "rail5", "rail33", "fan", "temperature"};
static_assert(kKindWords.size() == kAlarmKinds);

const QString kKind = QStringLiteral("kind");
const QString kValue = QStringLiteral("value");
const QString kBegin = QStringLiteral("begin");
const QString kEnd = QStringLiteral("end");
const QString kHolds = QStringLiteral("holds");

QString timeText(const QDateTime &time) {
    return time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODateWithMs);
}

QDateTime timeOf(const QJsonValue &text) {
    return QDateTime::fromString(text.toString(), Qt::ISODateWithMs).toLocalTime();
}

QByteArray lineOf(const AlarmEntry &entry) {
    QJsonObject object{{kKind, QLatin1String(kKindWords.at(static_cast<std::size_t>(entry.kind)))},
                       {kValue, entry.value},
                       {kBegin, timeText(entry.begin)}};
    if (entry.end.isValid()) {
        object.insert(kEnd, timeText(entry.end));
    }
    if (entry.holds) {
        object.insert(kHolds, true);
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<AlarmEntry> entryOf(const QByteArray &line) {
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const QString word = object.value(kKind).toString();
    const auto *const kind = std::find_if(kKindWords.begin(), kKindWords.end(), [&word](const char *known) {
        return word == QLatin1String(known);
    });
    AlarmEntry entry;
    entry.begin = timeOf(object.value(kBegin));
    if (kind == kKindWords.end() || !entry.begin.isValid() || !object.value(kValue).isDouble()) {
        return std::nullopt;
    }
    entry.kind = static_cast<AlarmKind>(kind - kKindWords.begin());
    entry.value = object.value(kValue).toDouble();
    entry.end = timeOf(object.value(kEnd)); // "holds" of an earlier run means an end that nobody saw
    return entry;
}

} // namespace

AlarmLog::AlarmLog(QString path) : path_(std::move(path)) { read(); }

void AlarmLog::read() {
    QFile file(path_);
    if (!file.open(QIODevice::ReadOnly)) {
        return;
    }
    bool damaged = file.size() > kLargestFile;
    const QByteArray text = damaged ? QByteArray() : file.readAll();
    for (const QByteArray &line : text.split('\n')) {
        if (const auto entry = entryOf(line)) {
            entries_.push_back(*entry);
        } else {
            damaged = damaged || !line.trimmed().isEmpty();
        }
    }
    if (entries_.size() > kMostEntries) {
        entries_.erase(entries_.begin(), entries_.end() - kMostEntries);
    }
    if (damaged) {
        const QString copy = path_ + QStringLiteral(".damaged-") +
                             QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss"));
        QFile::copy(path_, copy);
        qCWarning(lcPsu).noquote() << path_ << "is damaged: what can be read is kept, the file as it was is"
                                   << copy;
    }
}

void AlarmLog::write() {
    QByteArray text;
    for (const auto &entry : entries_) {
        text += lineOf(entry);
    }
    QString why;
    const bool written = storage::replaceFile(path_, text, why);
    if (!written && !warned_) {
        qCWarning(lcPsu).noquote() << path_ << "is not written, its entries are kept:" << why;
    }
    unwritten_ = !written;
    warned_ = !written;
}

void AlarmLog::begin(AlarmKind kind, double value, const QDateTime &now) {
    if (entries_.size() >= kMostEntries) {
        entries_.erase(entries_.begin());
    }
    entries_.push_back({kind, value, now, {}, true});
    write();
}

void AlarmLog::end(AlarmKind kind, const QDateTime &now) {
    bool changed = false;
    for (auto &entry : entries_) {
        if (entry.holds && entry.kind == kind) {
            entry.holds = false;
            entry.end = now;
            changed = true;
        }
    }
    if (changed) {
        write();
    }
}

void AlarmLog::clear() {
    entries_.erase(std::remove_if(entries_.begin(), entries_.end(),
                                  [](const AlarmEntry &entry) { return !entry.holds; }),
                   entries_.end());
    write();
}

void AlarmLog::retry(const QDateTime &now) {
    // A clock that was set back must not put it off for ever.
    if (unwritten_ && !(lastRetry_.isValid() && std::abs(lastRetry_.secsTo(now)) < kRetrySeconds)) {
        lastRetry_ = now;
        write();
    }
}

std::vector<AlarmEntry> AlarmLog::holding() const {
    std::vector<AlarmEntry> result;
    std::copy_if(entries_.begin(), entries_.end(), std::back_inserter(result),
                 [](const AlarmEntry &entry) { return entry.holds; });
    return result;
}

} // namespace zpsg::psu
