#include "lighting/Effects.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <numeric>
#include <string>
#include <vector>

using namespace zpsg::lighting;
using ::testing::Each;
using ::testing::ElementsAre;

namespace {

using Ring = std::vector<Colour>;

enum class Motion {
    None,  ///< nothing moves
    Heard, ///< only what is heard moves it
    Soft,  ///< never more than a third of full brightness in a step
    Quick, ///< strikes, or moves by about an LED a step: up to 0.7 at the two slower speeds
    Hard,  ///< jumps by its nature: switches, flashes, LEDs that drop into their place
};

struct Expected {
    const char *name;
    const char *key;
    Motion motion;
};

const std::vector<Expected> kExpected{
    {"Flow", "DUO_EFFECT_FLOW", Motion::Soft},
    {"RGB_Spectrum", "DUO_EFFECT_RGB_SPECTRUM", Motion::Soft},
    {"Ripple", "DUO_EFFECT_RIPPLE", Motion::Soft},
    {"Blink", "DUO_EFFECT_BLINK", Motion::Hard},
    {"Pulse", "DUO_EFFECT_PULSE", Motion::Soft},
    {"Wave", "DUO_EFFECT_WAVE", Motion::Soft},
    {"Full_Lighted", "DUO_EFFECT_FULL_LIGHTED", Motion::None},
    {"Copy_Color", "DUO_EFFECT_COPY_COLOR", Motion::None},
    {"Movie", "DUO_EFFECT_MOVIE", Motion::Soft},
    {"Gaming", "DUO_EFFECT_GAMING", Motion::Quick},
    {"Party", "DUO_EFFECT_PARTY", Motion::Hard},
    {"Mobile_Music_1", "DUO_EFFECT_MOBILE_MUSIC_1", Motion::Heard},
    {"Mobile_Music_2", "DUO_EFFECT_MOBILE_MUSIC_2", Motion::Heard},
    {"Mobile_Music_3", "DUO_EFFECT_MOBILE_MUSIC_3", Motion::Heard},
    {"Thermal", "DUO_EFFECT_THERMAL", Motion::None},
    {"Cross", "DUO_EFFECT_CROSS", Motion::Soft},
    {"Heartbeat", "DUO_EFFECT_HEARTBEAT", Motion::Quick},
    {"Scan", "DUO_EFFECT_SCAN", Motion::Quick},
    {"Swirl", "DUO_EFFECT_SWIRL", Motion::Quick},
    {"Raindrop", "DUO_EFFECT_RAINDROP", Motion::Quick},
    {"Stack", "DUO_EFFECT_STACK", Motion::Hard},
};

constexpr Colour kWhite{255, 255, 255};
constexpr Colour kSentinel{1, 2, 3};
constexpr std::array<std::size_t, 7> kSizes{1, 2, 5, 6, 12, 23, 24};

Sound soundOf(float level) {
    Sound sound;
    sound.level = level;
    sound.bands.fill(level);
    return sound;
}

const EffectRow &rowOf(const std::string &name) {
    return *std::find_if(duoEffects().begin(), duoEffects().end(),
                         [&name](const EffectRow &row) { return name == row.name; });
}

EffectInput inputAt(int step, int speed = 0, float level = 0.0F) {
    EffectInput input;
    input.step = step;
    input.speed = speed;
    input.sound = soundOf(level);
    return input;
}

Ring show(const EffectRow &row, EffectInput input, const Ring &colours, const Ring &other = {}) {
    // Sentinels on both sides tell of writing outside.
    Ring room(colours.size() + 2, kSentinel);
    input.colours = colours;
    input.otherRing = other;
    row.effect(input, std::span(room).subspan(1, colours.size()));
    EXPECT_EQ(room.front(), kSentinel) << row.name;
    EXPECT_EQ(room.back(), kSentinel) << row.name;
    return {room.begin() + 1, room.end() - 1};
}

std::vector<Ring> cycle(const EffectRow &row, int speed, const Ring &colours, float level = 0.8F) {
    std::vector<Ring> frames;
    frames.reserve(kEffectSteps);
    for (int step = 0; step < kEffectSteps; ++step) {
        frames.push_back(show(row, inputAt(step, speed, level), colours));
    }
    return frames;
}

Ring wheel(std::size_t count) {
    Ring ring(count);
    for (std::size_t led = 0; led < count; ++led) {
        ring[led] = {static_cast<std::uint8_t>(255 - led * 9), static_cast<std::uint8_t>(led * 10),
                     static_cast<std::uint8_t>(100 + led)};
    }
    return ring;
}

int largestChange(const Ring &from, const Ring &to) {
    int most = 0;
    for (std::size_t led = 0; led < from.size(); ++led) {
        most = std::max({most, std::abs(from[led].red - to[led].red),
                         std::abs(from[led].green - to[led].green), std::abs(from[led].blue - to[led].blue)});
    }
    return most;
}

long sumOf(const Ring &ring) {
    return std::accumulate(ring.begin(), ring.end(), 0L, [](long sum, const Colour &colour) {
        return sum + colour.red + colour.green + colour.blue;
    });
}

TEST(Effects, StandInTheOrderOfTheirNumbers) {
    ASSERT_EQ(kExpected.size(), duoEffects().size());
    for (std::size_t i = 0; i < kExpected.size(); ++i) {
        EXPECT_STREQ(duoEffects()[i].name, kExpected[i].name);
        EXPECT_STREQ(duoEffects()[i].textKey, kExpected[i].key);
    }
}

// The window offers only the settings that a row says it has, so the row must tell the truth.
TEST(Effects, DependOnWhatTheirRowSays) {
    const Ring red(12, Colour{255, 0, 0});
    const Ring blue(12, Colour{0, 0, 255});
    const Ring other = wheel(6);
    for (const auto &row : duoEffects()) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(cycle(row, 2, red) != cycle(row, 2, blue), row.usesColours);
        for (int speed = 1; speed < 4; ++speed) {
            EXPECT_EQ(cycle(row, speed - 1, red) != cycle(row, speed, red), row.usesSpeed) << speed;
        }
        EXPECT_EQ(cycle(row, 2, red, 0.3F) != cycle(row, 2, red, 0.8F), row.reactsToSound);
        EXPECT_EQ(show(row, inputAt(3), red) != show(row, inputAt(3), red, other), row.copiesOtherRing);
    }
}

