#include "psu/ReportQueue.h"

namespace zpsg::psu {

using namespace std::chrono_literals;

namespace {

int commandOf(std::uint8_t first, std::uint8_t second) { return first * 256 + second; }

} // namespace

void ReportQueue::send(const Request &request) {
    add({commandOf(request[1], request[2]), std::make_shared<ExchangeJob>(std::vector{request})});
}

void ReportQueue::sendRaw(std::vector<std::uint8_t> report) {
    const int command = commandOf(report.at(0), report.at(1));
    add({command, std::make_shared<RawWriteJob>(std::move(report))});
}

void ReportQueue::add(Waiting waiting) {
    if (!waiting_.empty() && waiting_.back().command == waiting.command) {
        waiting_.back() = std::move(waiting);
    } else {
        waiting_.push_back(std::move(waiting));
    }
    goOn();
}

void ReportQueue::goOn() {
    while (!waiting_.empty() && (!underWay_ || link_.finished(*underWay_))) {
        underWay_ = std::move(waiting_.front().job);
        waiting_.pop_front();
        link_.submit(underWay_);
        link_.wait(underWay_, 0ms); // so that its end is told
    }
}

void ReportQueue::clear() {
    waiting_.clear();
    underWay_.reset();
}

bool ReportQueue::waitSent(std::chrono::milliseconds patience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (underWay_) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (!link_.wait(underWay_, std::max(left, 0ms))) {
            return false;
        }
        goOn();
        if (waiting_.empty() && link_.finished(*underWay_)) {
            underWay_.reset();
        }
    }
    return true;
}

bool FrameSender::send(const Request &frame) {
    if (last_ && !link_.finished(*last_) && !link_.wait(last_, patience_)) {
        return false;
    }
    last_ = std::make_shared<ExchangeJob>(std::vector{frame});
    link_.submit(last_);
    return link_.wait(last_, patience_);
}

} // namespace zpsg::psu
