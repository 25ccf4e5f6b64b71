#include "records/RecordStore.h"

#include "records/Logging.h"

namespace zpsg::records {

void RecordStore::startNewRecordFile(const QDateTime &now) {
    const int number = counters_.recordFile() + 1;
    counters_.setRecordFile(number);
    // When this fails the first row creates the file.
    if (!createFile(recordPath(dataDir_, number), now)) {
        qCDebug(lcRecords) << "record file" << number << "can't be created yet";
    }
}

void RecordStore::flush(const QDateTime &now) {
    Result result;
    while (!kept_.empty() && writeOldest(now, result)) {
    }
}

RecordStore::Result RecordStore::append(const QString &row, const QDateTime &now) {
    kept_.push_back(row);
    if (kept_.size() > kMostKept) {
        kept_.pop_front();
    }
    if (counters_.recordFile() <= 0) {
        startNewRecordFile(now); // settling starts with file 1
    }
    Result result;
    while (!kept_.empty() && writeOldest(now, result)) {
    }
    result.allWritten = kept_.empty();
    result.beganFailing = !result.allWritten && !failing_;
    failing_ = !result.allWritten;
    return result;
}

bool RecordStore::writeOldest(const QDateTime &now, Result &result) {
    int rows = 0;
    switch (appendRow(currentPath(), kept_.front(), now, rows)) {
    case Append::Failed:
        return false;
    case Append::Written:
        kept_.pop_front();
        break;
    case Append::Full: // the program ended between the last row and the new file
        break;
    }
    if (rows >= kRowsPerFile) {
        startNewRecordFile(now);
        result.filled = true;
    }
    return true;
}

} // namespace zpsg::records
