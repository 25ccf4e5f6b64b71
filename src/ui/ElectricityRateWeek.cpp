#include "ui/ElectricityRateWeek.h"

#include "ui/ElectricityRateDays.h"
#include "ui/ElectricityRateEntry.h"
#include "ui/ElectricityRateText.h"
#include "ui/Figures.h"
#include "ui/Style.h"

#include <QHelpEvent>
#include <QLocale>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <set>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;
using power::kMinutesOfDay;

/// All in a window of the usual size, pixels.
constexpr qreal kRow = 20.0;
constexpr qreal kStrip = 15.0;
constexpr qreal kNames = 34.0; ///< room for the days' names
constexpr qreal kAxis = 20.0;
constexpr qreal kLegendRow = 19.0;
constexpr qreal kSwatch = 16.0;
/// A colour lighter than this takes dark letters, of 255.
constexpr int kLight = 120;

QString letter(std::size_t rate) { return QChar(static_cast<ushort>('A' + rate)); }

QFont letterFont(qreal scale) { return style::font(10.0 * scale, QFont::DemiBold); }

/// In a month that begins with a Monday; which one does not matter.
QDate someDay(int dayOfWeek) { return {2024, 1, dayOfWeek}; }

double rateAt(const power::Tariff &tariff, int dayOfWeek, int minute) {
    // A zone without summer time: every minute is there once.
    return tariff.rateAt(QDateTime(someDay(dayOfWeek), QTime(minute / 60, minute % 60), Qt::UTC));
}

QColor mixed(const QColor &one, const QColor &other, qreal share) {
    return QColor::fromRgbF(one.redF() + (other.redF() - one.redF()) * share,
                            one.greenF() + (other.greenF() - one.greenF()) * share,
                            one.blueF() + (other.blueF() - one.blueF()) * share);
}

} // namespace

struct ElectricityRateWeek::Measures {
    explicit Measures(const ElectricityRateWeek &week, int width)
        : scale(style::windowScale(week))
        , left(kNames * scale)
        , hours(width - left - 1.0)
        , legendTop((7.0 * kRow + kAxis + style::space::kS) * scale) {
        const QFontMetricsF metrics(style::font(style::type::kLabel * scale));
        for (std::size_t i = 0; i < week.rates_.size(); ++i) {
            entry = std::max(entry, metrics.horizontalAdvance(week.legendText(i)));
        }
        entry += (kSwatch + 6.0 + style::space::kL) * scale;
        columns = std::max(1, static_cast<int>(width / entry));
        lines = (static_cast<int>(week.rates_.size()) + columns - 1) / columns;
    }

    qreal scale;
    qreal left;  ///< of the strips
    qreal hours; ///< their width
    qreal legendTop;
    qreal entry = 0.0; ///< width of one in the legend
    int columns = 1;   ///< of the legend
    int lines = 0;

    [[nodiscard]] qreal x(int minute) const { return left + hours * minute / kMinutesOfDay; }
};

ElectricityRateWeek::ElectricityRateWeek(QWidget *parent) : QWidget(parent) { retranslate(); }

void ElectricityRateWeek::showTariff(const power::Tariff &tariff, const QString &currency) {
    // The price can only change where a period begins or ends.
    std::set<int> bounds{0, kMinutesOfDay};
    for (const power::TariffPeriod &period : tariff.periods()) {
        bounds.insert({period.from, period.to});
    }
    const auto order = daysInOrder();
    std::set<double> found;
    std::array<std::vector<std::pair<int, double>>, 7> starts;
    for (std::size_t row = 0; row < order.size(); ++row) {
        for (const int minute : bounds) {
            if (minute == kMinutesOfDay) {
                continue;
            }
            const double rate = rateAt(tariff, order.at(row), minute);
            if (starts.at(row).empty() || starts.at(row).back().second != rate) {
                starts.at(row).emplace_back(minute, rate);
                found.insert(rate);
            }
        }
    }
    rates_.assign(found.begin(), found.end());
    for (std::size_t row = 0; row < days_.size(); ++row) {
        const auto &day = starts.at(row);
        days_.at(row).clear();
        for (std::size_t i = 0; i < day.size(); ++i) {
            const auto place = std::lower_bound(rates_.begin(), rates_.end(), day.at(i).second);
            days_.at(row).push_back({day.at(i).first,
                                     i + 1 < day.size() ? day.at(i + 1).first : kMinutesOfDay,
                                     static_cast<std::size_t>(place - rates_.begin())});
        }
    }
    currency_ = currency;
    retranslate();
    update();
}

