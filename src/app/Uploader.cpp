#include "app/Uploader.h"

#include "app/Logging.h"
#include "records/Archive.h"
#include "records/CsvLog.h"

namespace zpsg::app {

Uploader::Uploader(Settings &settings, QString dataDir, QObject *parent)
    : QObject(parent)
    , settings_(settings)
    , dataDir_(std::move(dataDir))
    , upload_(settings.text(Setting::CloudAddress)) {
    connect(&upload_, &cloud::RecordUpload::finished, this, &Uploader::finished);
}

void Uploader::checkUploadState(const QString &serial) {
    const int next = settings_.integer(Setting::UploadedFile) + 1;
    if (upload_.busy() || settings_.text(Setting::CloudAddress).isEmpty() ||
        next > settings_.integer(Setting::RecFiledayNumber)) {
        return;
    }
    const QString number = QString::number(next);
    // A file that is gone leaves a log without rows, which is what there is to tell of it.
    const bool minutes = records::exportMinuteLog(dataDir_, number);
    const bool days = records::exportDayLog(dataDir_, number);
    qCDebug(lcApp) << "record file" << next
                   << (minutes && days ? "is sent" : "is sent as far as it is there");
    QString why;
    const QString key = settings_.text(Setting::AccountKey);
    const auto packed = records::packLogs(dataDir_, key, serial, why);
    if (!packed) {
        qCDebug(lcApp).noquote() << "nothing is sent:" << why;
        return;
    }
    number_ = next;
    upload_.send({key, packed->crc32_code, packed->crc32_codeDay, packed->path});
}

void Uploader::finished(const cloud::UploadResult &result) {
    if (result.outcome == cloud::UploadOutcome::Sent) {
        settings_.write({{Setting::UploadedFile, number_}});
    } else {
        qCInfo(lcApp).noquote() << "record file" << number_ << "was not sent:" << result.why;
    }
}

} // namespace zpsg::app
