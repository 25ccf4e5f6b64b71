#include "ui/HistoryLegend.h"

#include "ui/Figures.h"
#include "ui/Style.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

constexpr qreal kRowHeight = 19.0;
constexpr qreal kColumn = 44.0;
constexpr qreal kSample = 22.0;
/// A name is not made smaller than this for its unit's sake.
constexpr qreal kLeastPixels = 10.0;

} // namespace

void HistoryLegend::showStatistics(const HistoryMinutes &minutes, const HistoryWindow &window,
                                   const std::vector<HistoryQuantity> &quantities) {
    rows_.clear();
    QStringList spoken;
    for (const HistoryQuantity quantity : quantities) {
        const std::vector<HistoryCurve> curves = curvesOf(quantity);
        if (curves.size() > 1) {
            rows_.push_back({quantity, std::nullopt, nameOf(quantity), unitOf(quantity), {}});
        }
        for (const HistoryCurve curve : curves) {
            Row row{quantity,
                    curve,
                    nameOf(quantity, curve),
                    curves.size() > 1 ? QString() : unitOf(quantity),
                    {}};
            row.figures.fill(QString(kNoValue));
            if (const auto found = minutes.statistics(curve, window.from, window.to)) {
                row.figures = {figureOf(curve, found->least), figureOf(curve, found->mean),
                               figureOf(curve, found->most)};
            }
            spoken << QStringLiteral("%1 (%2): %3, %4, %5")
                          .arg(row.name, unitOf(quantity), row.figures[0], row.figures[1], row.figures[2]);
            rows_.push_back(row);
        }
    }
    setAccessibleName(qtTrId("HISTORY_STATISTICS"));
    setAccessibleDescription(spoken.join(QStringLiteral("; ")));
    update();
}

void HistoryLegend::paintEvent(QPaintEvent * /*event*/) {
    const qreal scale = style::windowScale(*this);
    const auto lines = static_cast<qreal>(rows_.size() + 1);
    const qreal rowHeight = std::min(kRowHeight * scale, height() / lines);
    const qreal pixels = std::min(style::type::kLabel * scale, rowHeight * 0.72);
    const QFont nameFont = style::font(pixels);
    const FigureFont figures(style::font(pixels, QFont::Medium));
    const QFont headFont = style::font(std::min(style::type::kSmall * scale, rowHeight * 0.7));

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto columnRight = [&](int column) { return width() - kColumn * scale * (2 - column); };
    painter.setFont(headFont);
    painter.setPen(style::tone(colour::kTextTertiary));
    const std::array heads{qtTrId("HISTORY_LEAST"), qtTrId("HISTORY_MEAN"), qtTrId("HISTORY_MOST")};
    for (int column = 0; column < 3; ++column) {
        const QRectF place(0.0, 0.0, columnRight(column), rowHeight);
        painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter,
                         heads.at(static_cast<std::size_t>(column)));
    }
    painter.fillRect(QRectF(0.0, std::round(rowHeight), width(), 1.0), style::tone(colour::kText, 0.12));

    qreal top = rowHeight + 1.0;
    for (const Row &row : rows_) {
        const bool heading = !row.curve;
        const qreal indent = heading ? 0.0 : (kSample + 7.0) * scale;
        const QRectF line(0.0, top, width(), rowHeight);
        if (!heading) {
            QRectF sample(0.0, 0.0, kSample * scale, std::min(9.0 * scale, rowHeight * 0.6));
            sample.moveCenter({sample.center().x(), line.center().y()});
            drawSample(painter, row.quantity, *row.curve, sample, inkOf(row.quantity));
        }
        const qreal room = columnRight(0) - kColumn * scale * (heading ? -2.0 : 0.85) - indent;
        // The unit is at the axis as well.
        const QString both = row.name + QLatin1Char(' ') + row.unit;
        const bool unit = !row.unit.isEmpty() &&
                          QFontMetricsF(style::font(kLeastPixels * scale)).horizontalAdvance(both) <= room;
        const QString words = unit ? both : row.name;
        painter.setFont(fittingFont(nameFont, words, room));
        painter.setPen(style::tone(heading ? colour::kTextTertiary : colour::kText));
        painter.drawText(line.adjusted(indent, 0.0, 0.0, 0.0), Qt::AlignLeft | Qt::AlignVCenter, row.name);
        if (unit) {
            const qreal after = QFontMetricsF(painter.font()).horizontalAdvance(row.name + QLatin1Char(' '));
            painter.setPen(style::tone(colour::kTextTertiary));
            painter.drawText(line.adjusted(indent + after, 0.0, 0.0, 0.0), Qt::AlignLeft | Qt::AlignVCenter,
                             row.unit);
        }
        if (!heading) {
            const qreal base = line.center().y() + figures.digitHeight() / 2.0;
            for (int column = 0; column < 3; ++column) {
                const QString &figure = row.figures.at(static_cast<std::size_t>(column));
                painter.setPen(style::tone(column == 1 ? colour::kText : colour::kTextSecondary));
                figures.draw(painter, {columnRight(column) - figures.width(figure), base}, figure);
            }
        }
        top += rowHeight;
    }
}

} // namespace zpsg::ui
