// The main path's reports as data: what is asked, what is answered, and under which key it is kept.
#pragma once

#include "psu/HidBackend.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace zpsg::psu {

/// A whole output report, report id included; unnamed bytes are zero.
using Request = std::array<std::uint8_t, kOutputReportSize>;

/// One input report as read. `count` bytes are the device's; 0 means that no answer came.
struct Reply {
    std::array<std::uint8_t, kInputReportSize> bytes{};
    int count = 0;
};

/// A request with these payload bytes after the report id; at most 64.
constexpr Request makeRequest(std::initializer_list<std::uint8_t> payload) {
    Request request{};
    std::copy(payload.begin(), payload.end(), request.begin() + 1);
    return request;
}

/// Tells the device that a host is there; sent right after opening.
inline constexpr Request kWakeUp = makeRequest({0xFE, 0x31});

/// First byte of every "read monitored value" request and of its reply.
inline constexpr std::uint8_t kReadClass = 0x31;
/// Second byte of the request for the model text.
inline constexpr std::uint8_t kModelTextCommand = 0x3D;
/// Second byte of the request for the serial number.
inline constexpr std::uint8_t kSerialCommand = 0x3E;
/// What a supply without a serial number answers.
inline constexpr const char *kNoSerial = "noSN";

/// One monitored quantity: the command byte and the record's key.
struct Quantity {
    std::uint8_t command;
    const char *key;
};

/// In the order in which a pass asks for them.
inline constexpr std::array kQuantities{
    Quantity{0x34, "VVOut12"}, Quantity{0x35, "VVOut5"},   Quantity{0x36, "VVOut33"},
    Quantity{0x37, "VIOut12"}, Quantity{0x38, "VIOut5"},   Quantity{0x39, "VIOut33"},
    Quantity{0x3A, "Temp"},    Quantity{0x3B, "FanSpeed"}, Quantity{0x33, "VIN"},
};

/// The command bytes form the closed range 0x33 to 0x3B, each once.
constexpr bool quantitiesAreComplete() {
    for (unsigned command = 0x33; command <= 0x3B; ++command) {
        if (std::count_if(kQuantities.begin(), kQuantities.end(),
                          [command](const Quantity &q) { return q.command == command; }) != 1) {
            return false;
        }
    }
    return kQuantities.size() == 9;
}
static_assert(quantitiesAreComplete());

/// Whether the reply names the request's class and command.
constexpr bool answers(const Reply &reply, const Request &request) {
    return reply.count >= 2 && reply.bytes[0] == request[1] && reply.bytes[1] == request[2];
}

} // namespace zpsg::psu