TEST(Effects, CloseTheirCycleAndMoveAsSmoothlyAsTheyClaim) {
    for (std::size_t i = 0; i < kExpected.size(); ++i) {
        for (const std::size_t count : kSizes) {
            for (int speed = 0; speed < 4; ++speed) {
                SCOPED_TRACE(std::string(kExpected[i].name) + " " + std::to_string(count) + " LEDs, speed " +
                             std::to_string(speed));
                const auto frames = cycle(duoEffects()[i], speed, Ring(count, kWhite));
                int most = 0;
                for (std::size_t step = 1; step < frames.size(); ++step) {
                    most = std::max(most, largestChange(frames[step - 1], frames[step]));
                }
                const Motion motion = kExpected[i].motion;
                const bool moves = motion != Motion::None && motion != Motion::Heard;
                EXPECT_EQ(most > 0, moves);
                if (motion != Motion::Hard) { // whose seam is one jump among others
                    EXPECT_LE(largestChange(frames.back(), frames.front()), most + 1);
                }
                if (count > 12) {
                    continue; // no fan has such a ring; the same turn takes larger steps there
                }
                if (motion == Motion::Soft) {
                    EXPECT_LE(most, 255 / 3);
                }
                if (motion == Motion::Quick && speed >= 2) {
                    EXPECT_LE(most, 255 * 7 / 10);
                }
                if (moves && count >= 6) { // plainly, not by a trace
                    long least = std::numeric_limits<long>::max();
                    long brightest = 0;
                    for (const auto &frame : frames) {
                        least = std::min(least, sumOf({frame.front()}));
                        brightest = std::max(brightest, sumOf({frame.front()}));
                    }
                    EXPECT_GT(brightest - least, 100);
                }
            }
        }
    }
}

TEST(Effects, KeepToTheChosenBrightness) {
    for (const auto &row : duoEffects()) {
        SCOPED_TRACE(row.name);
        for (const auto &frame : cycle(row, 1, Ring(12))) {
            EXPECT_THAT(frame, Each(kDark));
        }
        for (const auto &frame : cycle(row, 1, Ring(12, Colour{50, 50, 50}))) {
            EXPECT_THAT(frame, Each(::testing::Truly([](const Colour &colour) {
                            return colour.red <= 50 && colour.green <= 50 && colour.blue <= 50;
                        })));
        }
    }
}

