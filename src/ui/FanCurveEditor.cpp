#include "ui/FanCurveEditor.h"

#include "ui/FanCurveItem.h"
#include "ui/FanPoints.h"
#include "ui/Figures.h"
#include "ui/HistoryControls.h"
#include "ui/Style.h"
#include "ui/Temperature.h"
#include "ui/TrendPlot.h"

#include <QEvent>
#include <QPainter>

#include <qwt_scale_map.h>

namespace zpsg::ui {
namespace {

/// Around the ranges, so that points at their ends can be seen and held: of the speed, percent, and of what
/// the curve goes by, as a share of its range.
constexpr double kPercentMargin = 6.0;
constexpr double kAtMargin = 0.025;

QList<double> ticksBetween(double from, double to, double step) {
    QList<double> result;
    for (int i = 0; from + i * step <= to + 1e-9; ++i) {
        result << from + i * step;
    }
    return result;
}

} // namespace

FanCurveEditor::FanCurveEditor(QWidget *parent)
    : Readout(parent), plot_(new TrendPlot(this)), item_(new FanCurveItem) {
    setObjectName(QStringLiteral("fanCurve"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    item_->attach(plot_);
    retranslate();
}

void FanCurveEditor::retranslate() {
    setAccessibleName(qtTrId("FAN_CURVE"));
    setAccessibleDescription(qtTrId("FAN_CURVE_KEYS"));
    setToolTip(qtTrId("FAN_CURVE_KEYS"));
    refresh();
}

std::vector<fan::CurvePoint> &FanCurveEditor::points() {
    return curve_.source == fan::CurveSource::Temperature ? curve_.temperature : curve_.load;
}

void FanCurveEditor::setCurve(const fan::FanCurve &curve) {
    fan::FanCurve fitted = curve;
    fitted.temperature = fan::fittedPoints(curve.temperature, fan::CurveSource::Temperature);
    fitted.load = fan::fittedPoints(curve.load, fan::CurveSource::Load);
    if (fitted == (drag_ ? drag_->before : curve_)) {
        return;
    }
    const bool otherSource = fitted.source != curve_.source;
    drag_.reset();
    hovered_.reset();
    curve_ = std::move(fitted);
    select(selected_ && !otherSource && *selected_ < points().size() ? selected_ : std::nullopt);
}

void FanCurveEditor::chooseSource(fan::CurveSource source) {
    if (source != curve_.source) {
        drag_.reset();
        hovered_.reset();
        curve_.source = source;
        select(std::nullopt);
        emit edited(curve_);
    }
}

void FanCurveEditor::setDriving(bool driving) {
    driving_ = driving;
    refresh();
}

void FanCurveEditor::showNow(std::optional<double> celsius, std::optional<double> loadPercent) {
    const bool other =
        curve_.source == fan::CurveSource::Temperature ? celsius != celsius_ : loadPercent != loadPercent_;
    celsius_ = celsius;
    loadPercent_ = loadPercent;
    if (other) {
        refresh();
    }
}

bool FanCurveEditor::canAdd() const { return curve_.points().size() < fan::kMostPoints; }

bool FanCurveEditor::canRemove() const {
    return selected_.has_value() && curve_.points().size() > fan::kLeastPoints;
}

void FanCurveEditor::addOne() {
    if (const auto added = addBeside(points(), selected_.value_or(0), curve_.source)) {
        select(added);
        changed();
    }
}

void FanCurveEditor::removeSelected() {
    if (selected_ && removePoint(points(), *selected_)) {
        select(std::min(*selected_, points().size() - 1));
        changed();
    }
}

QString FanCurveEditor::textOf(const fan::CurvePoint &point) const {
    const bool byTemperature = curve_.source == fan::CurveSource::Temperature;
    return QStringLiteral("%1  \u2192  %2\u00A0%")
        .arg(byTemperature ? degreesText(point.at) : formatFigure(point.at, 0) + QStringLiteral("\u00A0%"),
             formatFigure(point.percent, 0));
}

QString FanCurveEditor::readoutText() const {
    if (!selected_) {
        return {};
    }
    return qtTrId("FAN_CURVE_POINT")
        .arg(*selected_ + 1)
        .arg(curve_.points().size())
        .arg(textOf(curve_.points()[*selected_]));
}

std::optional<double> FanCurveEditor::readoutValue() const {
    return selected_ ? std::optional(curve_.points()[*selected_].percent) : std::nullopt;
}

std::pair<double, double> FanCurveEditor::readoutRange() const {
    return {fan::kLeastPercent, fan::kMostPercent};
}

QPointF FanCurveEditor::placeOf(const fan::CurvePoint &point) const {
    return QPointF(plot_->canvasInParent().topLeft()) +
           QPointF(plot_->canvasMap(QwtPlot::xBottom).transform(point.at),
                   plot_->canvasMap(QwtPlot::yLeft).transform(point.percent));
}

fan::CurvePoint FanCurveEditor::valueAt(const QPointF &place) const {
    const QPointF inCanvas = place - QPointF(plot_->canvasInParent().topLeft());
    return {plot_->canvasMap(QwtPlot::xBottom).invTransform(inCanvas.x()),
            plot_->canvasMap(QwtPlot::yLeft).invTransform(inCanvas.y())};
}

void FanCurveEditor::select(std::optional<std::size_t> index) {
    selected_ = index;
    refresh();
    emit selectionChanged();
    announce();
}

void FanCurveEditor::changed() {
    refresh();
    announce();
    emit edited(curve_);
}

void FanCurveEditor::refresh() {
    if (!isVisible()) {
        return;
    }
    const qreal scale = style::windowScale(*this);
    const bool byTemperature = curve_.source == fan::CurveSource::Temperature;
    const auto atText = [byTemperature](double at) {
        return byTemperature ? degreesText(at) : formatFigure(at, 0) + QStringLiteral("\u00A0%");
    };
    plot_->setScale(scale);
    plot_->setLabels(QwtPlot::xBottom, atText);
    plot_->setLabels(QwtPlot::yLeft,
                     [](double percent) { return formatFigure(percent, 0) + QStringLiteral("\u00A0%"); });
    const auto [from, to] = rangeOf(curve_.source);
    const double margin = kAtMargin * (to - from);
    plot_->setTicks(QwtPlot::xBottom, from - margin, to + margin,
                    ticksBetween(from, to, (to - from) / (byTemperature ? 4.0 : 5.0)));
    const bool low = plot_->height() < 150.0 * scale;
    QList<double> percents = ticksBetween(low ? 60.0 : 40.0, fan::kMostPercent, low ? 40.0 : 20.0);
    percents.prepend(fan::kLeastPercent);
    plot_->setTicks(QwtPlot::yLeft, fan::kLeastPercent - kPercentMargin, fan::kMostPercent + kPercentMargin,
                    percents);
    giveLabelsRoom(*plot_, scale);

    FanCurveItem::Look look;
    look.selected = selected_;
    look.hovered = hovered_;
    if (selected_ && (hasFocus() || drag_)) {
        look.tag = textOf(curve_.points()[*selected_]);
    }
    look.now = byTemperature ? celsius_ : loadPercent_;
    if (look.now) {
        look.nowTag = QStringLiteral("%1 %2").arg(qtTrId("MAIN_STR_NOW"), atText(*look.now));
    }
    look.focused = hasFocus();
    look.driving = driving_;
    look.enabled = isEnabled();
    look.scale = scale;
    item_->setPoints(curve_.points());
    item_->setLook(look);
    plot_->replot();
    update();
}

void FanCurveEditor::paintEvent(QPaintEvent * /*event*/) {
    if (hasFocus()) {
        QPainter painter(this);
        drawFocus(painter, *this);
    }
}

void FanCurveEditor::resizeEvent(QResizeEvent *event) {
    Readout::resizeEvent(event);
    const int inset = qRound(style::space::kXs * style::windowScale(*this));
    plot_->setGeometry(rect().adjusted(inset, inset, -inset, -inset));
    refresh();
}

void FanCurveEditor::showEvent(QShowEvent *event) {
    Readout::showEvent(event);
    refresh();
}

void FanCurveEditor::changeEvent(QEvent *event) {
    Readout::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        refresh();
    }
}

} // namespace zpsg::ui
