// A data directory with record files as the recorder and the settlement leave them.
#pragma once

#include "records/RecordFile.h"
#include "records/RecordRow.h"
#include "records/Settlement.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace zpsg::test {

/// A minute with this output power.
inline QString minute(const QDateTime &time, float watts = 60.0F) {
    psu::TelemetryRecord record;
    record.store(QStringLiteral("WATTS"), watts);
    record.store(QStringLiteral("EFF"), 90.0F);
    return records::makeRow(record, time, QStringLiteral("SN1"), {}, [] { return 0U; });
}

inline QByteArray contentOf(const QString &name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

inline bool putContent(const QString &name, const QByteArray &content) {
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

class RecordFolder {
public:
    [[nodiscard]] QString path() const { return dir_.path(); }
    [[nodiscard]] QString path(const char *name) const { return dir_.filePath(QLatin1String(name)); }

    /// A record file with these rows, and its day file when it is settled.
    void put(int number, const QStringList &rows, bool settled = false) const {
        const QDateTime now(QDate(2026, 1, 1), QTime(0, 0));
        EXPECT_TRUE(records::writeFile(records::recordPath(path(), number), rows, now));
        if (settled) {
            QStringList days;
            for (const auto &day : records::sumByDay(rows).days) {
                days.append(day.text());
            }
            EXPECT_TRUE(records::writeFile(records::dayPath(path(), number), days, now));
        }
    }

    /// Changes a letter of the file's last row, so that it can't be deciphered.
    void spoilLastRow(const QString &name) const {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        QByteArray content = file.readAll();
        content[content.size() - 20] = content[content.size() - 20] == 'A' ? 'B' : 'A';
        file.seek(0);
        file.write(content);
    }

private:
    QTemporaryDir dir_;
};

} // namespace zpsg::test
