#include "sensors/HwinfoBlock.h"

#include <bit>
#include <concepts>
#include <optional>

namespace zpsg::sensors {
namespace {

using Bytes = std::span<const std::byte>;

// The layout is packed and little-endian. Header:
constexpr std::size_t kSignature = 0;
constexpr std::size_t kPollTime = 12;
constexpr std::size_t kSensorSection = 20;
constexpr std::size_t kReadingSection = 32;
constexpr std::size_t kHeaderSize = 44;
// An element of the first section: id, instance, the name of HWiNFO's own, the user's name.
constexpr std::size_t kSensorName = 8;
constexpr std::size_t kSensorSize = 264;
// And of the second: type, sensor, id, the label of HWiNFO's own, the user's label, unit, value, and the
// least, the greatest and the mean since the start.
constexpr std::size_t kReadingType = 0;
constexpr std::size_t kReadingSensor = 4;
constexpr std::size_t kReadingLabel = 12;
constexpr std::size_t kReadingUnit = 268;
constexpr std::size_t kReadingValue = 284;
constexpr std::size_t kReadingSize = 316;

constexpr std::size_t kNameSize = 128;
constexpr std::size_t kUnitSize = 16;

/// Four characters in the order of the bytes.
constexpr std::uint32_t signature(std::string_view text) {
    std::uint32_t value = 0;
    for (std::size_t index = 4; index-- > 0;) {
        value = value << 8U | static_cast<unsigned char>(text[index]);
    }
    return value;
}

// Character constants of four are numbers whose first character is the highest byte; taken either way round.
constexpr bool is(std::uint32_t value, std::string_view text, std::string_view reversed) {
    return value == signature(text) || value == signature(reversed);
}

template <std::unsigned_integral Number>
Number number(Bytes bytes, std::size_t at) {
    Number value = 0;
    for (std::size_t index = sizeof(Number); index-- > 0;) {
        value = static_cast<Number>(value << 8U | std::to_integer<Number>(bytes[at + index]));
    }
    return value;
}

/// Up to the zero, or all of it when there is none.
std::string_view text(Bytes bytes, std::size_t at, std::size_t size) {
    const std::string_view whole(reinterpret_cast<const char *>(bytes.data()) + at, size);
    return whole.substr(0, whole.find('\0'));
}

/// A row of elements, all of which are inside the block.
class Section {
public:
    static std::optional<Section> at(Bytes bytes, std::size_t header, std::size_t leastSize) {
        const auto offset = number<std::uint32_t>(bytes, header);
        const auto size = number<std::uint32_t>(bytes, header + 4);
        const auto count = number<std::uint32_t>(bytes, header + 8);
        // In 64 bits: the greatest of these numbers stay below 2^64.
        const auto end = std::uint64_t{offset} + std::uint64_t{size} * count;
        if (offset < kHeaderSize || size < leastSize || end > bytes.size()) {
            return std::nullopt;
        }
        return Section(bytes.subspan(offset), size, count);
    }

    [[nodiscard]] std::size_t count() const { return count_; }
    [[nodiscard]] Bytes element(std::size_t index) const { return bytes_.subspan(index * size_, size_); }

private:
    Section(Bytes bytes, std::size_t size, std::size_t count) : bytes_(bytes), size_(size), count_(count) {}

    Bytes bytes_;
    std::size_t size_;
    std::size_t count_;
};

} // namespace

HwinfoBlock decodeHwinfo(Bytes bytes) {
    HwinfoBlock block;
    if (bytes.size() < kHeaderSize) {
        return block;
    }
    const auto sign = number<std::uint32_t>(bytes, kSignature);
    if (is(sign, "DEAD", "DAED")) {
        block.state = HwinfoBlock::State::Ended;
        return block;
    }
    const auto sensors = Section::at(bytes, kSensorSection, kSensorSize);
    const auto readings = Section::at(bytes, kReadingSection, kReadingSize);
    if (!is(sign, "HWiS", "SiWH") || !sensors || !readings) {
        return block;
    }
    block.state = HwinfoBlock::State::Good;
    block.pollTime = static_cast<std::int64_t>(number<std::uint64_t>(bytes, kPollTime));
    for (std::size_t index = 0; index < readings->count(); ++index) {
        const Bytes element = readings->element(index);
        const std::size_t sensor = number<std::uint32_t>(element, kReadingSensor);
        if (sensor < sensors->count()) {
            block.readings.push_back({HwinfoType{number<std::uint32_t>(element, kReadingType)},
                                      text(sensors->element(sensor), kSensorName, kNameSize),
                                      text(element, kReadingLabel, kNameSize),
                                      text(element, kReadingUnit, kUnitSize),
                                      std::bit_cast<double>(number<std::uint64_t>(element, kReadingValue))});
        }
    }
    return block;
}

} // namespace zpsg::sensors