void ElectricityRateWeek::retranslate() {
    setAccessibleName(qtTrId("RATE_STR_WEEK"));
    QStringList words;
    for (std::size_t i = 0; i < rates_.size(); ++i) {
        words << QStringLiteral("%1: %2").arg(letter(i), legendText(i));
    }
    setAccessibleDescription(words.join(QStringLiteral("; ")));
    update();
}

QString ElectricityRateWeek::legendText(std::size_t rate) const {
    return rateText(rates_.at(rate)) + QChar(QChar::Nbsp) + currency_;
}

QColor ElectricityRateWeek::colourOf(std::size_t rate) const {
    // Blue to amber by way of a grey is told apart by everybody, and never looks like an alarm.
    const std::array<QColor, 3> stops{QColor(38, 110, 200), QColor(126, 140, 150), QColor(240, 178, 70)};
    if (rates_.size() < 2) {
        return stops.front();
    }
    const qreal place = 2.0 * static_cast<qreal>(rate) / static_cast<qreal>(rates_.size() - 1);
    return place <= 1.0 ? mixed(stops.at(0), stops.at(1), place)
                        : mixed(stops.at(1), stops.at(2), place - 1.0);
}

int ElectricityRateWeek::heightFor(int width) const {
    const Measures measures(*this, width);
    return static_cast<int>(std::ceil(measures.legendTop + measures.lines * kLegendRow * measures.scale));
}

QString ElectricityRateWeek::textAt(const QPoint &place) const {
    const Measures measures(*this, width());
    const auto row = static_cast<int>(std::floor(place.y() / (kRow * measures.scale)));
    const auto minute =
        static_cast<int>(std::floor((place.x() - measures.left) / measures.hours * kMinutesOfDay));
    if (row < 0 || row >= 7 || minute < 0 || minute >= kMinutesOfDay) {
        return {};
    }
    const auto &parts = days_.at(static_cast<std::size_t>(row));
    const auto part =
        std::find_if(parts.begin(), parts.end(), [minute](const Part &each) { return minute < each.to; });
    if (part == parts.end()) {
        return {};
    }
    const int day = daysInOrder().at(static_cast<std::size_t>(row));
    return QStringLiteral("%1 %2\u2013%3: %4")
        .arg(QLocale().standaloneDayName(day, QLocale::ShortFormat), minuteText(part->from),
             minuteText(part->to), legendText(part->rate));
}

bool ElectricityRateWeek::event(QEvent *event) {
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        QToolTip::showText(help->globalPos(), textAt(help->pos()), this);
        return true;
    }
    return QWidget::event(event);
}

void ElectricityRateWeek::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Measures measures(*this, width());
    for (std::size_t row = 0; row < days_.size(); ++row) {
        paintDay(painter, measures, row);
    }
    paintHours(painter, measures);
    paintLetters(painter, measures);
    paintLegend(painter, measures);
}

QRectF ElectricityRateWeek::place(const Measures &measures, std::size_t row, const Part &part) {
    const qreal scale = measures.scale;
    const qreal top = (static_cast<qreal>(row) * kRow + (kRow - kStrip) / 2.0) * scale;
    const qreal parted = part.to < kMinutesOfDay ? 1.0 : 0.0;
    return {QPointF(measures.x(part.from), top), QPointF(measures.x(part.to) - parted, top + kStrip * scale)};
}

