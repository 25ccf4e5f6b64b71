#include "ui/ElectricityRateText.h"

#include "ui/Figures.h"

#include <QLocale>

#include <algorithm>
#include <array>

namespace zpsg::ui {
namespace {

/// A sign that means this currency wherever it is read, and how many decimals amounts have.
struct Currency {
    const char *code;
    const char *sign;
    int decimals;
};

constexpr std::array<Currency, 32> kCurrencies{{
    {"EUR", "\u20AC", 2},  {"USD", "US$", 2},    {"GBP", "\u00A3", 2}, {"CNY", "CN\u00A5", 2},
    {"JPY", "\u00A5", 0},  {"AED", "AED", 2},    {"ARS", "ARS", 2},    {"AUD", "A$", 2},
    {"BRL", "R$", 2},      {"CAD", "CA$", 2},    {"CHF", "CHF", 2},    {"CLP", "CLP", 0},
    {"CZK", "K\u010D", 2}, {"DKK", "DKK", 2},    {"HKD", "HK$", 2},    {"HUF", "Ft", 0},
    {"IDR", "IDR", 0},     {"ILS", "\u20AA", 2}, {"INR", "\u20B9", 2}, {"KRW", "\u20A9", 0},
    {"MXN", "MX$", 2},     {"NOK", "NOK", 2},    {"NZD", "NZ$", 2},    {"PLN", "z\u0142", 2},
    {"RUB", "\u20BD", 2},  {"SEK", "SEK", 2},    {"SGD", "SGD", 2},    {"THB", "\u0E3F", 2},
    {"TRY", "\u20BA", 2},  {"TWD", "NT$", 2},    {"UAH", "\u20B4", 2}, {"ZAR", "ZAR", 2},
}};

/// The currency of the country that the PC is in, whatever language the program speaks; empty where the
/// system names none.
QString localCurrency() { return QLocale::system().currencySymbol(QLocale::CurrencyIsoCode); }

/// A sign of letters must not run into the figures, as it would in formats made for a short one.
QString parted(const QString &text) {
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        if (i > 0) {
            const QChar before = text.at(i - 1);
            const QChar now = text.at(i);
            if ((before.isLetter() && now.isDigit()) || (before.isDigit() && now.isLetter())) {
                result += QChar(QChar::Nbsp);
            }
        }
        result += text.at(i);
    }
    return result;
}

/// Without group separators: they are not taken, nor written.
std::optional<double> number(QLocale locale, const QString &text) {
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    bool good = false;
    const double value = locale.toDouble(text, &good);
    return good ? std::optional(value) : std::nullopt;
}

int decimalsIn(const QString &text) {
    const int digits = static_cast<int>(
        std::count_if(text.begin(), text.end(), [](QChar character) { return character.isDigit(); }));
    const auto sign = std::find_if(text.begin(), text.end(), [](QChar character) {
        return !character.isDigit() && character != QLatin1Char('+');
    });
    return sign == text.end()
               ? 0
               : digits - static_cast<int>(std::count_if(
                              text.begin(), sign, [](QChar character) { return character.isDigit(); }));
}

} // namespace

QStringList commonCurrencies() {
    QStringList codes;
    for (const Currency &currency : kCurrencies) {
        codes << QString::fromLatin1(currency.code);
    }
    const QString own = localCurrency();
    if (!own.isEmpty()) {
        codes.removeAll(own);
        codes.prepend(own);
    }
    return codes;
}

QString costText(double amount, const QString &currency) {
    const QLocale locale;
    const QString local = localCurrency();
    const QString code = currency.isEmpty() ? local : currency;
    const auto *known = std::find_if(kCurrencies.begin(), kCurrencies.end(), [&code](const Currency &one) {
        return code == QLatin1String(one.code);
    });
    const bool found = known != kCurrencies.end();
    const QString sign = code == local ? QLocale::system().currencySymbol() // "$" where it needs no country
                         : found       ? QString::fromUtf8(known->sign)
                                       : code;
    return parted(locale.toCurrencyString(amount, sign, found ? known->decimals : 2));
}

QString priceText(double rate, const QString &currency) {
    const QString amount = costText(0.0, currency);
    const QString zero = formatFigure(0.0, 2);
    // Currencies without cents write their zero without them.
    const QString written = amount.contains(zero) ? zero : formatFigure(0.0, 0);
    return QString(amount).replace(written, rateText(rate));
}

QString rateText(double rate) {
    QString text = formatFigure(rate, kRateDecimals);
    const QChar zero = QLocale().zeroDigit();
    for (int spare = kRateDecimals - 2; spare > 0 && text.endsWith(zero); --spare) {
        text.chop(1);
    }
    return text;
}

TypedRate readRate(const QString &text) {
    const QString typed = text.trimmed();
    const bool letters =
        std::any_of(typed.begin(), typed.end(), [](QChar character) { return character.isLetter(); });
    auto value = number(QLocale(), typed);
    if (!value) {
        value = number(QLocale::c(), typed);
    }
    if (!value || letters) { // neither "nan" nor "1e5"
        return {0.0, RateFault::NoNumber};
    }
    if (!(*value >= 0.0 && *value <= kMostRate)) {
        return {0.0, RateFault::OutOfRange};
    }
    if (decimalsIn(typed) > kRateDecimals) {
        return {0.0, RateFault::TooManyDecimals};
    }
    return {*value, RateFault::None};
}

QString faultText(RateFault fault) {
    switch (fault) {
    case RateFault::NoNumber:
        return qtTrId("RATE_STR_FAULT_NUMBER").arg(rateText(0.305));
    case RateFault::OutOfRange:
        return qtTrId("RATE_STR_FAULT_RANGE").arg(QLocale().toString(kMostRate, 'f', 0));
    case RateFault::TooManyDecimals:
        return qtTrId("RATE_STR_FAULT_DECIMALS").arg(kRateDecimals);
    case RateFault::None:
        break;
    }
    return {};
}

} // namespace zpsg::ui