// More than three flashes a second can harm.
TEST(Effects, NeverFlashDangerously) {
    constexpr int kMost = static_cast<int>(3.0 * kEffectSteps * 0.04);
    for (const auto &row : duoEffects()) {
        for (const std::size_t count : {1U, 6U, 12U}) {
            const auto frames = cycle(row, 0, Ring(count, kWhite), 1.0F);
            std::vector<long> whole;
            std::transform(frames.begin(), frames.end(), std::back_inserter(whole), sumOf);
            const long top = *std::max_element(whole.begin(), whole.end());
            int flashes = 0;
            bool dark = false;
            for (const long sum : whole) {
                flashes += dark && sum * 2 > top ? 1 : 0;
                dark = sum * 2 > top ? false : dark || sum * 4 < top;
            }
            EXPECT_LE(flashes, kMost) << row.name << " " << count;
        }
    }
}

TEST(Effects, RestInSilenceAndRiseWithTheSound) {
    const Ring white(12, kWhite);
    for (const auto &row : duoEffects()) {
        if (!row.reactsToSound) {
            continue;
        }
        SCOPED_TRACE(row.name);
        const auto total = [&](float level) {
            const auto frames = cycle(row, 2, white, level);
            return std::accumulate(frames.begin(), frames.end(), 0L,
                                   [](long sum, const Ring &frame) { return sum + sumOf(frame); });
        };
        const long loudest = total(1.0F);
        EXPECT_LT(total(0.0F) * 10, loudest);
        long before = total(0.0F);
        for (const float level : {0.25F, 0.5F, 0.75F, 1.0F}) {
            EXPECT_GT(total(level), before) << level;
            before = total(level);
        }
        EXPECT_EQ(total(1.5F), loudest); // louder than loudest
    }
}

TEST(Effects, ShowBandsAndLevelWhereTheyBelong) {
    EffectInput input;
    input.sound.bands.at(5) = 1.0F;
    const auto brightest = [&](std::size_t count) {
        const Ring ring = show(rowOf("Mobile_Music_2"), input, Ring(count, kWhite));
        EXPECT_EQ(std::count(ring.begin(), ring.end(), kWhite), count == 24 ? 2 : 1);
        return std::find(ring.begin(), ring.end(), kWhite) - ring.begin();
    };
    EXPECT_EQ(brightest(1), 0);
    EXPECT_EQ(brightest(6), 2);
    EXPECT_EQ(brightest(12), 5);
    EXPECT_EQ(brightest(24), 10);

    input.sound.level = 3.5F / 7.0F; // of the seven heights of 12 LEDs
    const Ring meter = show(rowOf("Mobile_Music_3"), input, Ring(12, kWhite));
    for (std::size_t led = 1; led < 6; ++led) {
        EXPECT_EQ(meter[led], meter[12 - led]);
    }
    const auto strength = [&meter](std::size_t led) { return largestChange({meter[led]}, {kDark}); };
    EXPECT_GT(std::min({strength(6), strength(5), strength(4)}), 180);
    EXPECT_NEAR(strength(3), 128, 15);
    EXPECT_LT(strength(2), 20);
    EXPECT_GT(meter[4].red, meter[6].red); // from green towards amber
}

TEST(Effects, CopyTheOtherRingAtItsOwnNumberOfLeds) {
    const Colour low{0, 0, 40};
    const Colour high{200, 0, 0};
    const Colour half{100, 0, 20};
    const Ring own{high, high, low};
    const auto copy = [](std::size_t count, const Ring &other) {
        return show(rowOf("Copy_Color"), {}, Ring(count, kWhite), other);
    };
    EXPECT_THAT(copy(3, own), ElementsAre(high, high, low));
    EXPECT_THAT(copy(4, {high, low}), ElementsAre(high, half, low, half));
    // Each takes half of its neighbours' light, round the seam as well.
    EXPECT_THAT(copy(2, {high, low, low, high}), ElementsAre(Colour{150, 0, 10}, Colour{50, 0, 30}));
    EXPECT_THAT(copy(1, {high, low}), ElementsAre(half));
    EXPECT_THAT(copy(3, {low}), ElementsAre(low, low, low));
    EXPECT_THAT(show(rowOf("Copy_Color"), {}, own), ElementsAre(high, high, low));
}

