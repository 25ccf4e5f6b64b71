// Readings from the memory that HWiNFO shares.
#pragma once

#include "platform/PcSensors.h"
#include "sensors/PcSource.h"

namespace zpsg::sensors {

/// Opens the block every five seconds while it isn't there. One that hasn't changed for half a minute,
/// HWiNFO's longest usual pause many times over, is that of a HWiNFO that ended without a word: it is let go,
/// and not believed until it changes.
class HwinfoSource final : public PcSource {
public:
    explicit HwinfoSource(std::unique_ptr<platform::PcSensorMemory> memory, const QString &processor);

    SourceReading read(Time now) override;

private:
    SourceReading letGo(Time now, const QString &reason);

    std::unique_ptr<platform::PcSensorMemory> memory_;
    QString processor_;
    std::vector<std::byte> block_;
    std::string card_;
    std::optional<Time> nextOpen_; // while it isn't there
    QString reason_;               // why it isn't
    std::optional<std::int64_t> pollTime_;
    Time changed_{}; // when that was first seen
};

} // namespace zpsg::sensors
