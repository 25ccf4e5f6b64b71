#include "power/DayProfile.h"

#include "power/Logging.h"

#include <algorithm>
#include <cmath>

namespace zpsg::power {
namespace {

constexpr qint64 kMinutesPerDay = 1440;
/// A timer of a minute that fires a moment early and then a moment late leaves a minute out.
constexpr qint64 kLongestBeat = 2;

const QString kEmptyBucket = QStringLiteral("0");

QString dateText(const QDate &date) { return date.toString(QStringLiteral("MM-dd")); }

qint64 localMinute(const QDateTime &now) {
    return now.date().toJulianDay() * kMinutesPerDay + now.time().msecsSinceStartOfDay() / 60000;
}

QStringList emptyDay() {
    QStringList day;
    day.reserve(kDayBuckets);
    std::fill_n(std::back_inserter(day), kDayBuckets, kEmptyBucket);
    return day;
}

/// What a file holds may be anything: 360 texts that are numbers come out.
QStringList repaired(QStringList watts) {
    while (watts.size() > kDayBuckets) {
        watts.removeLast();
    }
    for (auto &text : watts) {
        bool number = false;
        const float value = text.toFloat(&number);
        if (!number || !std::isfinite(value) || value < 0.0F) {
            text = kEmptyBucket;
        }
    }
    while (watts.size() < kDayBuckets) {
        watts.append(kEmptyBucket);
    }
    return watts;
}

} // namespace

DayProfile::DayProfile(DayStorage storage) : storage_(std::move(storage)), buckets_(emptyDay()) {}

void DayProfile::loadDayProfile(const QDate &today) {
    StoredDay stored = storage_.load();
    buckets_ = repaired(std::move(stored.watts));
    date_ = std::move(stored.date);
    if (date_ != dateText(today)) {
        buckets_ = emptyDay();
        date_ = dateText(today);
        usageMinutes_ = 0;
        storage_.saveDay({buckets_, date_});
    } else {
        const auto used = std::count_if(buckets_.begin(), buckets_.end(),
                                        [](const QString &text) { return text.toFloat() > 0.0F; });
        usageMinutes_ = kBucketMinutes * static_cast<int>(used);
    }
    shownMinutes_ = usageMinutes_;
}

void DayProfile::saveDayProfile() const { storage_.saveWatts(buckets_); }

void DayProfile::addSample(const QString &watts, const QDateTime &now) {
    closeOverdue(localMinute(now));
    lastSample_ = localMinute(now);
    sum_ += watts.toFloat();
    ++count_;
}

void DayProfile::closeOverdue(qint64 minute) {
    if (count_ == 0) {
        return;
    }
    const qint64 end = (lastSample_ / kBucketMinutes + 1) * kBucketMinutes;
    if (minute > end + kLongestBeat || minute < lastSample_) {
        closeBucket(static_cast<int>(end % kMinutesPerDay));
    }
}

std::optional<int> DayProfile::slotToClose(qint64 minute) const {
    const qint64 boundary = minute - minute % kBucketMinutes;
    const bool late = lastTick_ && *lastTick_ < boundary && minute - *lastTick_ <= kLongestBeat;
    // Two beats may fall into one minute as well; the second would overwrite a full bucket with a moment.
    if (boundary == lastClosed_ || (minute != boundary && !late)) {
        return std::nullopt;
    }
    return static_cast<int>(boundary % kMinutesPerDay);
}

void DayProfile::tick(const QDateTime &now) {
    const qint64 minute = localMinute(now);
    closeOverdue(minute);
    if (const auto slot = slotToClose(minute)) {
        closeBucket(*slot);
        lastClosed_ = minute - minute % kBucketMinutes;
    }
    lastTick_ = minute;
    if (minute % kMinutesPerDay == 0 || date_ != dateText(now.date())) {
        loadDayProfile(now.date());
    }
    shownMinutes_ = usageMinutes_++;
}

void DayProfile::closeBucket(int minuteOfDay) {
    if (count_ > 0) {
        const float average = sum_ / static_cast<float>(count_);
        qCDebug(lcPower) << "avgWATTS" << average;
        buckets_[bucketOf(minuteOfDay)] = QString::number(static_cast<double>(average), 'g', 6);
    }
    sum_ = 0.0F;
    count_ = 0;
    saveDayProfile();
}

std::vector<float> DayProfile::bucketWatts() const {
    std::vector<float> watts;
    watts.reserve(kDayBuckets);
    for (const auto &text : buckets_) {
        watts.push_back(text.toFloat());
    }
    return watts;
}

} // namespace zpsg::power
