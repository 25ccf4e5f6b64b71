#include "ui/EnergyView.h"

#include "ui/ElectricityRateText.h"
#include "ui/Figures.h"
#include "ui/Style.h"
#include "ui/TrendPlot.h"

#include <QPainter>
#include <QPushButton>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// All in a window of the usual size, pixels.
constexpr qreal kFootHeight = 24.0;
constexpr qreal kTitleLine = 17.0;
constexpr qreal kSecondLine = 20.0;
constexpr qreal kThirdLine = 16.0;
constexpr qreal kLeastFigure = 18.0; ///< before a line below it gives way
constexpr qreal kLowFigure = 13.0;
constexpr qreal kMostFigure = 40.0;
constexpr qreal kRunsLeast = 11.0;
constexpr qreal kTextLeast = 9.0; ///< what does not fit in this is cut
/// Of the figure's size.
constexpr qreal kFigureLine = 1.4;
constexpr qreal kUnitShare = 0.45;

/// A run this long is told without its minutes.
constexpr qint64 kLongHours = 100;

const QString kKwh = QStringLiteral("kWh");

/// Fewer decimals the larger it is.
QString kwhFigure(double kwh) { return formatFigure(kwh, kwh < 99.995 ? 2 : kwh < 999.95 ? 1 : 0); }

QString kwhText(double kwh) { return kwhFigure(kwh) + QChar(QChar::Nbsp) + kKwh; }

QString timeText(double minutes) {
    const auto whole = static_cast<qint64>(std::floor(minutes));
    const qint64 hours = whole / 60;
    return hours < kLongHours ? qtTrId("MAIN_STR_ENERGY_TIME").arg(hours).arg(whole % 60)
                              : qtTrId("MAIN_STR_ENERGY_HOURS").arg(hours);
}

/// One line in the largest font up to `pixels` in which it fits; cut at its end where none does.
void drawFitting(QPainter &painter, const QRectF &line, qreal pixels, const QString &text) {
    QFont font = fittingFont(style::font(pixels), text, line.width());
    font.setPixelSize(std::max(font.pixelSize(), qRound(std::min(pixels, kTextLeast))));
    painter.setFont(font);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetricsF(font).elidedText(text, Qt::ElideRight, line.width()));
}

/// Once a rate is set the button is there, but asks for nothing.
const QString kQuietButton =
    QStringLiteral("QPushButton { background: transparent; border-color: rgba(255,255,255,22);"
                   " color: rgb(172,180,189); }"
                   "QPushButton:hover { background: rgba(255,255,255,24); color: rgb(243,245,247); }"
                   "QPushButton:focus { border-color: rgb(61,202,242); }"
                   "QPushButton:disabled { color: rgb(118,125,133); }");

} // namespace

EnergyView::EnergyView(QWidget *parent) : TrendView(parent), rate_(new QPushButton(this)) {
    plot().hide();
    rate_->setObjectName(QStringLiteral("btnRate"));
    rate_->setProperty("slim", true);
    rate_->setCursor(Qt::PointingHandCursor);
    connect(rate_, &QPushButton::clicked, this, &EnergyView::rateRequested);
    retranslate();
}

void EnergyView::retranslate() {
    setAccessibleName(captionText());
    rate_->setAccessibleName(qtTrId("MAIN_STR_ENERGY_SET_RATE"));
    rate_->setToolTip(qtTrId("MAIN_STR_ENERGY_SET_RATE"));
    showTexts();
}

void EnergyView::showEnergy(const EnergyShown &shown) {
    const bool noteChanged = shown.efficiencyKnown != shown_.efficiencyKnown;
    shown_ = shown;
    if (noteChanged) {
        updateCaptionLine();
    }
    showTexts();
}

void EnergyView::showTexts() {
    const QString wanted =
        shown_.rateKnown ? qtTrId("MAIN_STR_ENERGY_RATE") : qtTrId("MAIN_STR_ENERGY_SET_RATE");
    if (rate_->text() != wanted) {
        rate_->setText(wanted);
        rate_->setStyleSheet(shown_.rateKnown ? kQuietButton : QString());
        layOut(style::windowScale(*this));
        update();
    }
    Texts now = textsNow();
    if (now == texts_) {
        return;
    }
    texts_ = std::move(now);
    showToolTip();
    update(room());
    announce();
}