void ElectricityRateWeek::paintDay(QPainter &painter, const Measures &measures, std::size_t row) const {
    const qreal scale = measures.scale;
    const QRectF line(0.0, static_cast<qreal>(row) * kRow * scale, measures.left, kRow * scale);
    const QString name = QLocale().standaloneDayName(daysInOrder().at(row), QLocale::ShortFormat);
    painter.setPen(style::tone(colour::kTextSecondary));
    painter.setFont(fittingFont(style::font(style::type::kSmall * scale), name, measures.left - 6.0 * scale));
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, name);
    painter.setPen(Qt::NoPen);
    for (const Part &part : days_.at(row)) {
        painter.setBrush(colourOf(part.rate));
        painter.drawRoundedRect(place(measures, row, part), 2.0 * scale, 2.0 * scale);
    }
}

void ElectricityRateWeek::paintLetters(QPainter &painter, const Measures &measures) const {
    for (std::size_t row = 0; row < days_.size(); ++row) {
        for (const Part &part : days_.at(row)) {
            const QRectF strip = place(measures, row, part);
            if (strip.width() >=
                QFontMetricsF(letterFont(measures.scale)).horizontalAdvance(letter(part.rate))) {
                paintLetter(painter, strip, part.rate, measures.scale);
            }
        }
    }
}

void ElectricityRateWeek::paintLetter(QPainter &painter, const QRectF &on, std::size_t rate,
                                      qreal scale) const {
    painter.setFont(letterFont(scale));
    painter.setPen(colourOf(rate).lightness() > kLight ? QColor(20, 22, 24) : style::tone(colour::kText));
    painter.drawText(on, Qt::AlignCenter, letter(rate));
}

void ElectricityRateWeek::paintHours(QPainter &painter, const Measures &measures) const {
    const qreal scale = measures.scale;
    const QFont small = style::font(10.0 * scale);
    const QFontMetricsF metrics(small);
    const qreal top = 7.0 * kRow * scale;
    painter.setFont(small);
    for (const int hour : {0, 6, 12, 18, 24}) {
        const QString text = QString::number(hour);
        const qreal wide = metrics.horizontalAdvance(text);
        const qreal x = measures.x(hour * 60);
        const qreal from = std::clamp(x - wide / 2.0, measures.left, measures.left + measures.hours - wide);
        painter.setPen(style::tone(colour::kTextTertiary));
        painter.drawText(QRectF(from, top, wide + 1.0, kAxis * scale - 3.0 * scale),
                         Qt::AlignLeft | Qt::AlignVCenter, text);
        if (hour > 0 && hour < 24) {
            painter.fillRect(QRectF(std::round(x) - 0.5, 0.0, 1.0, top),
                             style::tone(colour::kWindowBottom, 0.35));
        }
    }
}

void ElectricityRateWeek::paintLegend(QPainter &painter, const Measures &measures) const {
    const qreal scale = measures.scale;
    const QFont words = style::font(style::type::kLabel * scale);
    for (std::size_t i = 0; i < rates_.size(); ++i) {
        // Down a column first, as one reads a list.
        const int column = static_cast<int>(i) / measures.lines;
        const int line = static_cast<int>(i) % measures.lines;
        const qreal x = column * measures.entry;
        const qreal y = measures.legendTop + line * kLegendRow * scale;
        const QRectF swatch(x, y + (kLegendRow * scale - kStrip * scale) / 2.0, kSwatch * scale,
                            kStrip * scale);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colourOf(i));
        painter.drawRoundedRect(swatch, 2.0 * scale, 2.0 * scale);
        paintLetter(painter, swatch, i, scale);
        painter.setFont(words);
        painter.setPen(style::tone(colour::kText));
        painter.drawText(QRectF(swatch.right() + 6.0 * scale, y, measures.entry, kLegendRow * scale),
                         Qt::AlignLeft | Qt::AlignVCenter, legendText(i));
    }
}

} // namespace zpsg::ui
