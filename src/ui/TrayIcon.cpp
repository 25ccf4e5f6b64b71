#include "ui/TrayIcon.h"

#include "ui/Style.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

constexpr std::array kSizes{16, 22, 24, 32, 48, 64};

constexpr QRgb kPlateTop = qRgb(43, 48, 54);
constexpr QRgb kPlateBottom = qRgb(14, 16, 19);
constexpr QRgb kNearTop = qRgb(255, 206, 104);
constexpr QRgb kNearBottom = qRgb(240, 166, 44);
constexpr QRgb kAlarmTop = qRgb(214, 48, 44);
constexpr QRgb kAlarmBottom = qRgb(158, 22, 26);
constexpr QRgb kAlarmMark = qRgb(255, 221, 87);
constexpr qreal kTrackOpacity = 0.22;
constexpr QRgb kOff = qRgb(160, 166, 173);

/// The measures of one size. All edges lie on whole pixels: at 16 there are none to lose.
struct Grid {
    explicit Grid(int pixels)
        : side(pixels)
        , unit(pixels / 16.0)
        , edge(std::max(1, qRound(unit)))
        , bar(std::max(2, qRound(2.0 * unit))) {}

    int side;
    qreal unit;
    int edge; ///< between the rim and what stands inside
    int bar;  ///< height of the bar

    [[nodiscard]] QRect figure(bool marked) const {
        const int right = marked ? qRound((side > 16 ? 4.6 : 4.0) * unit) : edge;
        return {edge, edge, side - edge - right, side - 3 * edge - bar - (side > 16 ? 1 : 0)};
    }
    [[nodiscard]] QRect barTrack() const { return {2 * edge, side - edge - bar, side - 4 * edge, bar}; }
};

/// What one level is painted in.
struct Palette {
    QRgb top; ///< of the plate
    QRgb bottom;
    QRgb ink;   ///< of the figure
    QRgb share; ///< of the bar and the arc
};

Palette paletteOf(TrayLevel level) {
    switch (level) {
    case TrayLevel::NearLimit:
        return {kNearTop, kNearBottom, kPlateBottom, kPlateBottom};
    case TrayLevel::Alarm:
        return {kAlarmTop, kAlarmBottom, colour::kText, colour::kText};
    case TrayLevel::NotConnected:
        return {kPlateTop, kPlateBottom, kOff, kOff};
    case TrayLevel::Normal:
        break;
    }
    return {kPlateTop, kPlateBottom, colour::kText, colour::kAccent};
}

void paintPlate(QPainter &painter, const Grid &grid, TrayLevel level) {
    const Palette palette = paletteOf(level);
    const qreal opacity = level == TrayLevel::NotConnected ? 0.6 : 1.0;
    const qreal radius = 3.5 * grid.unit;
    const QRectF plate(0.0, 0.0, grid.side, grid.side);
    QLinearGradient fill(0.0, 0.0, 0.0, grid.side);
    fill.setColorAt(0.0, style::tone(palette.top, opacity));
    fill.setColorAt(1.0, style::tone(palette.bottom, opacity));
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(plate, radius, radius);
    if (level == TrayLevel::NotConnected) {
        const qreal half = grid.edge / 2.0;
        painter.setPen(QPen(style::tone(kOff), grid.edge));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(plate.adjusted(half, half, -half, -half), radius - half, radius - half);
    }
}

/// Every digit is fitted into whole pixels on all four sides, narrower where there are more of them: no
/// hinting of a font does as well for so few pixels.
void paintFigure(QPainter &painter, const QString &figure, const QRect &box, int gap) {
    const QFont font = style::font(100.0, QFont::Bold);
    const int count = figure.size();
    std::vector<QPainterPath> digits;
    std::vector<qreal> widths;
    qreal whole = 0.0;
    for (const QChar digit : figure) {
        QPainterPath path;
        path.addText(0.0, 0.0, font, digit);
        const QRectF bounds = path.boundingRect();
        widths.push_back(bounds.width() * box.height() / bounds.height());
        whole += widths.back();
        digits.push_back(path);
    }
    const qreal squeeze = std::min(1.0, (box.width() - gap * (count - 1)) / whole);
    int needed = gap * (count - 1);
    for (qreal &width : widths) {
        width = std::max(2.0, std::floor(width * squeeze + 0.2));
        needed += qRound(width);
    }
    int left = box.left() + (box.width() - needed) / 2;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        const QRectF bounds = digits[i].boundingRect();
        QTransform fit;
        fit.translate(left, box.top());
        fit.scale(widths[i] / bounds.width(), box.height() / bounds.height());
        fit.translate(-bounds.left(), -bounds.top());
        painter.fillPath(fit.map(digits[i]), painter.pen().color());
        left += qRound(widths[i]) + gap;
    }
}

