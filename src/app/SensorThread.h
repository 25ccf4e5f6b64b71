// The thread that reads the PC's own sensors, while the user wants them read.
#pragma once

#include "sensors/PcReading.h"

#include <QObject>
#include <QThread>
#include <QTimer>

#include <memory>

namespace zpsg::sensors {
class pcInfoReader;
}

namespace zpsg::app {

/// Lives in the GUI thread, as its signals do.
class SensorThread : public QObject {
    Q_OBJECT

public:
    explicit SensorThread(QObject *parent = nullptr);
    ~SensorThread() override;

    void start();
    /// Waits a moment for the thread. One that hangs in a driver is left behind.
    void stop();
    [[nodiscard]] bool running() const { return timer_ != nullptr; }
    /// The latest values; none while the thread stands, or nothing can be read.
    [[nodiscard]] const sensors::PcReading &reading() const { return reading_; }

signals:
    /// Once a second.
    void readingTaken(const zpsg::sensors::PcReading &reading);
    /// Nothing can be read; see sensors::pcInfoReader.
    void openFail(const QString &reason);

private:
    void take(const sensors::PcReading &reading);

    std::unique_ptr<QThread> thread_;
    std::unique_ptr<sensors::pcInfoReader> reader_;
    std::unique_ptr<QTimer> timer_; // without parent: it lives in the thread
    sensors::PcReading reading_;
};

} // namespace zpsg::app
