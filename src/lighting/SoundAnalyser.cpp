#include "lighting/SoundAnalyser.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <functional>
#include <kiss_fftr.h>
#include <mutex>
#include <numbers>
#include <utility>
#include <vector>

namespace zpsg::lighting {
namespace {

// Long enough to tell the lowest bands apart (bins of 12 Hz at 48 kHz), short enough for a beat to be one.
constexpr double kShortestWindow = 0.06; // seconds; rounded up to a power of two of samples
constexpr std::size_t kStepsAWindow = 4;

constexpr double kLowest = 50.0;    // Hz
constexpr double kHighest = 12'000; // Hz
// Music has less power the higher the tone; each band counts this much more than the one below, in dB.
constexpr double kTiltABand = 1.2;

constexpr float kScale = 40.0F;     // dB from dark to full
constexpr float kQuietTop = -40.0F; // dB of full scale; hiss must not become a show
constexpr float kFirstTop = -20.0F;
constexpr float kTopFall = 2.0F;   // dB a second
constexpr float kSilence = -75.0F; // dB; what is below is no sound
constexpr float kFallTime = 0.2F;  // seconds until a value has fallen to 1/e
constexpr float kDark = 0.004F;    // less than an LED can show: zero

struct Free {
    void operator()(kiss_fftr_cfg config) const { kiss_fftr_free(config); }
};

// How much of a bin's power goes to a band.
struct Share {
    std::size_t bin;
    std::size_t band;
    float weight;
};

std::vector<float> hannWindow(std::size_t size) {
    std::vector<float> window(size);
    for (std::size_t i = 0; i < size; ++i) {
        const double turn = 2 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(size);
        window[i] = static_cast<float>(0.5 - 0.5 * std::cos(turn));
    }
    return window;
}

// The weights make a full-scale sine in the lowest band a power of 1.
std::vector<Share> bandShares(int rate, std::size_t size) {
    constexpr double kWindowPower = 3.0 / 8; // mean square of the Hann window
    const auto bins = static_cast<double>(size);
    const double binWidth = rate / bins;
    const double unit = 4.0 / (bins * bins * kWindowPower);
    const double ratio = std::pow(kHighest / kLowest, 1.0 / kSoundBands);
    std::vector<Share> shares;
    for (std::size_t band = 0; band < kSoundBands; ++band) {
        const double from = kLowest * std::pow(ratio, static_cast<double>(band)) / binWidth;
        const double to = from * ratio;
        const double tilt = std::pow(10.0, kTiltABand * static_cast<double>(band) / 10);
        const auto last = std::min(static_cast<std::size_t>(std::lround(to)), size / 2);
        for (auto bin = static_cast<std::size_t>(std::lround(from)); bin <= last; ++bin) {
            const auto centre = static_cast<double>(bin);
            const double inside = std::min(to, centre + 0.5) - std::max(from, centre - 0.5);
            shares.push_back({bin, band, static_cast<float>(unit * tilt * std::max(inside, 0.0))});
        }
    }
    return shares;
}

float decibels(float power) { return 10.0F * std::log10(std::max(power, 1e-12F)); }

} // namespace

struct SoundAnalyser::Core {
    explicit Core(int rate)
        : size(std::bit_ceil(static_cast<std::size_t>(std::lround(kShortestWindow * rate))))
        , quarter(size / kStepsAWindow)
        , step(static_cast<float>(quarter) / static_cast<float>(rate))
        , window(hannWindow(size))
        , shares(bandShares(rate, size))
        , transform(kiss_fftr_alloc(static_cast<int>(size), 0, nullptr, nullptr))
        , heard(size)
        , windowed(size)
        , spectrum(size / 2 + 1) {}

    void forget() {
        std::fill(heard.begin(), heard.end(), 0.0F);
        filled = 0;
        top = kFirstTop;
        current = {};
    }

    // `heard` is a whole window, its newest quarter new.
    void analyse() {
        std::transform(heard.begin(), heard.end(), window.begin(), windowed.begin(), std::multiplies<>());
        kiss_fftr(transform.get(), windowed.data(), spectrum.data());
        std::array<float, kSoundBands> power{};
        for (const Share &share : shares) {
            const kiss_fft_cpx &bin = spectrum[share.bin];
            power[share.band] += share.weight * (bin.r * bin.r + bin.i * bin.i);
        }
        float total = 0;
        for (const float bandPower : power) {
            total += bandPower;
        }
        const float loudness = decibels(total);
        if (loudness > kSilence) {
            top = std::max({loudness, top - kTopFall * step, kQuietTop});
        }
        follow(current.level, total);
        for (std::size_t band = 0; band < kSoundBands; ++band) {
            follow(current.bands[band], power[band]);
        }
    }

    void follow(float &value, float power) const {
        const float now = std::clamp(1.0F + (decibels(power) - top) / kScale, 0.0F, 1.0F);
        value = now >= value ? now : now + (value - now) * std::exp(-step / kFallTime);
        value = value < kDark ? 0.0F : value;
    }

    const std::size_t size;    // of the window, in samples
    const std::size_t quarter; // of the window: from one transform to the next
    const float step;          // the same in seconds
    const std::vector<float> window;
    const std::vector<Share> shares;
    const std::unique_ptr<kiss_fftr_state, Free> transform;

    // Only the feeding thread's.
    std::vector<float> heard; // the latest window of samples, oldest first
    std::size_t filled = 0;   // how many of its newest quarter have come
    std::vector<float> windowed;
    std::vector<kiss_fft_cpx> spectrum;
    float top = kFirstTop; // dB that are shown as 1
    Sound current;

    mutable std::mutex mutex;
    Sound published;
    bool forgetting = false;
};

SoundAnalyser::SoundAnalyser(int rate) : core_(std::make_unique<Core>(rate)) {}

SoundAnalyser::~SoundAnalyser() = default;

void SoundAnalyser::feed(std::span<const float> samples) {
    Core &core = *core_;
    {
        const std::scoped_lock lock(core.mutex);
        if (std::exchange(core.forgetting, false)) {
            core.forget();
        }
    }
    while (!samples.empty()) {
        const std::size_t count = std::min(samples.size(), core.quarter - core.filled);
        const auto newest = core.heard.end() - static_cast<std::ptrdiff_t>(core.quarter - core.filled);
        std::transform(
            samples.begin(), samples.begin() + static_cast<std::ptrdiff_t>(count), newest,
            [](float sample) { return std::isfinite(sample) ? std::clamp(sample, -1.0F, 1.0F) : 0.0F; });
        samples = samples.subspan(count);
        core.filled += count;
        if (core.filled == core.quarter) {
            core.analyse();
            std::copy(core.heard.begin() + static_cast<std::ptrdiff_t>(core.quarter), core.heard.end(),
                      core.heard.begin());
            core.filled = 0;
        }
    }
    const std::scoped_lock lock(core.mutex);
    if (!core.forgetting) {
        core.published = core.current;
    }
}

void SoundAnalyser::reset() {
    const std::scoped_lock lock(core_->mutex);
    core_->forgetting = true;
    core_->published = {};
}

Sound SoundAnalyser::sound() const {
    const std::scoped_lock lock(core_->mutex);
    return core_->published;
}

} // namespace zpsg::lighting
