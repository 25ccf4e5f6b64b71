#include "records/CsvLog.h"

#include "records/Logging.h"
#include "records/RecordFile.h"
#include "records/RecordRow.h"
#include "storage/WholeFile.h"

#include <algorithm>

namespace zpsg::records {
namespace {

static_assert(std::count(kMinuteLogColumns.begin(), kMinuteLogColumns.end(), ',') == kRowFields - 1);
static_assert(std::count(kDayLogColumns.begin(), kDayLogColumns.end(), ',') == kRowFields);

/// 0 for what names no record file.
int fileNumber(const QString &text) {
    const int number = text.toInt();
    return number > 0 && QString::number(number) == text ? number : 0;
}

bool exportLog(const QString &source, std::string_view columns, const QString &log) {
    const auto content = readFile(source);
    if (!content.exists) {
        qCDebug(lcRecords).noquote() << source << "is not there to be exported";
    }
    QByteArray text(columns.data(), static_cast<int>(columns.size()));
    text += '\n';
    for (const QString &row : content.rows) {
        text += row.toUtf8() + '\n';
    }
    QString why;
    if (!storage::replaceFile(log, text, why)) {
        qCDebug(lcRecords).noquote() << log << "can't be written:" << why;
        return false;
    }
    return content.exists;
}

} // namespace

QString minuteLogPath(const QString &dataDir) { return dataDir + QStringLiteral("/zpsapp.csv"); }

QString dayLogPath(const QString &dataDir) { return dataDir + QStringLiteral("/zpsappday.csv"); }

bool exportMinuteLog(const QString &dataDir, const QString &number) {
    return exportLog(recordPath(dataDir, fileNumber(number)), kMinuteLogColumns, minuteLogPath(dataDir));
}

bool exportDayLog(const QString &dataDir, const QString &number) {
    return exportLog(dayPath(dataDir, fileNumber(number)), kDayLogColumns, dayLogPath(dataDir));
}

} // namespace zpsg::records
