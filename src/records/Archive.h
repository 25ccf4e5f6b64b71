// The two logs in one archive, as it goes to the record service.
#pragma once

#include <QString>

#include <optional>

namespace zpsg::records {

struct PackedLogs {
    QString path;          ///< "/zpsapp.zip" below the data directory
    QString crc32_code;    ///< of the minute log in it: CRC-32 (IEEE 802.3), eight lower-case hex digits
    QString crc32_codeDay; ///< of the day log in it
};

/// Copies both logs into "/save/" and packs the copies into "/zpsapp.zip", which replaces an older one.
/// Nothing, and `why` in plain words, when the account key or the serial number is empty (no file is touched
/// then), a log is missing, or something can't be written.
[[nodiscard]] std::optional<PackedLogs> packLogs(const QString &dataDir, const QString &accountKey,
                                                 const QString &serial, QString &why);

} // namespace zpsg::records
