#include "platform/linux/TitleMessage.h"

namespace zpsg::platform {
namespace {

constexpr std::uint32_t kSignature = 0x4753505AU; // "ZPSG"

void put(TitleMessageBytes &bytes, std::size_t at, std::size_t size, std::uint64_t value) {
    for (std::size_t i = 0; i < size; ++i) {
        bytes.at(at + i) = static_cast<std::uint8_t>(value >> (8 * i));
    }
}

std::uint64_t get(const TitleMessageBytes &bytes, std::size_t at, std::size_t size) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < size; ++i) {
        value |= std::uint64_t{bytes.at(at + i)} << (8 * i);
    }
    return value;
}

} // namespace

TitleMessageBytes encodeTitleMessage(const WindowMessage &message) {
    TitleMessageBytes bytes{};
    put(bytes, 0, 4, kSignature);
    put(bytes, 4, 4, message.number);
    put(bytes, 8, 8, message.wParam);
    put(bytes, 16, 8, static_cast<std::uint64_t>(message.lParam));
    return bytes;
}

std::optional<WindowMessage> decodeTitleMessage(const TitleMessageBytes &bytes) {
    if (get(bytes, 0, 4) != kSignature) {
        return std::nullopt;
    }
    return WindowMessage{static_cast<std::uint32_t>(get(bytes, 4, 4)), get(bytes, 8, 8),
                         static_cast<std::int64_t>(get(bytes, 16, 8))};
}

} // namespace zpsg::platform
