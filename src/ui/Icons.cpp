#include "ui/Icons.h"

#include <QCache>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <cmath>

/// In a static library nothing else asks for the drawings. The macro works in the global namespace only.
static void provideDrawings() { Q_INIT_RESOURCE(icons); }

namespace zpsg::ui {
namespace {

constexpr std::array kNames{"dot",  "unplugged", "lock", "warning",   "minimise", "close", "gauge",
                            "bell", "tick",      "bars", "ring",      "fan",      "calm",  "settings",
                            "info", "folder",    "tag",  "processor", "power",    "exit"};
static_assert(kNames.size() == static_cast<std::size_t>(Icon::Count));

/// The field that every sign is drawn on is 24 units wide and high.
constexpr qreal kField = 24.0;
constexpr qreal kStroke = 1.8;    ///< units, as it stands in the drawings
constexpr qreal kLeastLine = 1.4; ///< device-independent pixels
/// Widths that differ by less are one.
constexpr qreal kStrokeStep = 0.02;
/// Bytes: a few hundred signs at the sizes of the window.
constexpr int kCacheBytes = 2 * 1024 * 1024;

/// What makes one rendering differ from another.
struct Rendering {
    Icon icon;
    int pixels; ///< of its side, on the device
    int stroke; ///< in steps
    QRgb colour;

    [[nodiscard]] quint64 key() const {
        return (static_cast<quint64>(icon) << 56U) | (static_cast<quint64>(pixels & 0xFFF) << 44U) |
               (static_cast<quint64>(stroke & 0xFFF) << 32U) | colour;
    }
};

QByteArray drawing(Icon icon, qreal stroke) {
    provideDrawings();
    QFile file(
        QStringLiteral(":/icons/%1.svg").arg(QString::fromLatin1(kNames.at(static_cast<std::size_t>(icon)))));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return file.readAll().replace(QByteArrayLiteral("stroke-width=\"1.8\""),
                                  "stroke-width=\"" + QByteArray::number(stroke) + '"');
}

QImage render(const Rendering &wanted) {
    QImage image(wanted.pixels, wanted.pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer;
    if (!renderer.load(drawing(wanted.icon, wanted.stroke * kStrokeStep))) {
        qWarning("the drawing of sign %d can't be read", static_cast<int>(wanted.icon));
        return image;
    }
    QPainter painter(&image);
    renderer.render(&painter, image.rect());
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), QColor::fromRgba(wanted.colour));
    painter.end();
    return image;
}

QImage rendered(const Rendering &wanted) {
    static QCache<quint64, QImage> cache(kCacheBytes);
    if (const QImage *kept = cache.object(wanted.key())) {
        return *kept;
    }
    QImage image = render(wanted);
    cache.insert(wanted.key(), new QImage(image), static_cast<int>(image.sizeInBytes()));
    return image;
}

} // namespace

void paintIcon(QPainter &painter, Icon icon, const QRectF &rect, const QColor &colour) {
    const QTransform toDevice = painter.deviceTransform();
    const qreal side = std::min(rect.width(), rect.height());
    const int pixels = qRound(side * std::hypot(toDevice.m11(), toDevice.m12()));
    if (pixels < 1 || pixels > 0xFFF) {
        return; // nothing that could be seen, or larger than any screen
    }
    const qreal stroke = std::max(kStroke, kLeastLine * kField / side);
    const QImage image = rendered({icon, pixels, qRound(stroke / kStrokeStep), colour.rgba()});
    // Off the pixels' grid every line would be blurred.
    const QPointF corner = toDevice.map(rect.center()) - QPointF(pixels, pixels) / 2.0;
    const QRectF onGrid(std::round(corner.x()), std::round(corner.y()), pixels, pixels);
    painter.drawImage(toDevice.inverted().mapRect(onGrid), image);
}

} // namespace zpsg::ui
