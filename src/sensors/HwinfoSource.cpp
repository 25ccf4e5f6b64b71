#include "sensors/HwinfoSource.h"

#include "sensors/HwinfoLabels.h"

namespace zpsg::sensors {

HwinfoSource::HwinfoSource(std::unique_ptr<platform::PcSensorMemory> memory, const QString &processor)
    : memory_(std::move(memory)), processor_(processor) {}

SourceReading HwinfoSource::letGo(Time now, const QString &reason) {
    constexpr std::chrono::seconds kOpenEvery{5};
    memory_->close();
    nextOpen_ = now + kOpenEvery;
    reason_ = reason;
    return {SourceState::Gone, {}, reason};
}

SourceReading HwinfoSource::read(Time now) {
    constexpr std::chrono::seconds kStale{30};
    if (nextOpen_ && now < *nextOpen_) {
        return {SourceState::Gone, {}, reason_};
    }
    switch (memory_->copy(block_)) {
    case platform::MemoryState::Missing:
        return letGo(now, QStringLiteral("HWiNFO does not run, or its \"Shared Memory Support\" is off"));
    case platform::MemoryState::Busy:
        return {SourceState::Working, {}, QStringLiteral("HWiNFO does not finish writing its readings")};
    case platform::MemoryState::Copied:
        break;
    }
    const HwinfoBlock block = decodeHwinfo(block_);
    if (block.state == HwinfoBlock::State::Ended) {
        return letGo(now, QStringLiteral("HWiNFO has switched its \"Shared Memory Support\" off"));
    }
    if (block.state == HwinfoBlock::State::Torn) {
        memory_->close(); // what a HWiNFO that died while writing has left would stay as it is
        return {SourceState::Working, {}, QStringLiteral("the shared memory of HWiNFO can't be understood")};
    }
    if (pollTime_ != block.pollTime) {
        pollTime_ = block.pollTime;
        changed_ = now;
    } else if (now - changed_ > kStale) {
        return letGo(now, QStringLiteral("HWiNFO reads its sensors no more"));
    }
    nextOpen_.reset();
    SourceReading result{SourceState::Working, fromHwinfo(block, card_),
                         QStringLiteral("HWiNFO shows no known sensor of processor or graphics card")};
    if (!processor_.isEmpty()) {
        result.reading.cpuName = processor_;
    }
    return result;
}

} // namespace zpsg::sensors
