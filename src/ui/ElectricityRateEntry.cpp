#include "ui/ElectricityRateEntry.h"

#include "power/Tariff.h"
#include "ui/Controls.h"
#include "ui/ElectricityRateText.h"
#include "ui/Style.h"

#include <QKeyEvent>
#include <QRegularExpression>

namespace zpsg::ui {
namespace {

using power::kMinutesOfDay;

/// Widths in a window of the usual size, pixels.
constexpr qreal kPriceWidth = 84.0;
constexpr qreal kTimeWidth = 62.0;
constexpr int kStepMinutes = 15;

} // namespace

QString minuteText(int minute) {
    return QStringLiteral("%1:%2")
        .arg(minute / 60, 2, 10, QLatin1Char('0'))
        .arg(minute % 60, 2, 10, QLatin1Char('0'));
}

ElectricityRateEntry::ElectricityRateEntry(QWidget *parent) : QLineEdit(parent) {
    setProperty("entry", true);
    setMaxLength(16);
    connect(this, &QLineEdit::textEdited, this, &ElectricityRateEntry::edited);
    connect(this, &QLineEdit::editingFinished, this, &ElectricityRateEntry::left);
}

QString ElectricityRateEntry::shownFault() const { return shown_ ? fault() : QString(); }

void ElectricityRateEntry::edited() {
    shown_ = shown_ && !fault().isEmpty();
    showEdge();
    emit changed();
}

void ElectricityRateEntry::left() {
    if (isModified()) {
        tidy();
        showFault();
        emit changed();
    }
}

void ElectricityRateEntry::showFault() {
    shown_ = !fault().isEmpty();
    showEdge();
}

void ElectricityRateEntry::showEdge() {
    const QString sheet = shownFault().isEmpty()
                              ? QString()
                              : QStringLiteral("QLineEdit:!focus { border-color: rgb(255,193,77); }");
    if (styleSheet() != sheet) {
        const QFont kept = font();
        setStyleSheet(sheet);
        setFont(kept);
    }
}

void ElectricityRateEntry::setTidyText(const QString &text) {
    setText(text);
    shown_ = false;
    showEdge();
}

void ElectricityRateEntry::applyFont(qreal scale, int width) {
    setFont(style::font(style::type::kBody * scale));
    setFixedSize(width, qRound(kControlHeight * scale));
}

void ElectricityRatePrice::setRate(std::optional<double> rate) {
    given_ = rate;
    setTidyText(rate ? rateText(*rate) : QString());
}

std::optional<double> ElectricityRatePrice::rate() const {
    if (given_ && text() == rateText(*given_)) {
        return given_;
    }
    if (optional_ && text().trimmed().isEmpty()) {
        return 0.0;
    }
    const TypedRate typed = readRate(text());
    return typed.fault == RateFault::None ? std::optional(typed.rate) : std::nullopt;
}

QString ElectricityRatePrice::fault() const { return rate() ? QString() : faultText(readRate(text()).fault); }

void ElectricityRatePrice::tidy() {
    const TypedRate typed = readRate(text());
    if (typed.fault == RateFault::None) {
        setText(rateText(typed.rate));
    }
}

void ElectricityRatePrice::applyScale(qreal scale) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    applyFont(scale, qRound(kPriceWidth * scale));
}

ElectricityRateTime::ElectricityRateTime(int lastMinute, QWidget *parent)
    : ElectricityRateEntry(parent), lastMinute_(lastMinute) {
    setMaxLength(5);
}

void ElectricityRateTime::setMinute(int minute) { setTidyText(minuteText(minute)); }

std::optional<int> ElectricityRateTime::minute() const {
    static const QRegularExpression form(QStringLiteral(R"(^\s*(\d{1,2})(?:[:.h]?([0-5]\d))?\s*$)"));
    const auto match = form.match(text());
    const int minute = match.captured(1).toInt() * 60 + match.captured(2).toInt();
    return match.hasMatch() && minute <= lastMinute_ ? std::optional(minute) : std::nullopt;
}

QString ElectricityRateTime::fault() const {
    return minute() ? QString() : qtTrId("RATE_STR_FAULT_TIME").arg(minuteText(0), minuteText(lastMinute_));
}

void ElectricityRateTime::tidy() {
    if (const auto typed = minute()) {
        setText(minuteText(*typed));
    }
}

void ElectricityRateTime::keyPressEvent(QKeyEvent *event) {
    const bool up = event->key() == Qt::Key_Up;
    const auto now = minute();
    if (!now || (!up && event->key() != Qt::Key_Down)) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    // To the next whole quarter, and round the clock.
    const int day = lastMinute_ == kMinutesOfDay ? kMinutesOfDay + kStepMinutes : kMinutesOfDay;
    const int next = up ? *now - *now % kStepMinutes + kStepMinutes
                        : *now - (*now % kStepMinutes == 0 ? kStepMinutes : *now % kStepMinutes);
    setMinute((next + day) % day);
    emit changed();
}

void ElectricityRateTime::applyScale(qreal scale) {
    setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    applyFont(scale, qRound(kTimeWidth * scale));
}

} // namespace zpsg::ui
