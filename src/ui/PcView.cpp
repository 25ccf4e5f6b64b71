#include "ui/PcView.h"

#include "ui/Controls.h"
#include "ui/Figures.h"
#include "ui/Style.h"
#include "ui/Temperature.h"
#include "ui/TrendPlot.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include <algorithm>
#include <cmath>
#include <utility>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// All in a window of the usual size, pixels.
constexpr qreal kMostFigure = 38.0;
constexpr qreal kLeastFigure = 17.0;
constexpr qreal kLowRoom = 104.0;    ///< the button stands beside the words in less
constexpr qreal kWordsWidth = 620.0; ///< lines longer than this are hard to read

QString figure(std::optional<double> value, int decimals) {
    return value ? formatFigure(*value, decimals) : QString(kNoValue);
}

} // namespace

PcView::PcView(QWidget *parent)
    : TrendView(parent)
    , words_(new QWidget(this))
    , title_(new QLabel(words_))
    , text_(new QLabel(words_))
    , enable_(new QPushButton(words_)) {
    plot().hide();
    enable_->setObjectName(QStringLiteral("btnReadSensors"));
    enable_->setProperty("slim", true);
    enable_->setProperty("primary", true);
    enable_->setCursor(Qt::PointingHandCursor);
    text_->setObjectName(QStringLiteral("lblPcProblem"));
    text_->setProperty("tone", QStringLiteral("secondary"));
    // What to install is a name or a command that is to be copied.
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto *lines = new QVBoxLayout;
    lines->addStretch(1);
    for (QLabel *label : {title_, text_}) {
        label->setWordWrap(true);
        lines->addWidget(label);
    }
    lines->addStretch(1);
    column_ = new QBoxLayout(QBoxLayout::TopToBottom, words_);
    column_->setContentsMargins(0, 0, 0, 0);
    column_->addStretch(1);
    column_->addLayout(lines);
    column_->addWidget(enable_, 0, Qt::AlignCenter);
    column_->addStretch(1);
    connect(enable_, &QPushButton::clicked, this, &PcView::enableRequested);
    retranslate();
}

void PcView::retranslate() {
    setAccessibleName(captionText());
    enable_->setText(qtTrId("MAIN_STR_PC_READ"));
    halves_ = halvesNow();
    showState();
}

void PcView::setEnabledState(bool reading) {
    if (reading != reading_) {
        reading_ = reading;
        last_.reset();
        halves_ = halvesNow();
        showState();
        announce();
    }
}

void PcView::showReading(const sensors::PcReading &reading) {
    if (!reading_) {
        return; // was on its way when reading was switched off
    }
    const State before = state();
    last_ = reading;
    std::array<Half, 2> now = halvesNow();
    const bool changed = now != halves_;
    halves_ = std::move(now);
    if (state() != before) {
        showState();
    } else if (changed && state() == State::Figures) {
        update(room());
    } else {
        return;
    }
    announce();
}

void PcView::setProblem(const QString &whatToInstall) {
    if (whatToInstall != problem_) {
        problem_ = whatToInstall;
        showState();
    }
}

PcView::State PcView::state() const {
    if (!reading_) {
        return State::Off;
    }
    if (!last_) {
        return State::Waiting;
    }
    return last_->any() ? State::Figures : State::Nothing;
}

void PcView::showState() {
    switch (state()) {
    case State::Off:
        title_->setText(qtTrId("MAIN_STR_PC_OFF"));
        text_->setText(qtTrId("MAIN_STR_PC_OFF_HINT"));
        break;
    case State::Waiting:
        title_->setText(qtTrId("MAIN_STR_PC_WAITING"));
        text_->clear();
        break;
    case State::Nothing:
        title_->setText(qtTrId("MAIN_STR_PC_NOTHING"));
        text_->setText(problem_);
        break;
    case State::Figures:
        break;
    }
    const bool focused = enable_->hasFocus();
    text_->setVisible(!text_->text().isEmpty());
    enable_->setVisible(state() == State::Off);
    words_->setVisible(state() != State::Figures);

    if (focused && state() != State::Off && text_->isVisible()) {
        text_->setFocus(Qt::OtherFocusReason);
    }
    layOut(style::windowScale(*this));
    update();
}

std::array<PcView::Half, 2> PcView::halvesNow() const {
    const sensors::PcReading reading = last_.value_or(sensors::PcReading{});
    const auto temperature = [](std::optional<double> celsius) {
        return figure(celsius ? std::optional(degrees(*celsius)) : std::nullopt, 0);
    };
    return {
        Half{qtTrId("MAIN_STR_PC_PROCESSOR"), reading.cpuName.simplified(), temperature(reading.cpuCelsius),
             figure(reading.cpuWatts, 1), figure(reading.cpuVolts, 3), figure(reading.cpuAmps, 1)},
        Half{qtTrId("MAIN_STR_PC_GRAPHICS"), reading.gpuName.simplified(), temperature(reading.gpuCelsius),
             figure(reading.gpuWatts, 1), figure(reading.gpuVolts, 3), figure(reading.gpuAmps, 1)}};
}

QString PcView::captionText() const { return qtTrId("MAIN_STR_PC"); }

QString PcView::readoutText() const {
    if (state() != State::Figures) {
        return text_->text().isEmpty() ? title_->text()
                                       : QStringLiteral("%1. %2").arg(title_->text(), text_->text());
    }
    QStringList parts;
    for (const Half &half : halves_) {
        const QString name = half.name.isEmpty() ? half.kind : half.kind + QLatin1Char(' ') + half.name;
        parts << QStringLiteral("%1: %2 %3, %4 W, %5 V, %6 A")
                     .arg(name, half.degrees, degreeUnit(), half.watts, half.volts, half.amps);
    }
    return parts.join(QStringLiteral("; "));
}