void EnergyView::showToolTip() {
    QStringList lines{qtTrId("MAIN_STR_ENERGY_EXPLAINED")};
    for (const Run &run : texts_.runs) {
        lines << QStringLiteral("%1: %2").arg(run.title, run.figures);
    }
    setToolTip(lines.join(QLatin1Char('\n')));
}

EnergyView::Column EnergyView::column(const QString &title, const EnergyShown::Figures &figures) const {
    const QString wall = qtTrId("MAIN_STR_ENERGY_WALL").arg(kwhText(figures.wallKwh));
    const QString output =
        shown_.efficiencyKnown ? qtTrId("MAIN_STR_ENERGY_OUTPUT").arg(kwhText(figures.outputKwh)) : QString();
    if (!shown_.rateKnown) {
        return {title, kwhFigure(figures.wallKwh), kKwh, output, {}, {}};
    }
    return {title, costText(figures.cost, shown_.currency), {}, wall, output, kwhText(figures.wallKwh)};
}

EnergyView::Run EnergyView::run(const QString &title, const EnergyShown::Figures &figures) const {
    if (figures.minutes < 1.0 && figures.wallKwh <= 0.0) {
        return {title, kNoValue};
    }
    QStringList parts{timeText(figures.minutes), kwhText(figures.wallKwh)};
    if (shown_.rateKnown) {
        parts << costText(figures.cost, shown_.currency);
    }
    return {title, parts.join(QStringLiteral(" \u00B7 "))};
}

EnergyView::Texts EnergyView::textsNow() const {
    Texts texts;
    texts.columns = {column(qtTrId("MAIN_STR_ENERGY_TODAY"), shown_.today),
                     column(qtTrId("MAIN_STR_ENERGY_MONTH"), shown_.month),
                     column(qtTrId("MAIN_STR_ENERGY_YEAR"), shown_.year),
                     {qtTrId("MAIN_STR_ENERGY_PROJECTED"), kNoValue, {}, {}, {}, {}}};
    Column &projected = texts.columns.back();
    if (shown_.projectedYear) {
        projected = column(projected.title, *shown_.projectedYear);
        // The output of a year to come says nothing that the wall's figure doesn't.
        (shown_.rateKnown ? projected.third : projected.second).clear();
    } else {
        projected.second = projected.beside = qtTrId("MAIN_STR_ENERGY_AFTER_A_DAY");
    }
    texts.runs = {run(qtTrId("MAIN_STR_ENERGY_THIS_RUN"), shown_.thisRun),
                  run(qtTrId("MAIN_STR_ENERGY_LAST_RUN"), shown_.lastRun),
                  run(qtTrId("MAIN_STR_ENERGY_TOTAL"), shown_.total)};
    return texts;
}

QString EnergyView::captionText() const { return qtTrId("MAIN_STR_ENERGY"); }

QString EnergyView::summaryText() const {
    return shown_.efficiencyKnown ? QString() : qtTrId("MAIN_STR_ENERGY_NO_EFFICIENCY");
}

QString EnergyView::readoutText() const {
    QStringList parts;
    for (const Column &column : texts_.columns) {
        QStringList figures{column.unit.isEmpty() ? column.figure
                                                  : column.figure + QChar(QChar::Nbsp) + column.unit};
        figures << column.second << column.third;
        figures.removeAll({});
        parts << QStringLiteral("%1: %2").arg(column.title, figures.join(QStringLiteral(", ")));
    }
    for (const Run &run : texts_.runs) {
        parts << QStringLiteral("%1: %2").arg(run.title, run.figures);
    }
    parts << summaryText();
    parts.removeAll({});
    return parts.join(QStringLiteral("; "));
}

std::optional<double> EnergyView::readoutValue() const {
    return shown_.rateKnown ? shown_.today.cost : shown_.today.wallKwh;
}