TEST(Effects, ShowTheTemperature) {
    struct Case {
        std::optional<float> celsius;
        Colour colour;
    };
    constexpr Colour kCool{0, 0, 255};
    constexpr Colour kHot{245, 78, 0};
    constexpr Colour kUnknown{26, 26, 26};
    const auto &thermal = rowOf("Thermal");
    for (const auto &[celsius, colour] :
         {Case{-5.0F, kCool}, Case{30.0F, kCool}, Case{45.0F, {123, 39, 128}}, Case{60.0F, kHot},
          Case{60.1F, kHot}, Case{250.0F, kHot}, Case{std::nullopt, kUnknown}, Case{NAN, kUnknown}}) {
        EffectInput input;
        input.celsius = celsius;
        EXPECT_THAT(show(thermal, input, Ring(6, kWhite)), Each(colour)) << celsius.value_or(-1.0F);
    }
}

// What makes each effect the one its name says.
TEST(Effects, LookLikeTheirNames) {
    const Ring colours = wheel(12);
    const Ring white(12, kWhite);
    const auto first = [](const std::vector<Ring> &frames) {
        std::vector<int> reds;
        reds.reserve(frames.size());
        for (const auto &frame : frames) {
            reds.push_back(frame.front().red);
        }
        return reds;
    };
    const auto crests = [](const std::vector<int> &values) {
        int count = 0;
        for (std::size_t i = 0; i < values.size(); ++i) {
            const int next = values[(i + 1) % values.size()];
            const int before = values[(i + values.size() - 1) % values.size()];
            count += values[i] > 100 && values[i] > before && values[i] >= next ? 1 : 0;
        }
        return count;
    };
    EXPECT_EQ(show(rowOf("Full_Lighted"), {}, colours), colours);

    // Five LEDs at one turn a cycle: 19 steps later all have moved on clockwise by one place.
    const auto flow = cycle(rowOf("Flow"), 3, wheel(5));
    Ring moved = flow[7];
    std::rotate(moved.begin(), moved.end() - 1, moved.end());
    EXPECT_LE(largestChange(moved, flow[26]), 1);

    for (const char *name : {"Ripple", "Stack", "Gaming"}) { // alike on both sides
        for (const auto &frame : cycle(rowOf(name), 2, white)) {
            for (std::size_t led = 1; led < 6; ++led) {
                EXPECT_LE(largestChange({frame[led]}, {frame[12 - led]}), 1) << name;
            }
        }
    }
    for (const auto &frame : cycle(rowOf("Movie"), 0, white)) {
        for (const auto &colour : frame) { // warm, and dimmer than the film
            EXPECT_TRUE(colour.red > colour.green && colour.green > colour.blue && colour.red < 190);
        }
    }
    for (int speed = 0; speed < 4; ++speed) {
        constexpr std::array kBreaths{4, 3, 2, 1};
        constexpr std::array kBeats{10, 8, 6, 4};
        EXPECT_EQ(crests(first(cycle(rowOf("Pulse"), speed, white))), kBreaths.at(speed));
        EXPECT_EQ(crests(first(cycle(rowOf("Heartbeat"), speed, white))), kBeats.at(speed));
    }
    // Four arms; a spot on one side only, which is lit by the scan on its way out and on its way back.
    for (const auto &frame : cycle(rowOf("Cross"), 3, white)) {
        EXPECT_EQ(frame[1], frame[4]);
        EXPECT_EQ(frame[1], frame[7]);
    }
    std::vector<int> bottom;
    for (const auto &frame : cycle(rowOf("Scan"), 3, white)) {
        bottom.push_back(frame[3].red);
    }
    EXPECT_EQ(crests(bottom), 2);

    // One falls from the top towards the bottom; the pile grows to the whole ring, then goes out.
    const auto pile = cycle(rowOf("Stack"), 3, white);
    EXPECT_GT(pile[3][0].red, 100);
    EXPECT_EQ(pile[10][0], kDark);
    EXPECT_GT(pile[10][4].red, 100);
    const auto full = [](const Ring &frame) { return std::count(frame.begin(), frame.end(), kWhite); };
    EXPECT_EQ(full(pile[30]), 3);
    EXPECT_EQ(full(pile[80]), 11); // the top's is about to settle
    EXPECT_EQ(full(pile[82]), 12);
    EXPECT_LT(sumOf(pile[94]), 12 * 30);

    std::vector<bool> wet(12);
    for (const auto &frame : cycle(rowOf("Raindrop"), 3, white)) {
        EXPECT_LT(sumOf(frame), 6 * 3 * 255); // single drops, no flood
        for (std::size_t led = 0; led < 12; ++led) {
            wet[led] = wet[led] || frame[led].red > 150;
        }
    }
    EXPECT_THAT(wet, Each(true)); // none stays dry for ever
}

} // namespace
