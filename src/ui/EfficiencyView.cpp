#include "ui/EfficiencyView.h"

#include "power/CurveFile.h"
#include "power/MainsPower.h"
#include "ui/EfficiencyCurve.h"
#include "ui/Figures.h"
#include "ui/Style.h"
#include "ui/TrendPlot.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

constexpr double kStepWatts = power::kCurveStepWatts;
/// The axis of percent starts at one of these, the first unless the whole curve is higher.
constexpr double kLeastBottom = 50.0;
constexpr double kGreatestBottom = 80.0;
/// Width of the figures beside the plot in a window of the usual size, pixels.
constexpr double kFiguresWidth = 208.0;
/// Below this height only three labels stand at the axis of percent, pixels in a window of the usual size.
constexpr double kLowRoom = 110.0;

QString percentLabel(double percent) { return formatFigure(percent, 0) + QStringLiteral("\u00A0%"); }
QString wattsLabel(double watts) { return formatFigure(watts, 0) + QStringLiteral("\u00A0W"); }

/// The distance of ticks on an axis of this length: at most eight of them, round numbers.
double tickDistance(double length) {
    const double wanted = std::max(length / 8.0, 1.0);
    const double decade = std::pow(10.0, std::floor(std::log10(wanted)));
    for (const double step : {1.0, 2.0, 5.0}) {
        if (wanted <= step * decade * (1.0 + 1e-9)) {
            return step * decade;
        }
    }
    return 10.0 * decade;
}

QList<double> ticks(double from, double to, double distance) {
    QList<double> result;
    const int count = static_cast<int>(std::floor((to - from) / distance + 1e-6));
    for (int i = 0; i <= count; ++i) {
        result << from + i * distance;
    }
    return result;
}

} // namespace

EfficiencyView::EfficiencyView(QWidget *parent)
    : TrendView(parent), bottom_(kLeastBottom), curve_(new EfficiencyCurve) {
    plot().setLabels(QwtPlot::yLeft, percentLabel);
    plot().setLabels(QwtPlot::xBottom, wattsLabel);
    curve_->attach(&plot());
    retranslate();
}

void EfficiencyView::retranslate() {
    setAccessibleName(captionText());
    setToolTip(percents_.empty() ? QString() : qtTrId("MAIN_STR_EFFICIENCY_EXPLAINED"));
    setEmptyText(qtTrId("MAIN_STR_NO_CURVE"));
}

void EfficiencyView::setCurve(const std::vector<float> &percentPerTenWatts, double ratedWatts, bool band230) {
    if (percentPerTenWatts == percents_ && ratedWatts == ratedWatts_ && band230 == band230_) {
        return;
    }
    percents_ = percentPerTenWatts;
    ratedWatts_ = ratedWatts;
    band230_ = band230;
    const auto least = std::min_element(percents_.begin(), percents_.end());
    bottom_ = least == percents_.end()
                  ? kLeastBottom
                  : std::clamp(std::floor(*least / 10.0) * 10.0, kLeastBottom, kGreatestBottom);
    retranslate();
    update();
    refresh();
}

void EfficiencyView::showPoint(std::optional<double> outputWatts, std::optional<double> efficiencyPercent) {
    const QString before = readoutText();
    const bool wasStale = stale_;
    watts_ = outputWatts;
    percent_ = efficiencyPercent;
    stale_ = false;
    if (wasStale || readoutText() != before) {
        updateFigures();
    }
}

void EfficiencyView::setStale(bool stale) {
    if (stale != stale_) {
        stale_ = stale;
        updateFigures();
    }
}

void EfficiencyView::updateFigures() {
    update(figuresPlace());
    refresh();
    announce();
}

std::array<QString, 3> EfficiencyView::figureTexts() const {
    const auto mains = power::mainsPower(watts_, percent_);
    return {percent_ ? formatFigure(*percent_, 1) + QStringLiteral("\u00A0%") : QString(kNoValue),
            mains ? wattsLabel(mains->inputWatts) : QString(kNoValue),
            mains ? wattsLabel(mains->heatWatts) : QString(kNoValue)};
}

QString EfficiencyView::captionText() const {
    return percents_.empty() ? qtTrId("MAIN_STR_EFFICIENCY")
                             : qtTrId("MAIN_STR_EFFICIENCY_AT").arg(band230_ ? 230 : 115);
}

QString EfficiencyView::summaryText() const {
    const auto at = best();
    return at ? qtTrId("MAIN_STR_EFFICIENCY_BEST").arg(formatFigure(at->y(), 1), formatFigure(at->x(), 0))
              : QString();
}

QString EfficiencyView::readoutText() const {
    if (!watts_ && !percent_) {
        return kNoValue;
    }
    const auto [percent, input, heat] = figureTexts();
    const QString output = watts_ ? wattsLabel(*watts_) : QString(kNoValue);
    return qtTrId("MAIN_STR_EFFICIENCY_SPOKEN").arg(percent, output, input, heat);
}

double EfficiencyView::curveEnd() const { return static_cast<double>(percents_.size()) * kStepWatts; }

std::optional<QPointF> EfficiencyView::best() const {
    const auto greatest = std::max_element(percents_.begin(), percents_.end());
    if (greatest == percents_.end()) {
        return std::nullopt;
    }
    // The middle, where the best efficiency holds for a range of loads.
    const auto beyond =
        std::find_if(greatest, percents_.end(), [greatest](float percent) { return percent < *greatest; });
    const auto steps = static_cast<double>((greatest - percents_.begin()) + (beyond - percents_.begin()));
    return QPointF(steps * kStepWatts / 2.0, *greatest);
}

