// The latest sample: a map from key text to value text that everything downstream reads instead of the
// device.
#pragma once

#include <QMap>
#include <QSet>
#include <QString>

namespace zpsg::psu {

/// Values are single-precision numbers in general format with six significant digits. Entries are overwritten
/// in place and never removed, so a key that was not refreshed keeps its last value. GUI thread only.
class TelemetryRecord {
public:
    /// Seeded with plausible texts, so that arithmetic on it is safe before the first reading. Whether there
    /// was a reading is not to be seen here: ask SupplyMonitor::hasReading().
    TelemetryRecord();

    /// The text under `key`, empty when there is none.
    [[nodiscard]] QString text(const QString &key) const { return values_.value(key); }
    /// The text as a number; 0 when it is missing or none.
    [[nodiscard]] double number(const QString &key) const { return values_.value(key).toDouble(); }
    void store(const QString &key, float value);
    /// Whether the value under `key` came from a supply; false while it is still the seed.
    [[nodiscard]] bool measured(const QString &key) const { return measured_.contains(key); }
    /// WATTS from the three rails' current texts; measured once all six of them are.
    void deriveWatts();

    /// All entries, by key.
    [[nodiscard]] const QMap<QString, QString> &entries() const { return values_; }

private:
    QMap<QString, QString> values_;
    QSet<QString> measured_;
};

} // namespace zpsg::psu
