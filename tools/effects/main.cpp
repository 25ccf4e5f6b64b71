// zpsg-effects: draws what the Duo set's effects show as a picture, for the documentation and for whoever
// changes an effect. Time runs to the right, one column a step; the LEDs stand one below the other, LED 0 on
// top.
#include "lighting/Effects.h"
#include "lighting/LightingState.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <vector>

using namespace zpsg::lighting;

namespace {

constexpr int kCellWidth = 4; ///< of one LED in one step, in pixels
constexpr int kCellHeight = 4;
constexpr int kRingGap = 4; ///< between the front ring and the middle ring
constexpr int kBandHeight = static_cast<int>(kDuoLeds) * kCellHeight + kRingGap;
constexpr int kBandPitch = kBandHeight + 16;
constexpr int kStripWidth = kEffectSteps * kCellWidth;
constexpr int kStripPitch = kStripWidth + 24;
constexpr int kMargin = 24;
constexpr int kFaceWidth = kBandHeight + 12;
constexpr int kNameWidth = 160;
constexpr int kHeadHeight = 100;

constexpr QRgb kBackground = 0xFF14171C;
constexpr QRgb kText = 0xFFE6E9EE;
constexpr QRgb kFaint = 0xFF98A1AE;

/// The setting of a strip.
struct Strip {
    const char *title;
    bool wheel; ///< the twelve colours of the wheel, else one
    int speed;  ///< index into kSpeeds
};
constexpr std::array kStrips{Strip{"colour wheel, speed Normal", true, 2},
                             Strip{"single colour, speed Extreme", false, 0}};

std::vector<Colour> chosen(bool wheel, std::size_t ring, std::size_t count) {
    const DuoState defaults;
    std::vector<Colour> colours(count, Colour{0, 160, 255});
    for (std::size_t led = 0; wheel && led < count; ++led) {
        const std::size_t entry = duoEntry(ring, led);
        const auto part = [entry](const auto &list) { return static_cast<std::uint8_t>(list.at(entry)); };
        colours[led] = {part(defaults.red), part(defaults.green), part(defaults.blue)};
    }
    return colours;
}

/// Music without a sound card: a drum at 126 beats a minute, a bass, a melody that climbs, and a break of
/// half a second.
Sound syntheticSound(int step) {
    constexpr double kStepSeconds = 0.04;
    constexpr double kBeatSeconds = 60.0 / 126.0;
    const double seconds = step * kStepSeconds;
    if (step >= 78 && step < 90) {
        return {};
    }
    const double drum = std::exp(-4.0 * std::fmod(seconds, kBeatSeconds) / kBeatSeconds);
    const double tone = 4.0 + 5.0 * step / kEffectSteps;
    Sound sound;
    for (std::size_t band = 0; band < kSoundBands; ++band) {
        const auto from = static_cast<double>(band);
        const double bass = std::exp(-from / 1.6) * (0.25 + 0.75 * drum);
        const double melody = 0.8 * std::exp(-(from - tone) * (from - tone) / 2.5);
        const double cymbal =
            from > 8.0 ? 0.35 * std::exp(-6.0 * std::fmod(seconds, kBeatSeconds / 2.0)) : 0.0;
        sound.bands.at(band) = static_cast<float>(std::min(1.0, bass + melody + cymbal));
    }
    sound.level = static_cast<float>(0.3 + 0.65 * drum);
    return sound;
}

EffectInput inputAt(int step, const Strip &strip) {
    EffectInput input;
    input.step = step;
    input.speed = strip.speed;
    input.sound = syntheticSound(step);
    constexpr float kFrom = 25.0F; // degrees Celsius; from below what Thermal tells apart to above it
    constexpr float kTo = 65.0F;
    input.celsius = std::lerp(kFrom, kTo, static_cast<float>(step) / (kEffectSteps - 1));
    return input;
}

std::vector<Colour> frameOf(const EffectRow &row, const Strip &strip, int step, std::size_t ring) {
    const std::array counts{kFrontLeds, kMiddleLeds};
    const std::size_t other = ring == kFront ? kMiddle : kFront;
    EffectInput input = inputAt(step, strip);
    const auto otherColours = chosen(strip.wheel, other, counts.at(other));
    std::vector<Colour> otherLeds(counts.at(other));
    input.colours = otherColours;
    duoEffects()[0].effect(input, otherLeds);

    const auto colours = chosen(strip.wheel, ring, counts.at(ring));
    std::vector<Colour> leds(counts.at(ring));
    input.colours = colours;
    input.otherRing = otherLeds;
    row.effect(input, leds);
    return leds;
}

QColor shown(const Colour &colour) { return {colour.red, colour.green, colour.blue}; }

void drawStrip(QPainter &painter, QPoint at, const EffectRow &row, const Strip &strip) {
    for (int step = 0; step < kEffectSteps; ++step) {
        int y = at.y();
        for (const std::size_t ring : {kFront, kMiddle}) {
            for (const auto &colour : frameOf(row, strip, step, ring)) {
                painter.fillRect(at.x() + step * kCellWidth, y, kCellWidth, kCellHeight, shown(colour));
                y += kCellHeight;
            }
            y += kRingGap;
        }
    }
}

/// The two rings as they look at one moment, the front ring inside as it has fewer LEDs.
void drawFace(QPainter &painter, QPointF centre, const EffectRow &row, const Strip &strip, int step) {
    constexpr double kTurn = 6.283185307179586;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (const std::size_t ring : {kFront, kMiddle}) {
        const double radius = ring == kFront ? 13.0 : 30.0;
        const auto leds = frameOf(row, strip, step, ring);
        for (std::size_t led = 0; led < leds.size(); ++led) {
            const double angle = kTurn * static_cast<double>(led) / static_cast<double>(leds.size());
            const QPointF place = centre + QPointF(std::sin(angle), -std::cos(angle)) * radius;
            painter.setBrush(QColor(0x24, 0x28, 0x30));
            painter.drawEllipse(place, 5.5, 5.5);
            painter.setBrush(shown(leds[led]));
            painter.drawEllipse(place, 4.5, 4.5);
        }
    }
    painter.restore();
}

void write(QPainter &painter, QPoint at, int pixels, QRgb tint, const QString &text) {
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(pixels);
    painter.setFont(font);
    painter.setPen(QColor(tint));
    painter.drawText(at, text);
}

QImage picture() {
    const auto rows = duoEffects();
    const int left = kMargin + kFaceWidth + kNameWidth;
    QImage image(left + static_cast<int>(kStrips.size()) * kStripPitch - 24 + kMargin,
                 kHeadHeight + static_cast<int>(rows.size()) * kBandPitch + kMargin, QImage::Format_RGB32);
    image.fill(kBackground);
    QPainter painter(&image);
    write(painter, {kMargin, 36}, 20, kText, QStringLiteral("Effects of the Duo set"));
    write(painter, {kMargin, 60}, 13, kFaint,
          QStringLiteral(
              "One cycle of 95 steps (3.8 s) from left to right; above the front ring's 6 LEDs, below the "
              "middle ring's 12, LED 0 on top. The sound is synthetic, with a"));
    write(painter, {kMargin, 79}, 13, kFaint,
          QStringLiteral(
              "break of half a second near the end. Copy_Color: the other ring shows Flow. Thermal: from "
              "25 \u00B0C to 65 \u00B0C."));
    for (std::size_t i = 0; i < kStrips.size(); ++i) {
        write(painter, {left + static_cast<int>(i) * kStripPitch, kHeadHeight + 6}, 13, kText,
              QLatin1String(kStrips.at(i).title));
    }
    int y = kHeadHeight + 14;
    for (const auto &row : rows) {
        constexpr int kFaceStep = 72; // one in which every effect has something to show
        const int middle = y + kBandHeight / 2;
        drawFace(painter, QPointF(kMargin + kBandHeight / 2.0, middle), row, kStrips[0], kFaceStep);
        write(painter, {kMargin + kFaceWidth, middle + 5}, 16, kText, QLatin1String(row.name));
        for (std::size_t i = 0; i < kStrips.size(); ++i) {
            drawStrip(painter, {left + static_cast<int>(i) * kStripPitch, y}, row, kStrips.at(i));
        }
        y += kBandPitch;
    }
    return image;
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen"); // it draws into memory; no screen is needed
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 2) {
        std::fputs("usage: zpsg-effects FILE.png\n", stderr);
        return 2;
    }
    if (!picture().save(arguments.at(1), "PNG")) {
        std::fprintf(stderr, "zpsg-effects: %s can't be written\n", qPrintable(arguments.at(1)));
        return 1;
    }
    return 0;
}
