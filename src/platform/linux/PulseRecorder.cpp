#include "platform/linux/PulseRecorder.h"

#include "platform/linux/Log.h"

namespace zpsg::platform {
namespace {

constexpr const char *kName = "ZPS G";                               // in the server's lists of who records
constexpr std::uint32_t kFragment = kAudioRate / 50 * sizeof(float); // 20 ms
// PipeWire begins the recording of an output that sleeps only when that has something to play. PulseAudio's
// library gives up after 30 s.
constexpr auto kPatience = std::chrono::seconds(1);
constexpr auto kServersChoice = static_cast<std::uint32_t>(-1);
constexpr pa_sample_spec kFormat{PA_SAMPLE_FLOAT32NE, kAudioRate, 1};
constexpr pa_buffer_attr kBuffer{kServersChoice, kServersChoice, kServersChoice, kServersChoice, kFragment};
// The output may go to sleep although it is recorded: while nothing plays, nothing arrives. And the server
// must never move the recording to a microphone because its output has gone.
constexpr auto kFlags = static_cast<pa_stream_flags_t>(PA_STREAM_ADJUST_LATENCY | PA_STREAM_DONT_MOVE |
                                                       PA_STREAM_DONT_INHIBIT_AUTO_SUSPEND);

PulseRecorder *recorder(void *userData) { return static_cast<PulseRecorder *>(userData); }

} // namespace

PulseRecorder::PulseRecorder(const PulseLibrary &pulse, AudioFeed &feed)
    : pulse_(pulse)
    , feed_(feed)
    , loop_(pulse.mainloop_new(), pulse.mainloop_free)
    , context_(loop_ ? pulse.context_new(pulse.mainloop_get_api(loop_.get()), kName) : nullptr,
               pulse.context_unref) {}

PulseRecorder::~PulseRecorder() {
    endStream();
    if (context_) {
        pulse_.context_set_state_callback(context_.get(), nullptr, nullptr);
        pulse_.context_disconnect(context_.get());
    }
}

PulseRecorder::End PulseRecorder::run(const std::atomic<bool> &stop) {
    if (!context_) {
        return End::Lost;
    }
    pulse_.context_set_state_callback(
        context_.get(), [](pa_context *, void *self) { recorder(self)->contextChanged(); }, this);
    if (pulse_.context_connect(context_.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) {
        end_ = End::Lost;
    }
    while (!end_ && !stop) {
        if (!iterate()) {
            end_ = End::Lost;
        }
    }
    if (end_ == End::Lost) {
        qCDebug(lcPlatform, "no sound to follow: %s", pulse_.strerror(pulse_.context_errno(context_.get())));
    }
    return end_.value_or(End::Stopped);
}

void PulseRecorder::wake() const {
    if (loop_) {
        pulse_.mainloop_wakeup(loop_.get());
    }
}

bool PulseRecorder::iterate() {
    auto due = waiting_;
    if (feed_.fading() && (!due || feed_.due() < *due)) {
        due = feed_.due();
    }
    int timeout = -1; // microseconds, or none
    if (due) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(*due - AudioFeed::Clock::now());
        timeout = static_cast<int>(std::max<std::int64_t>(left.count(), 0) * 1000);
    }
    const bool works = pulse_.mainloop_prepare(loop_.get(), timeout) >= 0 &&
                       pulse_.mainloop_poll(loop_.get()) >= 0 && pulse_.mainloop_dispatch(loop_.get()) >= 0;
    const auto now = AudioFeed::Clock::now();
    feed_.quiet(now);
    if (waiting_ && now >= *waiting_) {
        waiting_.reset();
        feed_.tell(AudioState::Running);
    }
    return works;
}

void PulseRecorder::contextChanged() {
    const pa_context_state_t state = pulse_.context_get_state(context_.get());
    if (state == PA_CONTEXT_READY) {
        pulse_.context_set_subscribe_callback(
            context_.get(),
            [](pa_context *, pa_subscription_event_type_t, std::uint32_t, void *self) {
                recorder(self)->lookForOutput();
            },
            this);
        // Changes of the server itself, of which the default output is one.
        pa_operation *subscribing =
            pulse_.context_subscribe(context_.get(), PA_SUBSCRIPTION_MASK_SERVER, nullptr, nullptr);
        if (subscribing != nullptr) {
            pulse_.operation_unref(subscribing);
        }
        lookForOutput();
    } else if (!PA_CONTEXT_IS_GOOD(state)) {
        end_ = End::Lost;
    }
}

void PulseRecorder::lookForOutput() {
    pa_operation *looking = pulse_.context_get_sink_info_by_name(
        context_.get(), "@DEFAULT_SINK@",
        [](pa_context *, const pa_sink_info *output, int end, void *self) {
            recorder(self)->outputFound(output, end);
        },
        this);
    if (looking == nullptr) {
        end_ = End::Lost;
        return;
    }
    pulse_.operation_unref(looking);
}

void PulseRecorder::outputFound(const pa_sink_info *output, int end) {
    if (end > 0) {
        return; // of the list, which has one item
    }
    if (end < 0 || output->monitor_source_name == nullptr) {
        end_ = End::Lost;
        return;
    }
    record(output->monitor_source_name);
}

void PulseRecorder::record(const std::string &monitor) {
    if (stream_ != nullptr && monitor == monitor_) {
        return;
    }
    if (stream_ != nullptr && !recording_) {
        end_ = End::Renew; // what was asked for can't be taken back by itself
        return;
    }
    endStream();
    monitor_ = monitor;
    const std::unique_ptr<pa_proplist, decltype(&pa_proplist_free)> properties(pulse_.proplist_new(),
                                                                               pulse_.proplist_free);
    // PipeWire's word for "may go to sleep although it is recorded"; it does not know the flag.
    pulse_.proplist_sets(properties.get(), "node.passive", "true");
    stream_ = pulse_.stream_new_with_proplist(context_.get(), "What is playing", &kFormat, nullptr,
                                              properties.get());
    if (stream_ == nullptr) {
        end_ = End::Lost;
        return;
    }
    pulse_.stream_set_state_callback(
        stream_, [](pa_stream *, void *self) { recorder(self)->streamChanged(); }, this);
    pulse_.stream_set_read_callback(
        stream_, [](pa_stream *, std::size_t, void *self) { recorder(self)->read(); }, this);
    if (pulse_.stream_connect_record(stream_, monitor.c_str(), &kBuffer, kFlags) < 0) {
        end_ = End::Lost;
    }
    waiting_ = AudioFeed::Clock::now() + kPatience;
}

void PulseRecorder::endStream() {
    waiting_.reset();
    if (stream_ == nullptr) {
        return;
    }
    pulse_.stream_set_state_callback(stream_, nullptr, nullptr);
    pulse_.stream_set_read_callback(stream_, nullptr, nullptr);
    pulse_.stream_disconnect(stream_);
    pulse_.stream_unref(stream_);
    stream_ = nullptr;
    recording_ = false;
}

void PulseRecorder::streamChanged() {
    const pa_stream_state_t state = pulse_.stream_get_state(stream_);
    if (state == PA_STREAM_READY) {
        recording_ = true;
        waiting_.reset();
        feed_.tell(AudioState::Running);
    } else if (!PA_STREAM_IS_GOOD(state)) {
        // A device that was unplugged ends its recording, and another is the default by then. One that can't
        // be recorded is tried again later.
        if (recording_) {
            endStream();
            lookForOutput();
        } else {
            const bool timedOut = pulse_.context_errno(context_.get()) == PA_ERR_TIMEOUT;
            end_ = timedOut ? End::Renew : End::Lost;
        }
    }
}

void PulseRecorder::read() {
    const void *data = nullptr;
    std::size_t bytes = 0;
    while (pulse_.stream_peek(stream_, &data, &bytes) >= 0 && bytes > 0) {
        if (data != nullptr) { // else a hole: the server has dropped some
            feed_.heard({static_cast<const float *>(data), bytes / sizeof(float)}, AudioFeed::Clock::now());
        }
        pulse_.stream_drop(stream_);
    }
}

} // namespace zpsg::platform
