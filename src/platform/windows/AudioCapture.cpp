#include "platform/AudioCapture.h"

#include "platform/AudioFeed.h"
#include "platform/windows/MonoMix.h"
#include "platform/windows/Win32.h"

// clang-format off: the others need the first
#include <audioclient.h>
#include <mmdeviceapi.h>
#include <objbase.h>
// clang-format on

#include <optional>
#include <thread>

namespace zpsg::platform {
namespace {

using namespace std::chrono_literals;

constexpr auto kPoll = 20ms; // loopback has no event of its own before Windows 10
constexpr auto kIdlePoll = 100ms;
constexpr auto kDefaultCheck = 1s;            // whether another output has become the default
constexpr REFERENCE_TIME kBuffer = 2'000'000; // 200 ms in units of 100 ns

struct Release {
    void operator()(IUnknown *object) const { object->Release(); }
    void operator()(void *memory) const { CoTaskMemFree(memory); }
};
template <class Interface>
using Com = std::unique_ptr<Interface, Release>;

// What the interface's own calls return objects through.
template <class Interface, class Call>
Com<Interface> obtain(const char *what, Call call) {
    void *object = nullptr;
    const HRESULT result = call(&object);
    if (FAILED(result)) {
        debugError(what, static_cast<DWORD>(result));
        return nullptr;
    }
    return Com<Interface>(static_cast<Interface *>(object));
}

std::optional<MonoMix> mixOf(const WAVEFORMATEX &format) {
    WORD tag = format.wFormatTag;
    if (tag == WAVE_FORMAT_EXTENSIBLE) {
        // The GUIDs of the subtypes begin with the plain tag.
        tag = static_cast<WORD>(reinterpret_cast<const WAVEFORMATEXTENSIBLE &>(format).SubFormat.Data1);
    }
    const bool isFloat = tag == WAVE_FORMAT_IEEE_FLOAT && format.wBitsPerSample == 32;
    const bool isInt16 = tag == WAVE_FORMAT_PCM && format.wBitsPerSample == 16;
    if ((!isFloat && !isInt16) || format.nChannels == 0 || format.nSamplesPerSec == 0) {
        OutputDebugStringA("zpsg.platform: an output with samples of another kind\n");
        return std::nullopt;
    }
    return MonoMix(isFloat ? SampleType::Float : SampleType::Int16, format.nChannels,
                   static_cast<int>(format.nSamplesPerSec), kAudioRate);
}

Com<IMMDevice> defaultOutput(IMMDeviceEnumerator &devices) {
    return obtain<IMMDevice>("default output", [&](void **object) {
        return devices.GetDefaultAudioEndpoint(eRender, eConsole, reinterpret_cast<IMMDevice **>(object));
    });
}

std::wstring idOf(IMMDevice &device) {
    wchar_t *text = nullptr;
    if (FAILED(device.GetId(&text))) {
        return {};
    }
    const std::unique_ptr<wchar_t, Release> owner(text);
    return text;
}

// Recording what one output plays.
class Loopback {
public:
    static std::unique_ptr<Loopback> open(IMMDevice &device) {
        auto loopback = std::make_unique<Loopback>();
        return loopback->start(device) ? std::move(loopback) : nullptr;
    }

