// What the PC is playing: the monitor of the default output (PulseAudio or PipeWire) on Linux, WASAPI
// loopback on Windows.
#pragma once

#include <functional>
#include <memory>
#include <span>

namespace zpsg::platform {

enum class AudioState {
    Starting, ///< looking for the output; never told
    Running,  ///< samples arrive, while something plays
    NoDevice, ///< no sound server or no output; looked for again by itself every few seconds
};

/// Samples a second of what is handed on.
inline constexpr int kAudioRate = 48000;

/// Called on the capture's own thread, one call at a time. A call must not end the capture.
struct AudioListener {
    /// Mono, -1 to 1 and beyond when the mix is too loud; about 20 ms at a time. When nothing plays any more
    /// a second of silence follows, and then nothing.
    std::function<void(std::span<const float>)> samples;
    std::function<void(AudioState)> state; ///< when it has changed
};

class AudioCapture {
public:
    /// Ends the capture; no callback runs after it returns.
    virtual ~AudioCapture() = default;
    AudioCapture(const AudioCapture &) = delete;
    AudioCapture &operator=(const AudioCapture &) = delete;

    /// Never blocks on the sound server; everything else is told through `listener`. Follows the default
    /// output when that changes.
    static std::unique_ptr<AudioCapture> start(AudioListener listener);

protected:
    AudioCapture() = default;
};

} // namespace zpsg::platform
