// Readings from the chips that the system reads itself.
#pragma once

#include "sensors/PcSource.h"
#include "sensors/PcValues.h"

namespace zpsg::sensors {

/// Looks every 30 seconds for chips that came or went, chooses then and once more with the next reading which
/// sensor gives which value, and reads only those until the next look. A sensor that gives no sensible value
/// at that moment loses to the next best; a moment without a value in between is just that, so that nothing
/// jumps between two sensors.
class ChipSource final : public PcSource {
public:
    explicit ChipSource(std::unique_ptr<platform::PcChips> chips, const QString &processor);

    SourceReading read(Time now) override;

private:
    /// The sensor of each of kPcValues.
    using Choice = std::array<std::optional<std::size_t>, kPcValues.size()>;

    void choose(Time now);
    void chooseCardSensors(Choice &choice, Time now);
    [[nodiscard]] std::optional<double> value(const PcValue &row, std::optional<std::size_t> sensor,
                                              Time now);
    std::optional<std::size_t> bestOf(const PcValue &row, const std::string &device, Time now);
    void report(const Choice &choice) const;

    std::unique_ptr<platform::PcChips> chips_;
    QString processor_;
    QString cardName_;
    std::string card_; // device of the card that is shown
    Choice choice_;
    std::optional<Time> nextLook_;
    bool chooseAgain_ = false; // what counts energy and was not read of late gives a value only then
};

} // namespace zpsg::sensors
