// The thread that streams the Duo set's frames: one each 40 ms, on a timer of its own.
#pragma once

#include "lighting/DuoEngine.h"
#include "lighting/LedReports.h"

#include <QThread>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>

namespace zpsg::lighting {

/// Milliseconds between two frames. A cycle of kEffectSteps lasts 3.8 s.
inline constexpr int kFrameMilliseconds = 40;
/// How long a frame of another program stays when no other follows.
inline constexpr std::chrono::milliseconds kFrameLasts(2000);

/// The setters may be called from any thread, at any time.
class ZpsCirqDuo_SendCommand : public QThread {
    Q_OBJECT

public:
    /// Takes one report as one transaction on the supply's handle (a write and its read) and returns when it
    /// is over (true) or when the device takes too long (false). Called on this thread.
    using SendFrame = std::function<bool(const psu::Request &)>;
    using Now = std::function<std::chrono::steady_clock::time_point()>;

    explicit ZpsCirqDuo_SendCommand(SendFrame sendFrame, Now now = std::chrono::steady_clock::now,
                                    QObject *parent = nullptr);
    /// Ends the thread; waits for the transaction that is under way.
    ~ZpsCirqDuo_SendCommand() override;

    /// Ends a rest as well: a supply that is back is lit at once.
    void setState(const DuoState &state);
    void setCelsius(std::optional<float> celsius);
    void setOverlay(const Overlay &overlay);
    /// Asked on this thread for each frame while an effect listens. Null: silence. The old source is not in
    /// use any more when this returns.
    void setSoundSource(std::function<Sound()> source);

    /// Shows these colours instead of the effects, until kFrameLasts has passed without another frame; an
    /// overlay and the off switch come first.
    void showFrame(const DuoLeds &leds);

    /// What was sent last; dark before the first frame.
    [[nodiscard]] DuoLeds shown() const;

public slots:
    /// One firing of the timer: the next step, computed and sent. A device that took long for the last
    /// frame is left alone for a while: it has telemetry to answer.
    void runEffect();

protected:
    void run() override;

private:
    std::optional<DuoLeds> nextFrame(std::chrono::steady_clock::time_point now);

    const SendFrame sendFrame_;
    const Now now_;
    mutable std::mutex mutex_; // guards what follows
    std::condition_variable end_;
    bool ending_ = false;
    DuoState state_;
    DuoSurroundings surroundings_;
    std::function<Sound()> soundSource_;
    DuoLeds shown_{};
    DuoLeds frame_{};
    std::chrono::steady_clock::time_point frameUntil_;
    std::chrono::steady_clock::time_point restUntil_;
    // The timer's thread only.
    int step_ = 0;
    int overlayStep_ = 0;
};

} // namespace zpsg::lighting
