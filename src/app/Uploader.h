// Sends each settled record file to the record service of the user's account, once, when there is one.
#pragma once

#include "app/Settings.h"
#include "cloud/RecordUpload.h"

#include <QObject>

namespace zpsg::app {

/// GUI thread only. Without an address in the settings it does nothing at all.
class Uploader : public QObject {
    Q_OBJECT

public:
    /// `settings` outlives this.
    Uploader(Settings &settings, QString dataDir, QObject *parent = nullptr);

    /// Begins with the oldest settled file that was not sent, unless one is on its way or there is none. One
    /// that the service does not take is tried again with a later call. `serial` is the supply's serial
    /// number; without one, or without an account key, nothing is sent.
    void checkUploadState(const QString &serial);

private:
    void finished(const cloud::UploadResult &result);

    Settings &settings_;
    QString dataDir_;
    cloud::RecordUpload upload_;
    int number_ = 0; ///< of the file that is on its way
};

} // namespace zpsg::app
