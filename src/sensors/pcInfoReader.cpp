#include "sensors/pcInfoReader.h"

#include "platform/PcSensors.h"
#include "sensors/ChipSource.h"
#include "sensors/HwinfoSource.h"

#include <algorithm>

namespace zpsg::sensors {
namespace {

std::unique_ptr<PcSource> systemSource() {
    const QString processor = QString::fromStdString(platform::processorName()).simplified();
    if (auto chips = platform::openPcChips()) {
        return std::make_unique<ChipSource>(std::move(chips), processor);
    }
    return std::make_unique<HwinfoSource>(platform::openPcSensorMemory(), processor);
}

} // namespace

pcInfoReader::pcInfoReader(QObject *parent) : pcInfoReader(nullptr, parent) {}

pcInfoReader::pcInfoReader(std::unique_ptr<PcSource> source, QObject *parent)
    : QObject(parent), source_(std::move(source)) {
    qRegisterMetaType<PcReading>();
}

pcInfoReader::~pcInfoReader() = default;

PcSensorSource pcInfoReader::source() {
    return platform::pcSensorAccess() == platform::PcSensorAccess::Chips ? PcSensorSource::Hwmon
                                                                         : PcSensorSource::Hwinfo;
}

void pcInfoReader::refreshInfo() {
    // A second or two without values is a driver or a program that was busy.
    constexpr int kEnoughEmpty = 3;
    if (source_ == nullptr) {
        source_ = systemSource();
    }
    const SourceReading result = source_->read(PcSource::Time::clock::now());
    if (result.reading.any()) {
        emptyReadings_ = 0;
        failed_ = false;
        emit infoRead(result.reading);
        return;
    }
    emptyReadings_ = std::min(emptyReadings_ + 1, kEnoughEmpty);
    if (!failed_ && (result.state == SourceState::Gone || emptyReadings_ == kEnoughEmpty)) {
        failed_ = true;
        emit openFail(result.reason);
    }
}

} // namespace zpsg::sensors