std::optional<double> PcView::readoutValue() const {
    return last_ && last_->cpuCelsius ? std::optional(degrees(*last_->cpuCelsius)) : std::nullopt;
}

std::pair<double, double> PcView::readoutRange() const { return {degrees(0.0), degrees(120.0)}; }

void PcView::layOut(qreal scale) {
    const QRect place = room();
    title_->setFont(style::font(style::type::kTitle * scale, QFont::DemiBold));
    text_->setFont(style::font(style::type::kBody * scale));
    enable_->setFont(style::font(style::type::kBody * scale, QFont::DemiBold));
    enable_->setFixedHeight(qRound(kControlHeight * scale));
    enable_->setMinimumWidth(qRound(96.0 * scale));
    const bool low = place.height() < kLowRoom * scale;
    column_->setDirection(low ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    column_->setStretch(0, low ? 0 : 1);
    column_->setStretch(1, low ? 1 : 0);
    column_->setStretch(3, low ? 0 : 1);
    column_->setSpacing(qRound((low ? style::space::kXl : style::space::kM) * scale));
    column_->itemAt(1)->layout()->setSpacing(qRound(style::space::kXs * scale));
    for (QLabel *label : {title_, text_}) {
        label->setAlignment(low ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignHCenter | Qt::AlignVCenter);
    }
    const int wide = low ? place.width() : std::min(place.width(), qRound(kWordsWidth * scale));
    QRect words(0, 0, wide, place.height());
    words.moveCenter(place.center());
    words_->setGeometry(words);
}

void PcView::paintEvent(QPaintEvent *event) {
    TrendView::paintEvent(event);
    if (state() != State::Figures) {
        return;
    }
    QPainter painter(this);
    const qreal scale = style::windowScale(*this);
    const QRectF place(room());
    const qreal gap = style::space::kXl * scale;
    const qreal wide = (place.width() - gap) / 2.0;
    qreal x = place.left();
    for (const Half &half : halves_) {
        paintHalf(painter, QRectF(x, place.top(), wide, place.height()), half);
        x += wide + gap;
    }
    painter.fillRect(
        QRectF(std::round(place.center().x()), place.top() + 2.0 * scale, 1.0, place.height() - 4.0 * scale),
        style::tone(colour::kGrid));
}

void PcView::paintHalf(QPainter &painter, const QRectF &place, const Half &half) const {
    const qreal scale = style::windowScale(*this);
    const QFont kindFont = style::font(style::type::kLabel * scale, QFont::DemiBold);
    const QFont nameFont = style::font(style::type::kLabel * scale);
    const QRectF head(place.left(), place.top() + 2.0 * scale, place.width(), 18.0 * scale);
    painter.setFont(kindFont);
    painter.setPen(style::tone(isEnabled() ? colour::kTextSecondary : colour::kStale));
    painter.drawText(head, Qt::AlignLeft | Qt::AlignVCenter, half.kind);
    const qreal kindWide = QFontMetricsF(kindFont).horizontalAdvance(half.kind) + style::space::kM * scale;
    painter.setFont(nameFont);
    painter.setPen(style::tone(colour::kTextTertiary));
    painter.drawText(head.adjusted(kindWide, 0.0, 0.0, 0.0), Qt::AlignRight | Qt::AlignVCenter,
                     QFontMetricsF(nameFont).elidedText(half.name, Qt::ElideMiddle, head.width() - kindWide));

    const auto inkOf = [this](const QString &figure, QRgb usual) {
        return style::tone(isEnabled() && figure != QString(kNoValue) ? usual : colour::kStale);
    };
    const qreal bottom = place.bottom() - style::space::kXs * scale;
    const qreal free = bottom - head.bottom();
    const qreal smallPixels = std::clamp(free * 0.13, 12.0 * scale, 15.0 * scale);
    const FigureFont small(style::font(smallPixels, QFont::Medium));
    const qreal largePixels = std::clamp(free - 3.4 * smallPixels, kLeastFigure * scale, kMostFigure * scale);
    const FigureFont large(style::font(largePixels, QFont::DemiBold));
    const QFont unitFont = style::font(std::max(12.0 * scale, 0.45 * largePixels), QFont::Medium);
    // The two lines as a group in the middle of what is free.
    const qreal between = std::min(smallPixels * 1.6, std::max(6.0 * scale, free * 0.16));
    const qreal tall = large.digitHeight() + between + small.digitHeight();
    const qreal largeBase = head.bottom() + (free - tall) / 2.0 + large.digitHeight();
    const qreal smallBase = largeBase + between + small.digitHeight();
    const auto drawLarge = [&](qreal x, const QString &figure, const QString &unit) {
        painter.setPen(inkOf(figure, colour::kText));
        const qreal left = x - large.indent(figure);
        large.draw(painter, {left, largeBase}, figure);
        painter.setPen(inkOf(figure, colour::kTextSecondary));
        painter.setFont(unitFont);
        painter.drawText(QPointF(left + large.width(figure) + 5.0 * scale, largeBase), unit);
    };
    const auto drawSmall = [&](qreal x, const QString &figure, const QString &unit) {
        painter.setPen(inkOf(figure, colour::kText));
        small.draw(painter, {x, smallBase}, figure);
        painter.setPen(inkOf(figure, colour::kTextSecondary));
        small.draw(painter, {x + small.width(figure) + 4.0 * scale, smallBase}, unit);
    };
    const qreal second = place.left() + place.width() * 0.5;
    drawLarge(place.left(), half.degrees, degreeUnit());
    drawLarge(second, half.watts, QStringLiteral("W"));
    drawSmall(place.left(), half.volts, QStringLiteral("V"));
    drawSmall(second, half.amps, QStringLiteral("A"));
}

} // namespace zpsg::ui
