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

    enum class End {
        Stopped,
        Lost,  ///< no server or no output
        Renew, ///< the output sleeps on, but only a new connection can wait for it any longer
    };
    /// Returns when it has ended, or once `stop` is set and wake() called.
    End run(const std::atomic<bool> &stop);
    /// From any thread.
    void wake() const;

private:
    bool iterate();
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
    bool recording_ = false;
    // When a recording that was asked for counts as waiting for its output to wake.
    std::optional<AudioFeed::Clock::time_point> waiting_;
    std::optional<End> end_;
};

} // namespace zpsg::platform