std::pair<double, double> EnergyView::readoutRange() const {
    const EnergyShown::Figures most = shown_.projectedYear.value_or(shown_.year);
    return {0.0, shown_.rateKnown ? most.cost : most.wallKwh};
}

QRectF EnergyView::footPlace() const {
    QRectF place(room());
    place.setTop(place.bottom() - kFootHeight * style::windowScale(*this));
    return place;
}

void EnergyView::layOut(qreal scale) {
    rate_->setFont(style::font(style::type::kLabel * scale, QFont::Medium));
    const QRect foot = footPlace().toRect();
    const qreal words = QFontMetricsF(rate_->font()).horizontalAdvance(rate_->text());
    const int wide = qRound(words + style::space::kXl * scale);
    rate_->setGeometry(foot.right() + 1 - wide, foot.top(), wide, foot.height());
}

/// Sizes that the columns have in common, so that they stand in line.
struct EnergyView::Look {
    qreal scale;
    bool below;         ///< the second line; without height for it, it stands beside the figure
    bool third;         ///< there is a third line
    qreal figurePixels; ///< in which the widest figure fits
    qreal top;
};

EnergyView::Look EnergyView::look(const QSizeF &column) const {
    const qreal scale = style::windowScale(*this);
    const auto anyOf = [this](QString Column::*line) {
        return std::any_of(texts_.columns.begin(), texts_.columns.end(),
                           [line](const Column &each) { return !(each.*line).isEmpty(); });
    };
    const qreal second = anyOf(&Column::second) ? kSecondLine * scale : 0.0;
    const qreal third = anyOf(&Column::third) ? kThirdLine * scale : 0.0;
    const qreal least = kLeastFigure * scale;
    const qreal rest = column.height() - kTitleLine * scale - style::space::kS * scale;
    const bool below = rest >= kFigureLine * least + second;
    const bool withThird = third > 0.0 && rest >= kFigureLine * least + second + third;
    const qreal lines = (below ? second : 0.0) + (withThird ? third : 0.0);
    qreal pixels = std::clamp((rest - lines) / kFigureLine, kLowFigure * scale, kMostFigure * scale);
    const qreal room = below ? column.width() : column.width() * 0.55;
    for (const Column &each : texts_.columns) {
        while (pixels > kTextLeast && figureWidth(each, pixels, scale) > room) {
            pixels -= 1.0;
        }
    }
    const qreal used = kTitleLine * scale + pixels * kFigureLine + lines;
    return {scale, below, withThird, pixels, std::max(0.0, (column.height() - used) / 2.0)};
}

qreal EnergyView::figureWidth(const Column &column, qreal pixels, qreal scale) {
    const qreal figure = FigureFont(style::font(pixels, QFont::DemiBold)).width(column.figure);
    if (column.unit.isEmpty()) {
        return figure;
    }
    return figure + style::space::kXs * scale +
           QFontMetricsF(style::font(kUnitShare * pixels, QFont::Medium)).horizontalAdvance(column.unit);
}

void EnergyView::paintEvent(QPaintEvent *event) {
    TrendView::paintEvent(event);
    QPainter painter(this);
    const qreal scale = style::windowScale(*this);
    const QRectF foot = footPlace();
    const qreal rule = std::round(foot.top() - style::space::kS * scale);
    const QRectF all(room().left(), room().top(), room().width(), rule - room().top());
    const qreal gap = style::space::kXl * scale;
    const auto count = static_cast<qreal>(texts_.columns.size());
    const QSizeF size((all.width() - gap * (count - 1.0)) / count, all.height());
    const Look look = this->look(size);
    qreal x = all.left();
    for (const Column &column : texts_.columns) {
        if (x > all.left()) {
            painter.fillRect(QRectF(std::round(x - gap / 2.0), all.top() + 2.0 * scale, 1.0,
                                    all.height() - style::space::kS * scale),
                             style::tone(colour::kGrid));
        }
        paintColumn(painter, QRectF(QPointF(x, all.top()), size), look, column);
        x += size.width() + gap;
    }
    painter.fillRect(QRectF(all.left(), rule, all.width(), 1.0), style::tone(colour::kGrid));
    paintRuns(painter, foot.adjusted(0.0, 0.0, -rate_->width() - gap, 0.0));
}

