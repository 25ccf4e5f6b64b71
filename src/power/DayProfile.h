// The day's output power in 360 buckets of four minutes, and a clock of how long the PC has been running
// today. Time and storage are passed in; whoever owns it calls tick() once a minute.
#pragma once

#include <QDateTime>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace zpsg::power {

inline constexpr int kDayBuckets = 360;
inline constexpr int kBucketMinutes = 4;

/// The bucket of a minute of the day (0 to 1439). The day starts at 06:00: bucket 0 is 06:00, bucket 269 is
/// 23:56, bucket 270 is 00:00 and bucket 359 is 05:56.
[[nodiscard]] constexpr int bucketOf(int minuteOfDay) {
    return (minuteOfDay / kBucketMinutes - 90 + kDayBuckets) % kDayBuckets;
}

/// What survives a restart.
struct StoredDay {
    QStringList watts; ///< one text a bucket, general format with six significant digits
    QString date;      ///< "MM-dd"
};

/// Where it survives.
struct DayStorage {
    std::function<StoredDay()> load;
    std::function<void(const QStringList &watts)> saveWatts;
    std::function<void(const StoredDay &day)> saveDay;
};

class DayProfile {
public:
    /// `storage` is used from loadDayProfile(), saveDayProfile() and tick() only.
    explicit DayProfile(DayStorage storage);

    /// Resumes the stored profile when it is today's, else begins an empty one and stores it. The usage clock
    /// of a resumed day counts four minutes for each bucket that holds something.
    void loadDayProfile(const QDate &today);
    /// Stores the profile as it is.
    void saveDayProfile() const;

    /// Takes in one sample of output power, watts, as the record has it.
    void addSample(const QString &watts, const QDateTime &now);

    /// Once a minute, with the local time: closes a bucket every four minutes, begins a new day at midnight
    /// (or later, when midnight was slept through), and lets the usage clock go on.
    void tick(const QDateTime &now);

    /// 360 texts; "0" is a bucket without data.
    [[nodiscard]] const QStringList &buckets() const { return buckets_; }
    /// The same as numbers, watts.
    [[nodiscard]] std::vector<float> bucketWatts() const;
    [[nodiscard]] const QString &date() const { return date_; }
    /// The usage clock as shown last, minutes.
    [[nodiscard]] int usageMinutes() const { return shownMinutes_; }

private:
    void closeBucket(int minuteOfDay);
    /// After a sleep, or when the clock was set: what was sampled before belongs to the bucket of that time.
    void closeOverdue(qint64 minute);
    [[nodiscard]] std::optional<int> slotToClose(qint64 minute) const;

    DayStorage storage_;
    QStringList buckets_;
    QString date_;
    float sum_ = 0.0F; ///< of the samples since the last bucket was closed
    int count_ = 0;
    qint64 lastSample_ = 0; ///< local minutes since the Julian epoch; valid while count_ is not 0
    int usageMinutes_ = 0;
    int shownMinutes_ = 0;
    std::optional<qint64> lastTick_;   ///< local minutes since the Julian epoch
    std::optional<qint64> lastClosed_; ///< the same, a multiple of four
};

} // namespace zpsg::power
