// The Windows half of WindowsHidTest: does what it is told with the code that the program itself uses, one
// command a line of the standard input and one line of answer for each. Numbers are hexadecimal bytes, but
// counts and milliseconds, which are decimal.
//
//   raw open|close            "ok", or "none" when nothing is found
//   raw get ID SIZE           the input report, or "failed"
//   raw set BYTES...          "ok" or "failed"
//   hid initialise|open|close "ok" or "none"
//   hid presence              "absent", "denied" or "present"
//   hid write BYTES...        the count that was written; the rest of the 65 bytes is zero
//   hid read MS               the count and the bytes
//   watch start|stop          "ok" or "none"
//   watch wait MS             how many notices came until one did or the time was up
#include "platform/DeviceWatch.h"
#include "psu/HidApiBackend.h"

#include <windows.h>

#include <array>
#include <charconv>
#include <cstdio>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

using namespace zpsg;

namespace {

using Bytes = std::vector<std::uint8_t>;

std::unique_ptr<psu::HidBackend> backend = psu::makeHidApiBackend();
std::unique_ptr<platform::RawHid> raw;
std::unique_ptr<psu::HidDevice> device;
std::unique_ptr<platform::DeviceWatch> watch;
int notices = 0;

Bytes bytesFrom(std::istream &words) {
    Bytes bytes;
    unsigned value = 0;
    while (words >> std::hex >> value) {
        bytes.push_back(static_cast<std::uint8_t>(value));
    }
    return bytes;
}

std::string shown(const Bytes &bytes) {
    constexpr const char *kDigits = "0123456789abcdef";
    std::string text;
    for (const auto byte : bytes) {
        text += {' ', kDigits[byte >> 4U], kDigits[byte & 0xFU]};
    }
    return text;
}

std::string rawCommand(const std::string &verb, std::istream &words) {
    if (verb == "open") {
        raw = platform::RawHid::open(psu::kVendorId, psu::kRawProductId);
        return raw ? "ok" : "none";
    }
    if (verb == "close") {
        raw.reset();
        return "ok";
    }
    if (verb == "get" && raw) {
        unsigned id = 0;
        std::size_t size = 0;
        words >> std::hex >> id >> std::dec >> size;
        Bytes report(size, 0xEE);
        report.at(0) = static_cast<std::uint8_t>(id);
        return raw->getInputReport(report) ? "ok" + shown(report) : "failed";
    }
    if (verb == "set" && raw) {
        return raw->setOutputReport(bytesFrom(words)) ? "ok" : "failed";
    }
    return "wrong use";
}

std::string hidCommand(const std::string &verb, std::istream &words) {
    if (verb == "initialise") {
        return backend->initialise() ? "ok" : "none";
    }
    if (verb == "open") {
        device = backend->open(psu::kVendorId, psu::kMainProductId);
        return device ? "ok" : "none";
    }
    if (verb == "close") {
        device.reset();
        return "ok";
    }
    if (verb == "presence") {
        const auto presence = backend->presence(psu::kVendorId, psu::kMainProductId);
        return presence == psu::Presence::Absent   ? "absent"
               : presence == psu::Presence::Denied ? "denied"
                                                   : "present";
    }
    if (verb == "write" && device) {
        Bytes report = bytesFrom(words);
        report.resize(psu::kOutputReportSize);
        return std::to_string(device->write(report));
    }
    if (verb == "read" && device) {
        int wait = 0;
        words >> wait;
        std::array<std::uint8_t, psu::kInputReportSize> report{};
        const int count = device->read(report, std::chrono::milliseconds(wait));
        return std::to_string(count) + (count > 0 ? shown({report.begin(), report.begin() + count}) : "");
    }
    return "wrong use";
}

int noticesWithin(int milliseconds) {
    notices = 0;
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(milliseconds);
    for (ULONGLONG now = GetTickCount64(); now < end && notices == 0; now = GetTickCount64()) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - now), QS_ALLINPUT);
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
            DispatchMessageW(&message);
        }
    }
    return notices;
}

std::string watchCommand(const std::string &verb, std::istream &words) {
    if (verb == "start") {
        watch = platform::DeviceWatch::start([](const platform::WindowMessage &message) {
            notices += message.number == platform::kDeviceChange ? 1 : 0;
            return true;
        });
        return watch ? "ok" : "none";
    }
    if (verb == "stop") {
        watch.reset();
        return "ok";
    }
    if (verb == "wait") {
        int wait = 0;
        words >> wait;
        return std::to_string(noticesWithin(wait));
    }
    return "wrong use";
}

} // namespace

int main() {
    std::cout << "ready" << std::endl;
    for (std::string line; std::getline(std::cin, line);) {
        std::istringstream words(line);
        std::string object, verb;
        words >> object >> verb;
        std::cout << (object == "raw"     ? rawCommand(verb, words)
                      : object == "hid"   ? hidCommand(verb, words)
                      : object == "watch" ? watchCommand(verb, words)
                                          : "wrong use")
                  << std::endl;
    }
    return 0;
}
