#include "sensors/CardChoice.h"

#include <algorithm>
#include <tuple>

namespace zpsg::sensors {

std::optional<std::size_t> chooseCard(std::span<const Card> cards, const std::string &shown) {
    constexpr double kHold = 20.0; // watts
    const auto rank = [&shown](const Card &card) {
        return std::tuple(card.giving, !card.integrated,
                          card.watts.value_or(0.0) + (card.key == shown ? kHold : 0.0));
    };
    const auto best = std::max_element(cards.begin(), cards.end(),
                                       [&rank](const Card &a, const Card &b) { return rank(a) < rank(b); });
    return best != cards.end() ? std::optional(static_cast<std::size_t>(best - cards.begin())) : std::nullopt;
}

} // namespace zpsg::sensors
