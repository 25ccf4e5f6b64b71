// Reads the PC's own sensors on a thread of its own.
#pragma once

#include "sensors/PcReading.h"

#include <memory>
#include <QObject>

namespace zpsg::sensors {

class PcSource;

/// Lives in the sensor thread; its results and failures reach the main window by queued signals. Nothing is
/// opened before the first refreshInfo(). It goes on trying by itself, so it is never to be restarted.
class pcInfoReader : public QObject {
    Q_OBJECT

public:
    explicit pcInfoReader(QObject *parent = nullptr);
    /// Reads from `source` instead of what the system has.
    explicit pcInfoReader(std::unique_ptr<PcSource> source, QObject *parent = nullptr);
    ~pcInfoReader() override;

    static PcSensorSource source();

public slots:
    /// Once a second, in the sensor thread. Takes well under a millisecond unless a driver is slow.
    void refreshInfo();

signals:
    /// Each second while there are values.
    void infoRead(const zpsg::sensors::PcReading &reading);
    /// Nothing can be read; `reason` is an English line for the log. Once, at the first refresh or when what
    /// there was has gone; when sensors are there and only give no values, after three seconds of that. Again
    /// only after there were values in between.
    void openFail(const QString &reason);

private:
    std::unique_ptr<PcSource> source_;
    int emptyReadings_ = 0; // in a row
    bool failed_ = false;   // openFail() was told
};

} // namespace zpsg::sensors
