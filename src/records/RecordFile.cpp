#include "records/RecordFile.h"

#include "cipher/TextCipher.h"
#include "records/Logging.h"
#include "storage/IniFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace zpsg::records {
namespace {

const QString kTimeKey = QStringLiteral("DATE/Time");
const QString kNumberKey = QStringLiteral("DATE/Number");
const QString kRowGroup = QStringLiteral("Rec");
const QString kTimeFormat = QStringLiteral("yyyy-MM-dd hh:mm:ss");

QString rowKey(int index) {
    return QStringLiteral("%1/%2").arg(kRowGroup).arg(index, 3, 10, QLatin1Char('0'));
}

QString sealed(const QString &row) { return QString::fromLatin1(cipher::encipher(row.toUtf8())); }

/// The keys of the rows that are there, in order; other keys of the group are nobody's.
QStringList rowKeys(QSettings &file) {
    file.beginGroup(kRowGroup);
    QStringList keys = file.childKeys(); // sorted
    file.endGroup();
    keys.erase(std::remove_if(keys.begin(), keys.end(),
                              [](const QString &key) {
                                  bool number = false;
                                  key.toUInt(&number);
                                  return key.size() != 3 || !number;
                              }),
               keys.end());
    return keys;
}

/// Before a file that was cut off is written over, what it was is kept beside it.
void keepIfDamaged(QSettings &file, const QString &path) {
    if (file.status() == QSettings::FormatError && !QFileInfo::exists(path + QStringLiteral(".damaged"))) {
        QFile::copy(path, path + QStringLiteral(".damaged"));
        qCWarning(lcRecords).noquote()
            << path << "is damaged: what can be read is kept, the file as it was is"
            << path + QStringLiteral(".damaged");
    }
}

} // namespace

QString recordPath(const QString &dataDir, int number) {
    return QStringLiteral("%1/Rec/Rec%2.ini").arg(dataDir).arg(number);
}

QString dayPath(const QString &dataDir, int number) {
    return QStringLiteral("%1/RecDay/RecDay%2.ini").arg(dataDir).arg(number);
}

FileContent readFile(const QString &path) {
    FileContent content;
    content.exists = QFileInfo::exists(path);
    if (!content.exists) {
        return content;
    }
    QSettings file(path, QSettings::IniFormat);
    content.created = QDateTime::fromString(file.value(kTimeKey).toString(), kTimeFormat);
    content.claimed = std::max(file.value(kNumberKey).toString().toInt(&content.counted), 0);
    const QStringList keys = rowKeys(file);
    for (const QString &key : keys) {
        const auto row = cipher::decipher(file.value(kRowGroup + QLatin1Char('/') + key).toByteArray());
        if (row) {
            content.rows.append(QString::fromUtf8(*row));
        } else {
            ++content.unreadable;
            qCDebug(lcRecords).noquote() << path << "row" << key << "can't be read";
        }
    }
    if (content.claimed != keys.size()) {
        qCDebug(lcRecords).noquote() << path << "says" << content.claimed << "rows and has" << keys.size();
    }
    return content;
}

Append appendRow(const QString &path, const QString &row, const QDateTime &now, int &rowsNow) {
    int index = 0;
    const bool written = storage::changeIniFile(path, [&](QSettings &file) {
        const QStringList keys = rowKeys(file);
        // "/DATE/Number" is believed unless that would write over a row.
        const int behindLast = keys.isEmpty() ? 0 : keys.last().toInt() + 1;
        bool number = false;
        const int claimed = file.value(kNumberKey).toString().toInt(&number);
        index = number && claimed <= kRowsPerFile ? std::max(behindLast, claimed) : behindLast;
        if (index >= kRowsPerFile) {
            return false;
        }
        keepIfDamaged(file, path);
        if (!file.contains(kTimeKey)) {
            file.setValue(kTimeKey, now.toString(kTimeFormat));
        }
        file.setValue(rowKey(index), sealed(row));
        file.setValue(kNumberKey, QString::number(index + 1));
        return true;
    });
    rowsNow = written ? index + 1 : index;
    if (written) {
        return Append::Written;
    }
    return index >= kRowsPerFile ? Append::Full : Append::Failed;
}

bool createFile(const QString &path, const QDateTime &now) {
    QSettings file(path, QSettings::IniFormat);
    return !rowKeys(file).isEmpty() || writeFile(path, {}, now);
}

bool writeFile(const QString &path, const QStringList &rows, const QDateTime &now) {
    return storage::changeIniFile(path, [&](QSettings &file) {
        file.clear();
        file.setValue(kTimeKey, now.toString(kTimeFormat));
        for (int i = 0; i < rows.size(); ++i) {
            file.setValue(rowKey(i), sealed(rows.at(i)));
        }
        file.setValue(kNumberKey, QString::number(rows.size()));
        return true;
    });
}

} // namespace zpsg::records
