#include "ui/RingGlow.h"

#include <algorithm>
#include <cmath>

namespace zpsg::ui {
namespace {

std::uint8_t ofByte(qreal part) {
    return static_cast<std::uint8_t>(std::lround(std::clamp(part, 0.0, 1.0) * 255.0));
}

// All four bytes of a pixel at a time, which is what makes a frame cheap.

constexpr QRgb kHighBits = 0x80808080U;

QRgb scaled(QRgb bytes, int weight) {
    constexpr QRgb kEven = 0x00FF00FFU;
    const auto times = static_cast<QRgb>(weight);
    return (((bytes & kEven) * times >> 8U) & kEven) | (((bytes >> 8U) & kEven) * times & ~kEven);
}

/// Each byte ends at 255.
QRgb sum(QRgb a, QRgb b) {
    const QRgb plain = ((a & ~kHighBits) + (b & ~kHighBits)) ^ ((a ^ b) & kHighBits);
    const QRgb over = ((a & b) | ((a | b) & ~plain)) & kHighBits;
    return plain | ((over >> 7U) * 255U);
}

} // namespace

RingGlow::RingGlow(qreal ring, qreal lamp, qreal reach) : half_(static_cast<int>(std::ceil(ring + reach))) {
    const int side = 2 * half_ + 1;
    weights_.resize(static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
    rows_.resize(static_cast<std::size_t>(side));
    for (int y = 0; y < side; ++y) {
        Extent &row = rows_.at(static_cast<std::size_t>(y));
        row = {side, 0};
        for (int x = 0; x < side; ++x) {
            const qreal off = std::abs(std::hypot(x - half_, y - half_) - ring);
            if (off >= reach) {
                continue;
            }
            const qreal lens = std::clamp(lamp - off + 0.5, 0.0, 1.0);
            const qreal fade = 1.0 - off / reach;
            const qreal bloom = 0.7 * std::exp(-std::max(0.0, off - lamp) / (0.8 * lamp)) * fade;
            Weight &weight = weights_.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(side) +
                                         static_cast<std::size_t>(x));
            weight.direct = ofByte(0.95 * lens + bloom * (1.0 - lens));
            weight.wash = ofByte(0.85 * fade * fade);
            weight.core = ofByte(0.5 * std::exp(-std::pow(off / (0.6 * lamp), 2.0)));
            row.first = std::min(row.first, x);
            row.end = x + 1;
        }
    }
}

void RingGlow::addTo(QImage &frame, const QImage &surface, const QPoint &centre,
                     const lighting::Colour &colour) const {
    const int white = std::max({colour.red, colour.green, colour.blue});
    if (white == 0) {
        return;
    }
    // The alpha follows the brightest, so that a pixel stays a premultiplied one where nothing was.
    const QRgb tint = qRgba(colour.red, colour.green, colour.blue, white);
    const QRgb bright = qRgba(white, white, white, white);
    const int side = 2 * half_ + 1;
    const int left = centre.x() - half_;
    const int top = centre.y() - half_;
    for (int y = std::max(0, -top); y < std::min(side, frame.height() - top); ++y) {
        const Extent &row = rows_[static_cast<std::size_t>(y)];
        const Weight *weights = weights_.data() + static_cast<std::ptrdiff_t>(y) * side;
        auto *pixels = reinterpret_cast<QRgb *>(frame.scanLine(top + y)) + left;
        const uchar *gives = surface.constScanLine(top + y) + left;
        const int end = std::min(row.end, frame.width() - left);
        for (int x = std::max(row.first, -left); x < end; ++x) {
            const Weight &weight = weights[x];
            const int share = weight.direct + weight.wash * gives[x] / 256;
            QRgb light = scaled(tint, std::min(share, 255 - weight.core));
            if (weight.core != 0) {
                light += scaled(bright, weight.core);
            }
            pixels[x] = sum(pixels[x], light);
        }
    }
}

} // namespace zpsg::ui
