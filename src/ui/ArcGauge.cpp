#include "ui/ArcGauge.h"

#include "ui/Figures.h"
#include "ui/Style.h"

#include <QEvent>
#include <QWindow>

#include <algorithm>
#include <cmath>

namespace zpsg::ui {
namespace {

constexpr int kGlideMs = 300;
constexpr double kSpanDegrees = 270.0;
/// The arc's end is repainted when it has moved by this many pixels; less is not to be seen.
constexpr double kVisibleMove = 0.75;

bool onScreen(const QWidget &widget) {
    const QWindow *window = widget.window()->windowHandle();
    return widget.isVisible() && window != nullptr && window->isExposed();
}

} // namespace

ArcGauge::ArcGauge(Prominence prominence, QWidget *parent)
    : Readout(parent), prominence_(prominence), figure_(kNoValue) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    glide_.setDuration(kGlideMs);
    glide_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&glide_, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
        const double pixels = std::abs(value.toDouble() - shown_) * kSpanDegrees / 57.2958 * face_.radius;
        if (pixels >= kVisibleMove) {
            shown_ = value.toDouble();
            update();
        }
    });
    connect(&glide_, &QVariantAnimation::finished, this, [this] {
        shown_ = glide_.endValue().toDouble();
        update();
    });
}

void ArcGauge::setCaption(const QString &caption) {
    caption_ = caption;
    setAccessibleName(caption);
    refresh();
}

void ArcGauge::setUnit(const QString &unit) {
    unit_ = unit;
    refresh();
}

void ArcGauge::setScale(const Scale &scale) {
    scale_ = scale;
    if (value_) {
        figure_ = formatFigure(*value_, scale_.decimals);
        glide_.stop();
        shown_ = share(*value_);
    }
    refresh();
}

void ArcGauge::setCaution(double from, const QString &note) {
    cautionFrom_ = from;
    cautionNote_ = note;
    refresh();
}

void ArcGauge::setNote(const QString &note) {
    if (note != note_) {
        note_ = note;
        update();
    }
}

void ArcGauge::showValue(double value) {
    const QString figure = formatFigure(value, scale_.decimals);
    setStale(false);
    if (value_ && figure == figure_) {
        return;
    }
    value_ = value;
    figure_ = figure;
    moveArcTo(share(value));
    update();
    announce();
}

void ArcGauge::clear() {
    if (!value_) {
        return;
    }
    value_.reset();
    stale_ = false;
    figure_ = kNoValue;
    moveArcTo(0.0);
    update();
    announce();
}

void ArcGauge::setStale(bool stale) {
    if (value_ && stale != stale_) {
        stale_ = stale;
        update();
    }
}

QString ArcGauge::noteText() const {
    if (!cautious()) {
        return note_;
    }
    const QString &text = cautionNote_.isEmpty() ? note_ : cautionNote_;
    return QStringLiteral("\u25B2 ") + text;
}

QString ArcGauge::readoutText() const {
    if (!value_) {
        return figure_;
    }
    const QString text = figure_ + QLatin1Char(' ') + unit_;
    return noteText().isEmpty() ? text : text + QStringLiteral(", ") + noteText();
}

double ArcGauge::share(double value) const {
    return std::clamp((value - scale_.from) / (scale_.to - scale_.from), 0.0, 1.0);
}

void ArcGauge::moveArcTo(double share) {
    glide_.stop();
    const double pixels = std::abs(share - shown_) * kSpanDegrees / 57.2958 * face_.radius;
    if (pixels < 2.0 * kVisibleMove || !onScreen(*this)) {
        shown_ = share;
        return;
    }
    glide_.setStartValue(shown_);
    glide_.setEndValue(share);
    glide_.start();
}

void ArcGauge::refresh() {
    background_ = QPixmap();
    update();
}

void ArcGauge::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    face_ = layOut();
    background_ = QPixmap();
}

void ArcGauge::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::FontChange) {
        refresh();
    }
}

void ArcGauge::hideEvent(QHideEvent *event) {
    QWidget::hideEvent(event);
    if (isAnimating()) {
        shown_ = glide_.endValue().toDouble();
        glide_.stop();
    }
}

QSize ArcGauge::sizeHint() const {
    return prominence_ == Prominence::Hero ? QSize(340, 330) : QSize(210, 170);
}

QSize ArcGauge::minimumSizeHint() const {
    return prominence_ == Prominence::Hero ? QSize(240, 230) : QSize(140, 124);
}

} // namespace zpsg::ui
