// What travels over a title's socket: the client sends one message, the holder answers with one byte, and the
// connection ends.
#pragma once

#include "platform/WindowMessage.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace zpsg::platform {

/// "ZPSG", number, wParam, lParam; little-endian.
inline constexpr std::size_t kTitleMessageSize = 4 + 4 + 8 + 8;
using TitleMessageBytes = std::array<std::uint8_t, kTitleMessageSize>;

inline constexpr std::uint8_t kAnswerHandled = 1;
inline constexpr std::uint8_t kAnswerNotHandled = 0;

TitleMessageBytes encodeTitleMessage(const WindowMessage &message);
/// None when the bytes are no message.
std::optional<WindowMessage> decodeTitleMessage(const TitleMessageBytes &bytes);

} // namespace zpsg::platform
