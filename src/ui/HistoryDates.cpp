#include "ui/HistoryDates.h"

#include "ui/Figures.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

namespace zpsg::ui {
namespace {

/// A stretch of a date format: a field, or what stands between two.
struct Piece {
    QString text;
    QChar field;         ///< 'w' for the weekday, 'd', 'M' or 'y'; null between fields
    bool suffix = false; ///< a word that belongs to the field before it, as in "7月"
};

std::vector<Piece> piecesOf(const QString &format) {
    std::vector<Piece> pieces;
    for (int i = 0; i < format.size();) {
        const QChar first = format.at(i);
        int end = i + 1;
        if (first == QLatin1Char('\'')) {
            end = format.indexOf(first, i + 1);
            end = end < 0 ? format.size() : end + 1;
            pieces.push_back({format.mid(i, end - i), QChar(), false});
        } else if (QStringLiteral("dMy").contains(first)) {
            while (end < format.size() && format.at(end) == first) {
                ++end;
            }
            const bool weekday = first == QLatin1Char('d') && end - i > 2;
            pieces.push_back({format.mid(i, end - i), weekday ? QLatin1Char('w') : first, false});
        } else {
            pieces.push_back({QString(first), QChar(), first.isLetter()});
        }
        i = end;
    }
    return pieces;
}

bool isField(const Piece &piece) { return !piece.field.isNull(); }

/// Takes a field away with what joined it to the others.
void remove(std::vector<Piece> &pieces, QChar field) {
    const auto at = std::find_if(pieces.begin(), pieces.end(),
                                 [field](const Piece &piece) { return piece.field == field; });
    if (at == pieces.end()) {
        return;
    }
    const auto next = std::find_if(at + 1, pieces.end(), isField);
    if (next != pieces.end()) {
        pieces.erase(at, next);
        return;
    }
    auto begin = at;
    while (begin != pieces.begin() && !isField(*std::prev(begin)) && !std::prev(begin)->suffix) {
        --begin;
    }
    pieces.erase(begin, pieces.end());
}

QString joined(const std::vector<Piece> &pieces) {
    QString format;
    for (const Piece &piece : pieces) {
        format += piece.text;
    }
    return format;
}

} // namespace

QString dateFormat(DateParts parts, const QLocale &locale) {
    QString whole = locale.dateFormat(QLocale::LongFormat);
    if (parts == DateParts::Full) {
        return whole;
    }
    std::vector<Piece> pieces = piecesOf(whole);
    if (parts != DateParts::Weekday) {
        remove(pieces, QLatin1Char('w'));
    }
    if (parts == DateParts::Month) {
        remove(pieces, QLatin1Char('d'));
    }
    if (parts == DateParts::DayMonth) {
        remove(pieces, QLatin1Char('y'));
    }
    QString format = joined(pieces);
    if (parts == DateParts::Weekday) {
        format.replace(QStringLiteral("dddd"), QStringLiteral("ddd"));
    }
    if (parts == DateParts::Short || parts == DateParts::DayMonth) {
        format.replace(QStringLiteral("MMMM"), QStringLiteral("MMM"));
    }
    return format;
}

QString dateText(const QDate &date, DateParts parts, const QLocale &locale) {
    QString format = dateFormat(parts, locale);
    if (parts == DateParts::Month) {
        // A month that stands alone has another ending in some languages.
        format.replace(QStringLiteral("MMMM"),
                       QLatin1Char('\'') + locale.standaloneMonthName(date.month()) + QLatin1Char('\''));
    }
    return locale.toString(date, format);
}

QString rangeText(HistorySpan span, const HistoryRange &range) {
    switch (span) {
    case HistorySpan::Month:
        return dateText(range.from, DateParts::Month);
    case HistorySpan::Year:
        return QString::number(range.from.year());
    case HistorySpan::Week:
    case HistorySpan::Range:
        break;
    }
    if (range.from == range.to) {
        return dateText(range.from, DateParts::Short);
    }
    // One year is said once, at the outer side of the two dates.
    DateParts from = DateParts::Short;
    DateParts to = DateParts::Short;
    if (range.from.year() == range.to.year()) {
        const QString format = dateFormat(DateParts::Short, QLocale());
        const bool yearFirst = format.indexOf(QLatin1Char('y')) < format.indexOf(QLatin1Char('d'));
        (yearFirst ? to : from) = DateParts::DayMonth;
    }
    return qtTrId("HISTORY_FROM_TO").arg(dateText(range.from, from), dateText(range.to, to));
}

QString recordedText(int minutes) {
    if (minutes < 60) {
        return qtTrId("HISTORY_MINUTES").arg(minutes);
    }
    const QString hours = QLocale().toString(minutes / 60);
    return minutes < 100 * 60 ? qtTrId("HISTORY_HOURS_MINUTES").arg(hours).arg(minutes % 60)
                              : qtTrId("HISTORY_HOURS").arg(hours);
}

QString energyText(double kwh) {
    const int decimals = kwh < 9.995 ? 2 : (kwh < 99.95 ? 1 : 0);
    const QString figure = kwh < 9999.5 ? formatFigure(kwh, decimals) : QLocale().toString(std::llround(kwh));
    return figure + QStringLiteral(" kWh");
}

QString powerText(double watts) { return formatFigure(watts, 0) + QStringLiteral(" W"); }

QString efficiencyText(double percent) {
    return percent > 0.0 ? formatFigure(percent, 1) + QStringLiteral(" %") : QString(kNoValue);
}

} // namespace zpsg::ui
