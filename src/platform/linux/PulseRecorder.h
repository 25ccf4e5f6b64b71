#pragma once

#include "platform/AudioFeed.h"
#include "platform/linux/PulseLibrary.h"

#include <atomic>
#include <memory>
#include <optional>
#include <string>

namespace zpsg::platform {

/// One connection to the sound server, and the recording of what the default output plays. All on the thread
/// that made it, except wake().
class PulseRecorder {
public:
    PulseRecorder(const PulseLibrary &pulse, AudioFeed &feed);
    ~PulseRecorder();
    PulseRecorder(const PulseRecorder &) = delete;
    PulseRecorder &operator=(const PulseRecorder &) = delete;

    enum class End { Stopped, Lost, TimedOut };
    /// Returns once `stop` is set and wake() called; when the server is gone or has no output; or when the
    /// server has left the recording waiting for longer than its library does, which is no loss: the output
    /// sleeps, and a new connection waits on.
    End run(const std::atomic<bool> &stop);
    /// From any thread.
    void wake() const;

private:
    bool iterate();
    [[nodiscard]] std::optional<AudioFeed::Clock::time_point> due() const;
    void patienceIsOver(AudioFeed::Clock::time_point now);
    void contextChanged();
    void lookForOutput();
    void outputFound(const pa_sink_info *output, int end);
    void record(const std::string &monitor);
    void endStream();
    void streamChanged();
    void read();

    const PulseLibrary &pulse_;
    AudioFeed &feed_;
    const std::unique_ptr<pa_mainloop, decltype(&pa_mainloop_free)> loop_;
    const std::unique_ptr<pa_context, decltype(&pa_context_unref)> context_;
    pa_stream *stream_ = nullptr; // owned
    std::string monitor_;         // what is recorded
    AudioFeed::Clock::time_point asked_; // for the recording
    bool recording_ = false;
    std::optional<End> end_;
};

} // namespace zpsg::platform
