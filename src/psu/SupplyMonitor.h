// The supply as the program knows it: connected or not and by which path, the latest sample, and the
// once-a-second pass that refreshes it. It holds no timer; who composes the program calls readInfo().
#pragma once

#include "psu/HidLink.h"
#include "psu/ReportQueue.h"
#include "psu/TelemetryDecoder.h"
#include "psu/TelemetryRecord.h"

#include <QObject>

#include <array>
#include <chrono>
#include <functional>

namespace zpsg::psu {

/// What a user needs to know of the connection.
enum class LinkState {
    NoDevice,     ///< no supply is attached
    NoPermission, ///< a supply is attached and this user may not open it
    Silent,       ///< a supply is open and does not answer
    Live,         ///< the last pass was answered
};

/// How long a call here may hold the caller, whatever the device does. A pass that takes longer goes on by
/// itself and its values arrive with a later event.
struct MonitorTiming {
    PortTiming port{};
    std::chrono::milliseconds patience{120}; // an event may wait twice: to connect, and for the model text
};

/// GUI thread only; the device itself is driven by the link's thread.
class SupplyMonitor : public QObject {
    Q_OBJECT

public:
    explicit SupplyMonitor(std::unique_ptr<HidBackend> backend, MonitorTiming timing = {},
                           QObject *parent = nullptr);

    /// The first opening of the program's life: the main device is opened before the library is initialised,
    /// and a refused wake-up is worth a message. True when a supply is there.
    bool openAtStart();

    /// (Re)opens the supply, raw device first. Writes the debug line "!handle" when there is none. False as
    /// well when the system takes longer than the caller may be held; then reconnectDue() follows and the
    /// next call has the result.
    bool connectPsu();

    /// One telemetry pass. Returns at once when no supply is connected or the last pass is still running.
    Q_INVOKABLE void readInfo();

    /// Asks for the serial number, then for the model text (the raw device's blocks B and A), and gives the
    /// model text: Latin-1 characters, empty when there is no answer. One that takes longer than the caller
    /// may be held brings identityTaken() later.
    QString readModelText();
    /// Runs for each sample of the main path after it was decoded and before anybody is told of it: what is
    /// derived from it belongs into the record. Set before the first pass.
    void onSample(std::function<void(TelemetryRecord &)> derive) { derive_ = std::move(derive); }

    /// Sends a report and does not wait for its reply, whose content nobody examines (fan and lighting). Not
    /// sent while the main path is not open; see ReportQueue.
    void send(const Request &request);
    /// The same for an output report of the raw path, id first.
    void sendRaw(std::vector<std::uint8_t> report);
    /// Waits at most `patience` until every report is with the device; true when it is.
    bool waitSent(std::chrono::milliseconds patience) { return reports_.waitSent(patience); }
    /// For a thread that streams frames on the main path; each call bounded by `patience`. The monitor
    /// outlives it.
    [[nodiscard]] FrameSender frameSender(std::chrono::milliseconds patience) { return {link_, patience}; }

    [[nodiscard]] bool mainPathPresent() const { return path_ == Path::Main; }
    [[nodiscard]] bool rawPathPresent() const { return path_ == Path::Raw; }
    [[nodiscard]] LinkState state() const { return state_; }
    /// Whether the record holds at least one value of a supply since the program started.
    [[nodiscard]] bool hasReading() const { return hasReading_; }
    [[nodiscard]] const TelemetryRecord &record() const { return record_; }
    /// The model text of the supply as last read; empty when unknown.
    [[nodiscard]] const QString &modelText() const { return modelText_; }
    /// Its serial number as last read; empty when unknown.
    [[nodiscard]] const QString &serialText() const { return serialText_; }
    /// The supply has said that it has none.
    [[nodiscard]] bool noSerial() const { return serialText_ == QLatin1String(kNoSerial); }
    /// The supply has told its model since the program started.
    [[nodiscard]] bool identityKnown() const { return identityKnown_; }

    // The raw path's sample and blocks, one request each. False when the device failed or was too slow.
    bool readRawSample();
    bool readRawBlockA() { return readRawBlock(0, kRawBlockAReport); }
    bool readRawBlockB() { return readRawBlock(1, kRawBlockBReport); }
    /// The 32 bytes of block A (0) or B (1) as last read.
    [[nodiscard]] const std::array<std::uint8_t, 32> &rawBlock(std::size_t which) const {
        return blocks_.at(which);
    }

signals:
    /// A pass has ended that refreshed at least one value.
    void readingTaken();
    void stateChanged(zpsg::psu::LinkState state);
    /// The supply has told its model for the first time.
    void identityTaken();
    /// The handle was lost or a slow connection attempt has ended: connect again.
    void reconnectDue();
    /// Worth a message box titled "Message".
    void message(const QString &text);

private:
    bool connectWith(OpenOrder order, bool atStart);
    void settle(const Connected &result, bool atStart);
    void collect();
    void collectMain(const ExchangeJob &job);
    void collectRaw(const RawReadJob &job);
    void fill(const RawSample &sample);
    bool readRawBlock(std::size_t which, std::uint8_t id);
    bool storeRawBlock(std::size_t which, const RawReadJob &job);
    bool askIdentity(std::chrono::milliseconds patience);
    void submitIdentity();
    void collectIdentity();
    void passEnded(bool refreshed);
    void setState(LinkState state);
    Q_INVOKABLE void lateFinish();

    MonitorTiming timing_;
    TelemetryRecord record_;
    std::shared_ptr<ConnectJob> connecting_;
    std::shared_ptr<ExchangeJob> pass_;
    std::shared_ptr<RawReadJob> rawPass_;
    std::array<std::array<std::uint8_t, 32>, 2> blocks_{};
    std::vector<std::shared_ptr<LinkJob>> identity_; // serial and model, while they are asked for
    int identityAttempts_ = 0;
    Path path_ = Path::None;
    LinkState state_ = LinkState::NoDevice;
    QString modelText_;
    QString serialText_;
    std::function<void(TelemetryRecord &)> derive_;
    bool identityKnown_ = false;
    bool hasReading_ = false;
    bool reconnectAsked_ = false;
    HidLink link_; // late: its thread ends before anything that it calls back
    ReportQueue reports_{link_};
};

} // namespace zpsg::psu

Q_DECLARE_METATYPE(zpsg::psu::LinkState)