void paintBar(QPainter &painter, const Grid &grid, const TrayFace &face) {
    const QRect track = grid.barTrack();
    const Palette palette = paletteOf(face.level);
    painter.fillRect(track, style::tone(palette.ink, kTrackOpacity));
    QRect filled = track;
    filled.setWidth(qRound(track.width() * std::clamp(face.share, 0.0, 1.0)));
    painter.fillRect(filled, style::tone(palette.share));
}

/// To the right of the figure, or alone in the middle of `box`.
void paintMark(QPainter &painter, const QRect &box) {
    const int width = std::max(2, box.width());
    const int dot = width;
    painter.fillRect(box.left(), box.top(), width, box.height() - dot - std::max(1, dot / 2),
                     style::tone(kAlarmMark));
    painter.fillRect(box.left(), box.bottom() + 1 - dot, width, dot, style::tone(kAlarmMark));
}

QPainterPath bolt() {
    QPainterPath path(QPointF(144, 74)); // as on the program's own icon, which is 256 wide
    for (const QPointF point :
         {QPointF(96, 144), QPointF(124, 144), QPointF(112, 202), QPointF(162, 126), QPointF(133, 126)}) {
        path.lineTo(point);
    }
    path.closeSubpath();
    return path;
}

/// The program's sign: a gauge's arc and a bolt, or the mark of an alarm in its place.
void paintSign(QPainter &painter, const Grid &grid, const TrayFace &face) {
    painter.save();
    painter.scale(grid.side / 256.0, grid.side / 256.0);
    const QRectF arc(42, 52, 172, 172);
    const qreal width = std::max(20.0, 1.5 * 256.0 / grid.side);
    const bool off = face.level == TrayLevel::NotConnected;
    const Palette palette = paletteOf(face.level);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        QPen(style::tone(palette.ink, off ? 0.6 : kTrackOpacity), width, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(arc, 225 * 16, -270 * 16);
    if (!off) {
        painter.setPen(QPen(style::tone(palette.share), width, Qt::SolidLine, Qt::RoundCap));
        painter.drawArc(arc, 225 * 16, qRound(-270.0 * 16.0 * std::clamp(face.share, 0.0, 1.0)));
        if (face.level != TrayLevel::Alarm) {
            painter.setPen(QPen(style::tone(palette.ink), 6.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            painter.setBrush(style::tone(palette.ink));
            painter.drawPath(bolt());
        }
    }
    painter.restore();
    if (face.level == TrayLevel::Alarm) {
        const int thick = std::max(2, qRound(2.0 * grid.unit));
        paintMark(painter,
                  {(grid.side - thick) / 2, qRound(5.0 * grid.unit), thick, qRound(8.0 * grid.unit)});
    }
}

/// From corner to corner, cut free of what it goes through.
void paintStrike(QPainter &painter, const Grid &grid) {
    const qreal inset = 3.0 * grid.unit;
    const QLineF line(inset, grid.side - inset, grid.side - inset, inset);
    painter.setPen(QPen(style::tone(kPlateBottom), 4.0 * grid.unit, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(line);
    painter.setPen(QPen(style::tone(colour::kText), 1.8 * grid.unit, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(line);
}

} // namespace

QPixmap trayPixmap(const TrayFace &face, int pixels) {
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    const Grid grid(pixels);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    paintPlate(painter, grid, face.level);
    const bool marked = face.level == TrayLevel::Alarm;
    if (face.level == TrayLevel::NotConnected) {
        paintSign(painter, grid, face);
        paintStrike(painter, grid);
    } else if (face.figure.isEmpty()) {
        paintSign(painter, grid, face);
    } else {
        painter.setPen(style::tone(paletteOf(face.level).ink));
        const QRect box = grid.figure(marked);
        paintFigure(painter, face.figure, box, grid.edge);
        paintBar(painter, grid, face);
        if (marked) {
            const int thick = std::max(2, qRound(2.0 * grid.unit));
            paintMark(painter, {grid.side - grid.edge - thick, box.top(), thick, box.height()});
        }
    }
    return pixmap;
}

QIcon trayIcon(const TrayFace &face) {
    QIcon icon;
    for (const int pixels : kSizes) {
        icon.addPixmap(trayPixmap(face, pixels));
    }
    return icon;
}

} // namespace zpsg::ui
