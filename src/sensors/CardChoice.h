// Which of several graphics cards is shown.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace zpsg::sensors {

struct Card {
    std::string key;         ///< stays the same as long as the card is there
    bool integrated = false; ///< part of the processor, as far as that can be told
    bool giving = false;     ///< at least one value now
    std::optional<double> watts;
};

/// The card that takes the highest power of those on a card of their own; of those in the processor only when
/// no other gives a value. The one with the key `shown` counts as taking 20 W more, so that two cards at the
/// same work don't change places all the time. Nothing when there are no cards.
std::optional<std::size_t> chooseCard(std::span<const Card> cards, const std::string &shown);

} // namespace zpsg::sensors
