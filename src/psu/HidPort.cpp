#include "psu/HidPort.h"

namespace zpsg::psu {

using namespace std::chrono_literals;

HidPort::HidPort(std::unique_ptr<HidBackend> backend, PortTiming timing)
    : backend_(std::move(backend)), timing_(timing) {}

Connected HidPort::connect(OpenOrder order) {
    Connected result;
    lost_ = false;
    owed_ = 0;
    raw_.reset();
    raw_ = backend_->openRaw(kVendorId, kRawProductId);
    if (raw_) {
        device_.reset();
        result.path = Path::Raw;
        return result;
    }
    device_.reset();
    if (openMain(order, result)) {
        result.path = Path::Main;
    } else if (!result.wakeUpFailed) {
        const auto main = backend_->presence(kVendorId, kMainProductId);
        const auto raw = backend_->presence(kVendorId, kRawProductId);
        result.presence = main == Presence::Absent ? raw : main;
    }
    return result;
}

bool HidPort::openMain(OpenOrder order, Connected &result) {
    if (order == OpenOrder::InitialiseFirst) {
        result.initialiseFailed = !backend_->initialise();
        device_ = backend_->open(kVendorId, kMainProductId);
    } else {
        device_ = backend_->open(kVendorId, kMainProductId);
        if (device_) {
            result.initialiseFailed = !backend_->initialise();
        }
    }
    if (!device_) {
        return false;
    }
    if (device_->write(kWakeUp) < 0) {
        result.wakeUpFailed = true;
        device_.reset();
        return false;
    }
    // The content is ignored; waiting for it keeps question and answer in step from the start.
    if (readUntil(Clock::now() + timing_.reply).count == 0) {
        owed_ = 1;
    }
    return !lost_;
}

std::optional<Reply> HidPort::exchange(const Request &request) {
    if (!device_ || lost_) {
        return std::nullopt;
    }
    dropLateReplies();
    if (lost_) {
        return std::nullopt;
    }
    if (device_->write(request) < 0) {
        lose();
        return std::nullopt;
    }
    const auto deadline = Clock::now() + timing_.reply;
    while (true) {
        Reply reply = readUntil(deadline);
        if (reply.count == 0) {
            ++owed_;
            return std::nullopt;
        }
        if (owed_ > 0 && !answers(reply, request)) {
            --owed_;
            continue;
        }
        if (owed_ > 0) {
            // The same question was asked before: if this is its late answer, the true one follows at once.
            const Reply next = readUntil(std::min(deadline, Clock::now() + timing_.followUp));
            if (answers(next, request)) {
                reply = next;
            }
            owed_ = 0;
        }
        return reply;
    }
}

bool HidPort::readRaw(std::span<std::uint8_t> report) { return raw_ && raw_->getInputReport(report); }

bool HidPort::writeRaw(std::span<const std::uint8_t> report) { return raw_ && raw_->setOutputReport(report); }

Reply HidPort::readUntil(Clock::time_point deadline) {
    Reply reply;
    while (device_ && !stopping_) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
        reply.count = device_->read(reply.bytes, std::clamp(left, 0ms, timing_.slice));
        if (reply.count < 0) {
            lose();
            break;
        }
        if (reply.count > 0 || left <= 0ms) {
            return reply;
        }
    }
    reply.count = 0;
    return reply;
}

void HidPort::dropLateReplies() {
    while (readUntil(Clock::now()).count > 0) {
        owed_ = std::max(owed_ - 1, 0);
    }
}

void HidPort::lose() {
    lost_ = true;
    owed_ = 0;
    device_.reset();
}

} // namespace zpsg::psu