void EnergyView::paintColumn(QPainter &painter, const QRectF &place, const Look &look,
                             const Column &column) const {
    const auto ink = [this](QRgb usual) { return style::tone(isEnabled() ? usual : colour::kStale); };
    qreal y = place.top() + look.top;
    const auto nextLine = [&](qreal height) {
        const QRectF line(place.left(), y, place.width(), height * look.scale);
        y = line.bottom();
        return line;
    };
    painter.setPen(ink(colour::kTextSecondary));
    drawFitting(painter, nextLine(kTitleLine), style::type::kLabel * look.scale, column.title);

    const FigureFont figures(style::font(look.figurePixels, QFont::DemiBold));
    const qreal base = y + (look.figurePixels * kFigureLine + figures.digitHeight()) / 2.0;
    painter.setPen(ink(column.figure == QString(kNoValue) ? colour::kStale : colour::kText));
    const qreal left = place.left() - figures.indent(column.figure);
    figures.draw(painter, {left, base}, column.figure);
    const qreal wide = figureWidth(column, look.figurePixels, look.scale);
    painter.setPen(ink(colour::kTextSecondary));
    if (!column.unit.isEmpty()) {
        const qreal unit = left + figures.width(column.figure) + style::space::kXs * look.scale;
        painter.setFont(style::font(kUnitShare * look.figurePixels, QFont::Medium));
        painter.drawText(QPointF(unit, base), column.unit);
    }
    if (!look.below) {
        const qreal from = left + wide + style::space::kS * look.scale;
        const QRectF beside(from, y, place.right() - from, look.figurePixels * kFigureLine);
        drawFitting(painter, beside, style::type::kLabel * look.scale, column.beside);
        return;
    }
    y += look.figurePixels * kFigureLine;
    drawFitting(painter, nextLine(kSecondLine), style::type::kBody * look.scale, column.second);
    if (look.third) {
        painter.setPen(ink(colour::kTextTertiary));
        drawFitting(painter, nextLine(kThirdLine), style::type::kSmall * look.scale, column.third);
    }
}

void EnergyView::paintRuns(QPainter &painter, const QRectF &line) const {
    const qreal scale = style::windowScale(*this);
    const qreal gap = style::space::kXl * scale;
    const qreal inner = 6.0 * scale;
    std::vector<const Run *> runs;
    for (const Run &run : texts_.runs) {
        runs.push_back(&run);
    }
    const auto needed = [&](qreal pixels) {
        const QFontMetricsF metrics(style::font(pixels));
        return std::accumulate(runs.begin(), runs.end(), -gap, [&](qreal sum, const Run *run) {
            return sum + metrics.horizontalAdvance(run->title) + inner +
                   metrics.horizontalAdvance(run->figures) + gap;
        });
    };
    // The last run is the least of the three: it gives way, to the tool tip, before the text gets tiny.
    qreal pixels = style::type::kLabel * scale;
    while (pixels > kTextLeast * scale && needed(pixels) > line.width()) {
        if (pixels <= kRunsLeast * scale && runs.size() > 2) {
            runs.erase(runs.begin() + 1);
            pixels = style::type::kLabel * scale;
        } else {
            pixels -= 1.0;
        }
    }
    const QFont font = style::font(pixels);
    const QFontMetricsF metrics(font);
    painter.setFont(font);
    qreal x = line.left();
    for (const Run *run : runs) {
        for (const auto &[text, ink] : {std::pair(run->title, colour::kTextTertiary),
                                        std::pair(run->figures, colour::kTextSecondary)}) {
            const QRectF rest(x, line.top(), std::max(0.0, line.right() + 1.0 - x), line.height());
            painter.setPen(style::tone(isEnabled() ? ink : colour::kStale));
            painter.drawText(rest, Qt::AlignLeft | Qt::AlignVCenter,
                             metrics.elidedText(text, Qt::ElideRight, rest.width()));
            x += metrics.horizontalAdvance(text) + inner;
        }
        x += gap - inner;
    }
}

} // namespace zpsg::ui
