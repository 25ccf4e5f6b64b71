#include "sensors/ChipSource.h"

#include "sensors/CardChoice.h"
#include "sensors/ChipRules.h"
#include "sensors/Logging.h"

#include <algorithm>
#include <utility>

namespace zpsg::sensors {

ChipSource::ChipSource(std::unique_ptr<platform::PcChips> chips, const QString &processor)
    : chips_(std::move(chips)), processor_(processor) {}

SourceReading ChipSource::read(Time now) {
    constexpr std::chrono::seconds kLookEvery{30};
    if (!nextLook_ || now >= *nextLook_) {
        nextLook_ = now + kLookEvery;
        if (chips_->rescan()) {
            choice_ = {};
        }
        chooseAgain_ = true;
        choose(now);
    } else if (std::exchange(chooseAgain_, false)) {
        choose(now);
    }
    SourceReading result;
    result.reading.cpuName = processor_;
    result.reading.gpuName = cardName_;
    for (std::size_t index = 0; index < kPcValues.size(); ++index) {
        const PcValue &row = kPcValues.at(index);
        result.reading.*row.member = value(row, choice_.at(index), now);
    }
    if (std::any_of(choice_.begin(), choice_.end(), [](const auto &sensor) { return sensor.has_value(); })) {
        result.state = SourceState::Working;
        result.reason = QStringLiteral("the sensors of processor and graphics card give no values");
    } else {
        result.reason = QStringLiteral("no sensor of processor or graphics card is known to the system");
    }
    return result;
}

std::optional<double> ChipSource::value(const PcValue &row, std::optional<std::size_t> sensor, Time now) {
    return sensor ? sensible(chips_->read(*sensor, now), row.quantity) : std::nullopt;
}

std::optional<std::size_t> ChipSource::bestOf(const PcValue &row, const std::string &device, Time now) {
    const auto possible = candidates(row, chips_->sensors(), device);
    const auto giving = std::find_if(possible.begin(), possible.end(),
                                     [&](std::size_t sensor) { return value(row, sensor, now).has_value(); });
    if (giving != possible.end()) {
        return *giving;
    }
    return possible.empty() ? std::nullopt : std::optional(possible.front());
}

void ChipSource::choose(Time now) {
    Choice choice;
    for (std::size_t index = 0; index < kPcValues.size(); ++index) {
        if (!kPcValues.at(index).ofCard) {
            choice.at(index) = bestOf(kPcValues.at(index), {}, now);
        }
    }
    chooseCardSensors(choice, now);
    if (choice != choice_) {
        report(choice);
    }
    choice_ = choice;
}

void ChipSource::chooseCardSensors(Choice &choice, Time now) {
    const auto &sensors = chips_->sensors();
    std::vector<Card> cards;
    std::vector<Choice> choices;
    for (const std::string &device : cardDevices(sensors)) {
        Card card{device, isIntegrated(sensors, device), false, {}};
        Choice &own = choices.emplace_back(choice);
        for (std::size_t index = 0; index < kPcValues.size(); ++index) {
            const PcValue &row = kPcValues.at(index);
            if (row.ofCard) {
                own.at(index) = bestOf(row, device, now);
                const auto given = value(row, own.at(index), now);
                card.giving = card.giving || given;
                card.watts = row.member == &PcReading::gpuWatts ? given : card.watts;
            }
        }
        cards.push_back(card);
    }
    const auto chosen = chooseCard(cards, card_);
    card_ = chosen ? cards.at(*chosen).key : std::string();
    cardName_.clear();
    if (chosen) {
        choice = choices.at(*chosen);
        const auto named = std::find_if(sensors.begin(), sensors.end(),
                                        [this](const auto &sensor) { return sensor.device == card_; });
        cardName_ = QString::fromStdString(named->deviceName);
    }
}

void ChipSource::report(const Choice &choice) const {
    for (std::size_t index = 0; index < kPcValues.size(); ++index) {
        if (const auto sensor = choice.at(index)) {
            const auto &from = chips_->sensors().at(*sensor);
            qCDebug(lcSensors, "%s: %s, %s", kPcValues.at(index).name, from.chip.c_str(), from.label.c_str());
        }
    }
}

} // namespace zpsg::sensors
