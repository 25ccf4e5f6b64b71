#include "lighting/SoundAnalyser.h"

#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>
#include <limits>
#include <numbers>
#include <thread>
#include <vector>

namespace zpsg::lighting {
namespace {

using testing::Each;

constexpr int kRate = 48000;

std::vector<float> tone(double hertz, double amplitude, double seconds, int rate = kRate) {
    std::vector<float> samples(static_cast<std::size_t>(std::lround(seconds * rate)));
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double turn = 2 * std::numbers::pi * hertz * static_cast<double>(i) / rate;
        samples[i] = static_cast<float>(amplitude * std::sin(turn));
    }
    return samples;
}

std::vector<float> silence(double seconds) { return tone(0, 0, seconds); }

std::size_t loudestBand(const Sound &sound) {
    return static_cast<std::size_t>(std::max_element(sound.bands.begin(), sound.bands.end()) -
                                    sound.bands.begin());
}

void expectSilence(const Sound &sound, const char *when) {
    EXPECT_EQ(sound.level, 0) << when;
    EXPECT_THAT(sound.bands, Each(0.0F)) << when;
}

void expectSame(const Sound &one, const Sound &other, const char *what) {
    EXPECT_EQ(one.level, other.level) << what;
    EXPECT_EQ(one.bands, other.bands) << what;
}

TEST(SoundAnalyserTest, AToneLightsItsBandAtAnyRate) {
    for (const int rate : {44100, kRate, 96000}) {
        for (std::size_t band = 0; band < kSoundBands; ++band) {
            const double hertz = 50 * std::pow(240.0, (static_cast<double>(band) + 0.5) / kSoundBands);
            SoundAnalyser analyser(rate);
            analyser.feed(tone(hertz, 0.5, 0.3, rate));
            const Sound sound = analyser.sound();
            EXPECT_EQ(loudestBand(sound), band) << hertz << " Hz at " << rate;
            EXPECT_GT(sound.level, 0.99F) << hertz << " Hz at " << rate;
            EXPECT_GT(sound.bands[band], 0.95F) << hertz << " Hz at " << rate;
            for (std::size_t other = 0; other < kSoundBands; ++other) {
                if (other + 1 < band || other > band + 1) {
                    EXPECT_LT(sound.bands[other], 0.3F) << hertz << " Hz in band " << other;
                }
            }
        }
    }
}

TEST(SoundAnalyserTest, TheScaleIsDecibelsBelowTheLoudestOfLate) {
    struct Case {
        double amplitude;
        float level;
    };
    for (const auto &[amplitude, level] : {Case{0.5, 0.85F}, Case{0.1, 0.5F}, Case{0.02, 0.15F}}) {
        SoundAnalyser analyser(kRate);
        analyser.feed(tone(60, 1, 0.5));
        // While the loud tone's level comes down the top of the scale falls by 1.4 dB.
        analyser.feed(tone(60, amplitude, 0.7));
        EXPECT_NEAR(analyser.sound().level, level + 1.4F / 40, 0.04F) << amplitude;
    }
    SoundAnalyser quiet(kRate);
    quiet.feed(tone(60, 0.02, 0.3));
    EXPECT_NEAR(quiet.sound().level, 0.65F, 0.03F) << "34 dB below full scale, where the top is at 20";
    quiet.feed(tone(60, 0.02, 7));
    EXPECT_GT(quiet.sound().level, 0.99F) << "at a low volume the scale comes down to it";
    SoundAnalyser hiss(kRate);
    hiss.feed(tone(60, 0.0001, 30));
    expectSilence(hiss.sound(), "a faint noise never becomes a show");
}

TEST(SoundAnalyserTest, RisesAtOnceAndFallsSlowlyToNothing) {
    SoundAnalyser analyser(kRate);
    expectSilence(analyser.sound(), "at first");
    analyser.feed(tone(440, 0.8, 0.05));
    float last = analyser.sound().level;
    EXPECT_GT(last, 0.8F);
    analyser.feed(tone(440, 0.8, 0.5));
    last = analyser.sound().level;
    std::vector<float> levels;
    for (int i = 0; i < 100; ++i) {
        analyser.feed(silence(0.02));
        EXPECT_LE(analyser.sound().level, last);
        last = analyser.sound().level;
        levels.push_back(last);
    }
    EXPECT_GT(levels[9], 0.35F) << "after 200 ms";
    EXPECT_LT(levels[24], 0.3F) << "after 500 ms";
    expectSilence(analyser.sound(), "after 2 s");

    analyser.feed(tone(440, 0.8, 0.1));
    analyser.reset();
    expectSilence(analyser.sound(), "forgotten");
    analyser.feed(silence(0.1));
    expectSilence(analyser.sound(), "nothing is left in the window either");
}

TEST(SoundAnalyserTest, HowTheSamplesAreCutUpMakesNoDifference) {
    std::vector<float> music = tone(100, 0.7, 1);
    const std::vector<float> treble = tone(5000, 0.2, 0.6);
    std::transform(treble.begin(), treble.end(), music.begin(), music.begin(), std::plus<>());
    SoundAnalyser whole(kRate);
    whole.feed(music);
    for (const std::size_t chunk : {std::size_t{1}, std::size_t{7}, std::size_t{1024}, std::size_t{4999}}) {
        SoundAnalyser analyser(kRate);
        for (std::span<const float> rest(music); !rest.empty();
             rest = rest.subspan(std::min(chunk, rest.size()))) {
            analyser.feed(rest.first(std::min(chunk, rest.size())));
            analyser.feed({});
        }
        expectSame(analyser.sound(), whole.sound(), std::to_string(chunk).c_str());
    }
}

TEST(SoundAnalyserTest, BadSamplesDoNoHarm) {
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    SoundAnalyser analyser(kRate);
    std::vector<float> bad = silence(0.1);
    for (std::size_t i = 0; i < bad.size(); i += 3) {
        bad[i] = std::array{std::nanf(""), kInfinity, -kInfinity}[i % 3];
        bad[i + 1] = std::nanf("");
    }
    analyser.feed(bad);
    expectSilence(analyser.sound(), "no number");
    analyser.feed(std::vector<float>(kRate, 0.5F));
    analyser.feed(silence(2));
    expectSilence(analyser.sound(), "a constant offset has come and gone");

    SoundAnalyser clipped(kRate);
    SoundAnalyser square(kRate);
    std::vector<float> samples = tone(440, 1e30, 0.3);
    clipped.feed(samples);
    std::transform(samples.begin(), samples.end(), samples.begin(),
                   [](float sample) { return std::clamp(sample, -1.0F, 1.0F); });
    square.feed(samples);
    expectSame(clipped.sound(), square.sound(), "much too loud");
}

TEST(SoundAnalyserTest, IsReadAndResetWhileItIsFed) {
    SoundAnalyser analyser(kRate);
    const std::vector<float> samples = tone(440, 0.5, 0.02);
    std::thread feeder([&] {
        for (int i = 0; i < 500; ++i) {
            analyser.feed(samples);
        }
    });
    for (int i = 0; i < 2000; ++i) {
        const Sound sound = analyser.sound();
        EXPECT_TRUE(sound.level >= 0 && sound.level <= 1);
        if (i % 100 == 0) {
            analyser.reset();
        }
    }
    feeder.join();
    analyser.reset();
    expectSilence(analyser.sound(), "after the last");
}

} // namespace
} // namespace zpsg::lighting
