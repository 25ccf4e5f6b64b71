#include "app/SensorThread.h"

#include "app/Logging.h"
#include "sensors/pcInfoReader.h"

#include <QDeadlineTimer>

#include <chrono>

namespace zpsg::app {

using sensors::pcInfoReader;

namespace {

/// A refresh takes milliseconds.
constexpr std::chrono::seconds kSensorPatience{2};

} // namespace

SensorThread::SensorThread(QObject *parent) : QObject(parent) { qRegisterMetaType<sensors::PcReading>(); }

SensorThread::~SensorThread() { stop(); }

void SensorThread::start() {
    if (running()) {
        return;
    }
    reader_ = std::make_unique<pcInfoReader>();
    timer_ = std::make_unique<QTimer>();
    timer_->setInterval(std::chrono::seconds(1));
    connect(reader_.get(), &pcInfoReader::infoRead, this, &SensorThread::take);
    connect(reader_.get(), &pcInfoReader::openFail, this, &SensorThread::openFail);
    connect(timer_.get(), &QTimer::timeout, reader_.get(), &pcInfoReader::refreshInfo);
    thread_ = std::make_unique<QThread>();
    connect(thread_.get(), &QThread::started, timer_.get(), qOverload<>(&QTimer::start));
    connect(thread_.get(), &QThread::started, reader_.get(), &pcInfoReader::refreshInfo);
    connect(thread_.get(), &QThread::finished, timer_.get(), &QTimer::stop);
    reader_->moveToThread(thread_.get());
    timer_->moveToThread(thread_.get());
    thread_->start(QThread::InheritPriority);
}

void SensorThread::stop() {
    reading_ = {};
    if (!running()) {
        return;
    }
    thread_->quit();
    if (thread_->wait(QDeadlineTimer(kSensorPatience))) {
        timer_.reset();
        reader_.reset();
        thread_.reset();
        return;
    }
    // Destroying any of it would end the program, or pull the rug from under the driver.
    qCWarning(lcApp) << "a sensor doesn't answer: its thread is left behind";
    disconnect(reader_.get(), nullptr, this, nullptr);
    static_cast<void>(timer_.release());
    static_cast<void>(reader_.release());
    static_cast<void>(thread_.release());
}

void SensorThread::take(const sensors::PcReading &reading) {
    if (running()) { // the last one may still have been on its way
        reading_ = reading;
        emit readingTaken(reading);
    }
}

} // namespace zpsg::app
