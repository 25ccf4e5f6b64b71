#include "psu/SupplyMonitor.h"

#include "psu/Logging.h"

#include <algorithm>

Q_LOGGING_CATEGORY(lcPsu, "zpsg.psu", QtInfoMsg)

namespace zpsg::psu {

using namespace std::chrono_literals;

namespace {

/// A supply that never tells its model is not asked for ever: each question without an answer takes a second
/// of the link's time.
constexpr int kMostIdentityAttempts = 3;

template <std::size_t N>
QString blockText(const std::array<std::uint8_t, N> &block) {
    const auto end = std::find(block.begin(), block.end(), 0);
    return QString::fromLatin1(
        QByteArray(reinterpret_cast<const char *>(block.data()), static_cast<int>(end - block.begin())));
}

std::shared_ptr<ExchangeJob> question(std::uint8_t command) {
    return std::make_shared<ExchangeJob>(std::vector{makeRequest({kReadClass, command})});
}

} // namespace

SupplyMonitor::SupplyMonitor(std::unique_ptr<HidBackend> backend, MonitorTiming timing, QObject *parent)
    : QObject(parent), timing_(timing), link_(std::move(backend), timing.port) {
    link_.onLateFinish([this] { QMetaObject::invokeMethod(this, "lateFinish", Qt::QueuedConnection); });
}

bool SupplyMonitor::openAtStart() { return connectWith(OpenOrder::OpenFirst, true); }

bool SupplyMonitor::connectPsu() { return connectWith(OpenOrder::InitialiseFirst, false); }

bool SupplyMonitor::connectWith(OpenOrder order, bool atStart) {
    reconnectAsked_ = false;
    if (!connecting_) {
        pass_.reset(); // an unfinished pass belongs to the handle that is about to be closed
        rawPass_.reset();
        identity_.clear();
        reports_.clear();
        identityAttempts_ = 0;
        connecting_ = std::make_shared<ConnectJob>(order);
        link_.submit(connecting_);
    }
    if (!link_.wait(connecting_, timing_.patience)) {
        return false;
    }
    const auto finished = std::exchange(connecting_, nullptr);
    settle(finished->result(), atStart);
    return path_ != Path::None;
}

void SupplyMonitor::settle(const Connected &result, bool atStart) {
    path_ = result.path;
    if (result.initialiseFailed && !atStart) {
        emit message(QStringLiteral("hid_init"));
    }
    if (result.wakeUpFailed && atStart) {
        emit message(QStringLiteral("hid_write NO"));
    }
    if (path_ == Path::None) {
        qCDebug(lcPsu) << "!handle";
        setState(result.presence == Presence::Absent ? LinkState::NoDevice : LinkState::NoPermission);
        return;
    }
    // Until the first pass says otherwise a supply that opened is taken to be well.
    setState(LinkState::Live);
}

QString SupplyMonitor::readModelText() { return askIdentity(timing_.patience) ? modelText_ : QString(); }

bool SupplyMonitor::askIdentity(std::chrono::milliseconds patience) {
    if (path_ == Path::None) {
        return false;
    }
    if (identity_.empty()) {
        submitIdentity();
    }
    link_.wait(identity_.back(), patience);
    collect();
    return identityKnown_;
}

void SupplyMonitor::submitIdentity() {
    ++identityAttempts_;
    if (path_ == Path::Raw) {
        identity_ = {std::make_shared<RawReadJob>(kRawBlockBReport, kRawBlockSize),
                     std::make_shared<RawReadJob>(kRawBlockAReport, kRawBlockSize)};
    } else {
        identity_ = {question(kSerialCommand), question(kModelTextCommand)};
    }
    for (const auto &job : identity_) {
        link_.submit(job);
    }
}

void SupplyMonitor::collectIdentity() {
    const auto jobs = std::exchange(identity_, {});
    bool known = false;
    if (path_ == Path::Raw) {
        storeRawBlock(1, static_cast<const RawReadJob &>(*jobs.front()));
        known = storeRawBlock(0, static_cast<const RawReadJob &>(*jobs.back()));
    } else {
        const auto &serial = static_cast<const ExchangeJob &>(*jobs.front()).replies();
        const auto &model = static_cast<const ExchangeJob &>(*jobs.back()).replies();
        if (!serial.empty()) {
            serialText_ = QString::fromLatin1(replyText(serial.front()).c_str());
        }
        known = !model.empty();
        if (known) {
            modelText_ = QString::fromLatin1(replyText(model.front()).c_str());
        }
    }
    if (known && !std::exchange(identityKnown_, true)) {
        emit identityTaken();
    }
}

void SupplyMonitor::send(const Request &request) {
    if (path_ == Path::Main) {
        reports_.send(request);
    }
}

void SupplyMonitor::sendRaw(std::vector<std::uint8_t> report) {
    if (path_ == Path::Raw) {
        reports_.sendRaw(std::move(report));
    }
}

void SupplyMonitor::readInfo() {
    collect();
    if (path_ == Path::None || connecting_ || pass_ || rawPass_) {
        return;
    }
    // A supply that did not answer last time is asked without waiting: it held the caller once, that is
    // enough.
    const auto patience = state_ == LinkState::Live ? timing_.patience : 0ms;
    if (path_ == Path::Raw) {
        rawPass_ = std::make_shared<RawReadJob>(kRawSampleReport, kRawSampleSize);
        link_.submit(rawPass_);
        link_.wait(rawPass_, patience);
    } else {
        std::vector<Request> questions;
        questions.reserve(kQuantities.size());
        for (const auto &quantity : kQuantities) {
            questions.push_back(makeRequest({kReadClass, quantity.command}));
        }
        pass_ = std::make_shared<ExchangeJob>(std::move(questions));
        link_.submit(pass_);
        link_.wait(pass_, patience);
    }
    collect();
}

void SupplyMonitor::collect() {
    reports_.goOn();
    if (pass_ && link_.finished(*pass_)) {
        collectMain(*std::exchange(pass_, nullptr));
    }
    if (rawPass_ && link_.finished(*rawPass_)) {
        collectRaw(*std::exchange(rawPass_, nullptr));
    }
    if (!identity_.empty() && link_.finished(*identity_.front()) && link_.finished(*identity_.back())) {
        collectIdentity();
    }
}

void SupplyMonitor::collectMain(const ExchangeJob &job) {
    bool refreshed = false;
    for (const auto &reply : job.replies()) {
        if (const auto monitored = decodeReply(reply)) {
            record_.store(QLatin1String(monitored->key), monitored->value);
            refreshed = true;
        }
    }
    record_.deriveWatts();
    if (derive_) {
        derive_(record_);
    }
    if (refreshed || !job.lost()) {
        passEnded(refreshed);
    }
    if (job.lost() && !reconnectAsked_) {
        reconnectAsked_ = true;
        emit reconnectDue();
    }
}

bool SupplyMonitor::readRawSample() {
    const auto job = std::make_shared<RawReadJob>(kRawSampleReport, kRawSampleSize);
    link_.submit(job);
    if (!link_.wait(job, timing_.patience)) {
        return false;
    }
    collectRaw(*job);
    return job->succeeded();
}

void SupplyMonitor::collectRaw(const RawReadJob &job) {
    if (job.succeeded()) {
        fill(decodeRawSample(std::span<const std::uint8_t, kRawSampleSize>(job.report())));
    }
    passEnded(job.succeeded());
}

void SupplyMonitor::fill(const RawSample &sample) {
    const auto store = [this](const char *key, double value) {
        record_.store(QLatin1String(key), static_cast<float>(value));
    };
    store("VVOut12", sample.volts12);
    store("VIOut12", sample.amps12);
    store("VVOut5", sample.volts5);
    store("VIOut5", sample.amps5);
    store("VVOut33", sample.volts33);
    store("VIOut33", sample.amps33);
    store("WATTS", sample.watts);
    store("FanSpeed", sample.fanRpm);
    store("EFF", sample.efficiency * 100.0);
    store("Temp", sample.celsius);
    store("VIN", sample.acVolts);
}

bool SupplyMonitor::readRawBlock(std::size_t which, std::uint8_t id) {
    const auto job = std::make_shared<RawReadJob>(id, kRawBlockSize);
    link_.submit(job);
    return link_.wait(job, timing_.patience) && storeRawBlock(which, *job);
}

bool SupplyMonitor::storeRawBlock(std::size_t which, const RawReadJob &job) {
    if (!job.succeeded()) {
        return false;
    }
    auto &block = blocks_.at(which);
    std::copy(job.report().begin() + 1, job.report().end(), block.begin());
    (which == 0 ? modelText_ : serialText_) = blockText(block);
    return true;
}

void SupplyMonitor::passEnded(bool refreshed) {
    setState(refreshed ? LinkState::Live : LinkState::Silent);
    if (refreshed) {
        hasReading_ = true;
        emit readingTaken();
        if (!identityKnown_ && identity_.empty() && identityAttempts_ < kMostIdentityAttempts) {
            askIdentity(0ms); // it answers readings now, so it may tell its model as well
        }
    }
}

void SupplyMonitor::setState(LinkState state) {
    if (state_ != state) {
        state_ = state;
        emit stateChanged(state);
    }
}

void SupplyMonitor::lateFinish() {
    collect();
    if (connecting_ && link_.finished(*connecting_)) {
        emit reconnectDue();
    }
}

} // namespace zpsg::psu
