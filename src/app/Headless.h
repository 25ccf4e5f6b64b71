// The program without a window: reads the supply once a second and prints each reading.
#pragma once

#include "app/Supply.h"
#include "psu/AlarmSupervisor.h"

#include <QTimer>

#include <cstdio>
#include <memory>
#include <string>

namespace zpsg::platform {
class DeviceWatch;
}

namespace zpsg::app {

enum class ReadingFormat { Text, Json };

class Headless : public QObject {
    Q_OBJECT

public:
    /// Readings go to `out`, one line each and flushed; what a person should know goes to `notes`. Both
    /// outlive this. Curve files are looked for below each of `curveFolders`.
    /// `remedy` is the command that gives this user access to the device.
    Headless(std::unique_ptr<psu::HidBackend> backend, const QStringList &curveFolders, ReadingFormat format,
             std::string remedy, std::FILE *out, std::FILE *notes);
    ~Headless() override;

    /// Opens the supply, takes the first reading and starts the once-a-second timer.
    void start();

signals:
    /// `out` takes no more (its reader has gone, or the disk is full).
    void outputFailed();

private:
    void print();
    void note(psu::LinkState state);
    void deviceChanged();

    Supply supply_;
    psu::SupplyMonitor &monitor_;
    psu::AlarmSupervisor alarms_;
    ReadingFormat format_;
    std::string remedy_;
    std::FILE *out_;
    std::FILE *notes_;
    QTimer readTimer_;
    std::unique_ptr<platform::DeviceWatch> watch_;
    int lines_ = 0;
    bool troubled_ = false; // the last note told of a fault
};

/// One reading as a line (`alarms` are the names of those that hold), without the line's end. Pure, for tests
/// and for whoever prints.
QByteArray readingAsJson(const psu::TelemetryRecord &record, const QString &model, const QStringList &alarms,
                         const QDateTime &time);
QByteArray readingAsText(const psu::TelemetryRecord &record, const QDateTime &time);

} // namespace zpsg::app