    /// Hands on all there is; false when the output is gone.
    bool read(AudioFeed &feed) {
        for (;;) {
            UINT32 frames = 0;
            if (FAILED(capture_->GetNextPacketSize(&frames))) {
                return false;
            }
            if (frames == 0) {
                return true;
            }
            BYTE *data = nullptr;
            DWORD flags = 0;
            if (FAILED(capture_->GetBuffer(&data, &frames, &flags, nullptr, nullptr))) {
                return false;
            }
            const bool silent = (flags & AUDCLNT_BUFFERFLAGS_SILENT) != 0;
            feed.heard(mix_->convert(silent ? nullptr : data, frames), AudioFeed::Clock::now());
            if (FAILED(capture_->ReleaseBuffer(frames))) {
                return false;
            }
        }
    }

private:
    bool start(IMMDevice &device) {
        client_ = obtain<IAudioClient>("audio client", [&](void **object) {
            return device.Activate(__uuidof(IAudioClient), CLSCTX_ALL, nullptr, object);
        });
        WAVEFORMATEX *format = nullptr;
        if (!client_ || FAILED(client_->GetMixFormat(&format))) {
            return false;
        }
        const std::unique_ptr<WAVEFORMATEX, Release> owner(format);
        mix_ = mixOf(*format);
        const HRESULT result =
            mix_ ? client_->Initialize(AUDCLNT_SHAREMODE_SHARED, AUDCLNT_STREAMFLAGS_LOOPBACK, kBuffer, 0,
                                       format, nullptr)
                 : E_FAIL;
        if (FAILED(result)) {
            debugError("audio loopback", static_cast<DWORD>(result));
            return false;
        }
        capture_ = obtain<IAudioCaptureClient>("audio capture", [&](void **object) {
            return client_->GetService(__uuidof(IAudioCaptureClient), object);
        });
        return capture_ && SUCCEEDED(client_->Start());
    }

    Com<IAudioClient> client_;
    Com<IAudioCaptureClient> capture_;
    std::optional<MonoMix> mix_;
};

class WasapiCapture final : public AudioCapture {
public:
    explicit WasapiCapture(AudioListener listener)
        : feed_(std::move(listener))
        , stop_(CreateEventW(nullptr, TRUE, FALSE, nullptr))
        , thread_([this] { capture(); }) {}
    ~WasapiCapture() override {
        SetEvent(stop_);
        thread_.join();
        CloseHandle(stop_);
    }
    WasapiCapture(const WasapiCapture &) = delete;
    WasapiCapture &operator=(const WasapiCapture &) = delete;

private:
    [[nodiscard]] bool stoppedWithin(std::chrono::milliseconds time) const {
        return WaitForSingleObject(stop_, static_cast<DWORD>(time.count())) != WAIT_TIMEOUT;
    }

    void capture() {
        const HRESULT ready = CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        if (FAILED(ready)) {
            debugError("CoInitializeEx", static_cast<DWORD>(ready));
            feed_.tell(AudioState::NoDevice);
            return;
        }
        record();
        while (!stoppedWithin(0ms)) {
            feed_.tell(AudioState::NoDevice);
            if (!stoppedWithin(kAudioRetry)) {
                record();
            }
        }
        CoUninitialize();
    }

    // Until it is stopped or there is no output.
    void record() {
        const auto devices = obtain<IMMDeviceEnumerator>("audio devices", [](void **object) {
            return CoCreateInstance(__uuidof(MMDeviceEnumerator), nullptr, CLSCTX_ALL,
                                    __uuidof(IMMDeviceEnumerator), object);
        });
        while (devices) {
            const Com<IMMDevice> output = defaultOutput(*devices);
            const auto loopback = output ? Loopback::open(*output) : nullptr;
            if (!loopback) {
                return;
            }
            feed_.tell(AudioState::Running);
            if (!follow(*devices, *loopback, idOf(*output))) {
                return;
            }
        }
    }

    // Returns whether another output is to be opened.
    bool follow(IMMDeviceEnumerator &devices, Loopback &loopback, const std::wstring &id) {
        auto checked = AudioFeed::Clock::now();
        while (!stoppedWithin(feed_.fading() ? kPoll : kIdlePoll)) {
            if (!loopback.read(feed_)) {
                return !stoppedWithin(kIdlePoll); // it is gone; the next is the default by then
            }
            const auto now = AudioFeed::Clock::now();
            feed_.quiet(now);
            if (now - checked >= kDefaultCheck) {
                checked = now;
                const Com<IMMDevice> output = defaultOutput(devices);
                if (!output || idOf(*output) != id) {
                    return true;
                }
            }
        }
        return false;
    }

    AudioFeed feed_; // the thread's
    const HANDLE stop_;
    std::thread thread_; // last: it uses the others
};

} // namespace

std::unique_ptr<AudioCapture> AudioCapture::start(AudioListener listener) {
    return std::make_unique<WasapiCapture>(std::move(listener));
}

} // namespace zpsg::platform
