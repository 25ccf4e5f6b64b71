#include "records/Archive.h"

#include "records/CsvLog.h"
#include "records/Logging.h"
#include "storage/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <array>
#include <memory>
#include <zip.h>
#include <zlib.h>

namespace zpsg::records {
namespace {

struct PackedFile {
    QByteArray name;
    QByteArray content;
};

struct FreeSource {
    void operator()(zip_source_t *source) const { zip_source_free(source); }
};
struct DiscardArchive {
    void operator()(zip_t *archive) const { zip_discard(archive); }
};
using Source = std::unique_ptr<zip_source_t, FreeSource>;
using Archive = std::unique_ptr<zip_t, DiscardArchive>;

QString crc32Hex(const QByteArray &content) {
    const auto crc =
        ::crc32(0, reinterpret_cast<const Bytef *>(content.constData()), static_cast<uInt>(content.size()));
    return QStringLiteral("%1").arg(static_cast<quint32>(crc), 8, 16, QLatin1Char('0'));
}

/// The log as it is copied: what is packed and what the sums are of are the same bytes.
std::optional<PackedFile> copyInto(const QString &folder, const QString &log, QString &why) {
    QFile file(log);
    if (!file.open(QIODevice::ReadOnly)) {
        why = QStringLiteral("%1: %2").arg(log, file.errorString());
        return std::nullopt;
    }
    const QString name = QFileInfo(log).fileName();
    PackedFile copy{name.toUtf8(), file.readAll()};
    if (!QDir().mkpath(folder) || !storage::replaceFile(QDir(folder).filePath(name), copy.content, why)) {
        why = QStringLiteral("%1 can't be copied into %2: %3").arg(log, folder, why);
        return std::nullopt;
    }
    return copy;
}

/// Files point into what the caller keeps until the archive is closed.
bool addAll(zip_t *archive, const std::array<PackedFile, 2> &files) {
    for (const auto &[name, content] : files) {
        Source source(
            zip_source_buffer(archive, content.constData(), static_cast<zip_uint64_t>(content.size()), 0));
        if (!source || zip_file_add(archive, name.constData(), source.get(), ZIP_FL_ENC_UTF_8) < 0) {
            return false;
        }
        static_cast<void>(source.release()); // the archive owns it now
    }
    return true;
}

QByteArray readAll(zip_source_t *source) {
    zip_stat_t about;
    if (zip_source_stat(source, &about) != 0 || zip_source_open(source) != 0) {
        return {};
    }
    QByteArray bytes(static_cast<int>(about.size), '\0');
    const auto got = zip_source_read(source, bytes.data(), about.size);
    zip_source_close(source);
    return got == bytes.size() ? bytes : QByteArray();
}

/// In memory: the logs are small, and the file on disk is replaced like every other. Empty when the library
/// fails.
QByteArray zipped(const std::array<PackedFile, 2> &files) {
    const Source target(zip_source_buffer_create(nullptr, 0, 0, nullptr));
    if (!target) {
        return {};
    }
    Archive archive(zip_open_from_source(target.get(), ZIP_TRUNCATE, nullptr));
    if (!archive) {
        return {};
    }
    zip_source_keep(target.get()); // the archive would free it when it is closed
    if (!addAll(archive.get(), files) || zip_close(archive.get()) != 0) {
        return {};
    }
    static_cast<void>(archive.release()); // closed
    return readAll(target.get());
}

} // namespace

std::optional<PackedLogs> packLogs(const QString &dataDir, const QString &accountKey, const QString &serial,
                                   QString &why) {
    if (accountKey.isEmpty() || serial.isEmpty()) {
        why = accountKey.isEmpty() ? QStringLiteral("there is no account key")
                                   : QStringLiteral("there is no serial number");
        return std::nullopt;
    }
    const QString folder = dataDir + QStringLiteral("/save");
    const auto days = copyInto(folder, dayLogPath(dataDir), why);
    const auto minutes = days ? copyInto(folder, minuteLogPath(dataDir), why) : std::nullopt;
    if (!minutes) {
        return std::nullopt;
    }
    PackedLogs packed{dataDir + QStringLiteral("/zpsapp.zip"), crc32Hex(minutes->content),
                      crc32Hex(days->content)};
    if (QFile::exists(packed.path) && !QFile::remove(packed.path)) {
        why = QStringLiteral("the old %1 can't be removed").arg(packed.path);
        return std::nullopt;
    }
    const QByteArray bytes = zipped({*days, *minutes});
    if (bytes.isEmpty()) {
        why = QStringLiteral("the logs can't be packed");
        return std::nullopt;
    }
    if (!storage::replaceFile(packed.path, bytes, why)) {
        why = QStringLiteral("%1: %2").arg(packed.path, why);
        return std::nullopt;
    }
    qCDebug(lcRecords).noquote() << "packed" << packed.path << bytes.size() << "bytes";
    return packed;
}

} // namespace zpsg::records
