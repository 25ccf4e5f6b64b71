#include "lighting/Gauge.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <vector>

using namespace zpsg::lighting;
using ::testing::Each;

namespace {

using Ring = std::vector<Colour>;

constexpr std::array kPalettes{Palette::Usual, Palette::ColourBlindSafe};

Ring gauge(float fraction, std::size_t count, Palette palette = Palette::Usual) {
    Ring ring(count, Colour{1, 2, 3});
    gaugeFrame(fraction, palette, ring);
    return ring;
}

Ring alarm(int step, std::size_t count, Palette palette) {
    Ring ring(count, Colour{1, 2, 3});
    alarmFrame(step, palette, ring);
    return ring;
}

std::array<double, 3> linear(const Colour &colour) {
    const auto part = [](int value) { return std::pow(value / 255.0, 2.2); };
    return {part(colour.red), part(colour.green), part(colour.blue)};
}

double luminance(const Colour &colour) {
    const auto [red, green, blue] = linear(colour);
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
}

TEST(Gauge, LightsClockwiseInProportion) {
    struct Case {
        float fraction;
        std::size_t count;
        std::size_t full; ///< LEDs at full strength
        bool partly;      ///< one more glows
    };
    for (const auto &[fraction, count, full, partly] :
         {Case{0.0F, 12, 0, false}, Case{-3.0F, 12, 0, false}, Case{0.5F, 12, 6, false},
          Case{0.5F, 6, 3, false}, Case{0.04F, 12, 0, true}, Case{0.96F, 12, 11, true},
          Case{1.0F, 12, 12, false}, Case{7.0F, 12, 12, false}, Case{INFINITY, 6, 6, false},
          Case{0.0F, 1, 1, false}, Case{0.3F, 1, 1, false}, Case{NAN, 12, 0, false},
          Case{NAN, 1, 0, false}}) {
        SCOPED_TRACE(fraction);
        for (const Palette palette : kPalettes) {
            const Ring ring = gauge(fraction, count, palette);
            for (std::size_t led = 0; led < count; ++led) {
                if (led < full) {
                    EXPECT_EQ(ring[led], ring[0]);
                    EXPECT_GT(luminance(ring[led]), 0.04);
                } else {
                    EXPECT_EQ(ring[led] != kDark, partly && led == full);
                }
            }
        }
    }
    std::vector<Colour> none;
    gaugeFrame(0.5F, Palette::Usual, none);
    alarmFrame(0, Palette::Usual, none);
}

TEST(Gauge, GrowsWithTheFractionAndChangesColour) {
    const auto lit = [](const Ring &ring) {
        return std::count_if(ring.begin(), ring.end(), [](const Colour &colour) { return colour != kDark; });
    };
    auto before = lit(gauge(0.0F, 12));
    for (int percent = 1; percent <= 100; ++percent) {
        const auto now = lit(gauge(static_cast<float>(percent) / 100.0F, 12));
        EXPECT_GE(now, before) << percent;
        before = now;
    }
    EXPECT_EQ(before, 12);
    EXPECT_EQ(gauge(0.2F, 12)[0], (Colour{0, 255, 0}));
    EXPECT_EQ(gauge(0.95F, 12)[0], (Colour{255, 0, 0}));
}

/// How a colour looks with complete protanopia, deuteranopia and tritanopia: Machado, Oliveira and Fernandes,
/// "A Physiologically-based Model for Simulation of Color Vision Deficiency" (2009), severity 1.0.
constexpr std::array<std::array<double, 9>, 3> kDeficiencies{{
    {0.152286, 1.052583, -0.204868, 0.114503, 0.786281, 0.099216, -0.003882, -0.048116, 1.051998},
    {0.367322, 0.860646, -0.227968, 0.280085, 0.672501, 0.047413, -0.011820, 0.042940, 0.968881},
    {1.255528, -0.076749, -0.178779, -0.078411, 0.930809, 0.147602, 0.004733, 0.691367, 0.303900},
}};

double distance(const Colour &one, const Colour &other, const std::array<double, 9> &seen) {
    const auto from = linear(one);
    const auto to = linear(other);
    double sum = 0.0;
    for (std::size_t row = 0; row < 3; ++row) {
        const auto value = [&](const std::array<double, 3> &light) {
            double part = 0.0;
            for (std::size_t i = 0; i < 3; ++i) {
                part += seen.at(row * 3 + i) * light.at(i);
            }
            return std::pow(std::clamp(part, 0.0, 1.0), 1.0 / 2.2); // as even to the eye as screens are
        };
        sum += std::pow(value(from) - value(to), 2.0);
    }
    return std::sqrt(sum);
}

TEST(Gauge, SafePaletteIsToldApartByEveryone) {
    constexpr std::array kStages{0.2F, 0.65F, 1.0F};
    for (std::size_t one = 0; one < kStages.size(); ++one) {
        for (std::size_t other = one + 1; other < kStages.size(); ++other) {
            const Colour a = gauge(kStages.at(one), 1, Palette::ColourBlindSafe)[0];
            const Colour b = gauge(kStages.at(other), 1, Palette::ColourBlindSafe)[0];
            for (const auto &seen : kDeficiencies) {
                EXPECT_GT(distance(a, b, seen), 0.3) << one << " and " << other;
            }
            // By lightness alone as well.
            const double ratio = (luminance(a) + 0.05) / (luminance(b) + 0.05);
            EXPECT_GT(std::max(ratio, 1.0 / ratio), 2.5) << one << " and " << other;
        }
    }
}

TEST(Alarm, AlternatesBetweenNeighboursAndPulses) {
    for (const Palette palette : kPalettes) {
        for (const std::size_t count : {2U, 5U, 6U, 12U, 23U}) {
            for (int step = 0; step < 200; ++step) {
                const Ring ring = alarm(step, count, palette);
                for (std::size_t led = 0; led < count; ++led) {
                    EXPECT_NE(ring[led], ring[(led + 1) % count]) << count << " " << step;
                }
            }
        }
        int flashes = 0;
        bool dark = false;
        bool bright = false;
        constexpr int kTenSeconds = 250;
        for (int step = 0; step < kTenSeconds; ++step) {
            const bool now = alarm(step, 1, palette)[0] != kDark;
            flashes += now && dark ? 1 : 0;
            dark = !now;
            bright = bright || now;
        }
        EXPECT_TRUE(bright);
        EXPECT_GE(flashes, 10);
        EXPECT_LE(flashes, 30); // three a second can harm
    }
    EXPECT_NE(alarm(0, 6, kPalettes[0]), alarm(0, 6, kPalettes[1]));
    // A count that has run for years.
    EXPECT_THAT(alarm(std::numeric_limits<int>::max(), 1, Palette::Usual),
                Each(alarm(15, 1, Palette::Usual)[0]));
}

} // namespace