void EfficiencyView::scaleAxes() {
    const double end = percents_.empty() ? 1000.0 : curveEnd();
    plot().setTicks(QwtPlot::xBottom, 0.0, end, ticks(0.0, end, tickDistance(end)));
    const double range = 100.0 - bottom_;
    const bool low = room().height() < kLowRoom * style::windowScale(*this);
    const double distance = low ? range / 2.0 : range > 20.0 ? 10.0 : 5.0;
    plot().setTicks(QwtPlot::yLeft, bottom_, 100.0, ticks(bottom_, 100.0, distance));
}

void EfficiencyView::replot() {
    showEmptyText(percents_.empty());
    scaleAxes();
    std::vector<QPointF> points;
    points.reserve(percents_.size() + 2);
    for (std::size_t i = 0; i < percents_.size(); ++i) {
        points.emplace_back((static_cast<double>(i) + 0.5) * kStepWatts, percents_[i]);
    }
    if (!points.empty()) {
        points.insert(points.begin(), QPointF(0.0, points.front().y()));
        points.emplace_back(curveEnd(), points.back().y());
    }
    curve_->setPoints(std::move(points));
    const bool marked = ratedWatts_ > 0.0 && ratedWatts_ <= curveEnd();
    curve_->setRated(marked ? std::optional(ratedWatts_) : std::nullopt,
                     qtTrId("MAIN_STR_RATED").arg(formatFigure(ratedWatts_, 0)));
    curve_->setBest(best());
    const bool point = watts_ && percent_;
    curve_->setPresent(point ? std::optional(QPointF(*watts_, *percent_)) : std::nullopt,
                       point ? wattsLabel(*watts_) : QString());
    curve_->setMuted(!isEnabled());
    curve_->setStale(stale_);
    plot().replot();
}

void EfficiencyView::layOut(qreal scale) { curve_->setScale(scale); }

QRect EfficiencyView::plotPlace(const QRect &room) const {
    return room.adjusted(0, 0, -qRound((kFiguresWidth + style::space::kXl) * style::windowScale(*this)), 0);
}

QRect EfficiencyView::figuresPlace() const {
    const qreal scale = style::windowScale(*this);
    const QRect place = room();
    const int wide = qRound(kFiguresWidth * scale);
    return {place.right() + 1 - wide, place.top(), wide, place.height()};
}

void EfficiencyView::paintEvent(QPaintEvent *event) {
    TrendView::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal scale = style::windowScale(*this);
    const QRectF place = figuresPlace();
    const QFont noteFont = style::font(style::type::kSmall * scale);
    const QString note = qtTrId("MAIN_STR_EFFICIENCY_NOTE");
    const QRectF noteNeeds =
        QFontMetricsF(noteFont).boundingRect(QRectF(0, 0, place.width(), 400.0), Qt::TextWordWrap, note);
    const std::array<QString, 3> labels{qtTrId("MAIN_STR_EFFICIENCY"), qtTrId("MAIN_STR_FROM_THE_WALL"),
                                        qtTrId("MAIN_STR_HEAT_LOSS")};
    const std::array<QString, 3> figures = figureTexts();
    // The note gives way to the figures; it is in the tool tip as well.
    const qreal least = 3.0 * 24.0 * scale;
    const bool noted = !percents_.empty() && place.height() >= least + noteNeeds.height() + 8.0 * scale;
    const qreal forRows = place.height() - (noted ? noteNeeds.height() + 8.0 * scale : 0.0);
    const qreal tall = std::min(forRows / 3.0, 52.0 * scale);
    qreal y = place.top();
    for (std::size_t i = 0; i < figures.size(); ++i) {
        y = paintRow(painter, QRectF(place.left(), y, place.width(), tall), labels.at(i), figures.at(i));
        if (i + 1 < figures.size()) {
            painter.fillRect(QRectF(place.left(), std::round(y), place.width(), 1.0),
                             style::tone(colour::kGrid));
        }
    }
    if (noted) {
        painter.setFont(noteFont);
        painter.setPen(style::tone(colour::kTextTertiary));
        painter.drawText(
            QRectF(place.left(), place.bottom() - noteNeeds.height(), place.width(), noteNeeds.height()),
            Qt::TextWordWrap, note);
    }
}

qreal EfficiencyView::paintRow(QPainter &painter, const QRectF &row, const QString &label,
                               const QString &figure) const {
    const qreal scale = style::windowScale(*this);
    const bool current = figure != QString(kNoValue) && !stale_ && isEnabled();
    const FigureFont figures(
        style::font(std::clamp(row.height() * 0.5, 14.0, 22.0 * scale), QFont::DemiBold));
    const qreal wide = figures.width(figure);
    const qreal base = row.center().y() + figures.digitHeight() / 2.0;
    painter.setPen(style::tone(current ? colour::kText : colour::kStale));
    figures.draw(painter, {row.right() - wide, base}, figure);
    painter.setFont(fittingFont(style::font(style::type::kLabel * scale), label,
                                row.width() - wide - style::space::kM * scale));
    painter.setPen(style::tone(isEnabled() ? colour::kTextSecondary : colour::kStale));
    painter.drawText(QPointF(row.left(), base), label);
    return row.bottom();
}

} // namespace zpsg::ui
