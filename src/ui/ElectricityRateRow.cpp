#include "ui/ElectricityRateRow.h"

#include "ui/Controls.h"
#include "ui/ElectricityRateDays.h"
#include "ui/ElectricityRateEntry.h"
#include "ui/Figures.h"
#include "ui/Selector.h"
#include "ui/Style.h"
#include "ui/TitleButton.h"

#include <QAbstractButton>
#include <QHBoxLayout>

#include <algorithm>

namespace zpsg::ui {
namespace {

using power::kMinutesOfDay;

/// What a new row begins with: the night, on every day.
constexpr unsigned kEveryDay = 0x7F;
constexpr int kNightFrom = 22 * 60;
constexpr int kNightTo = 6 * 60;

} // namespace

ElectricityRateRow::ElectricityRateRow(QWidget *parent)
    : QWidget(parent)
    , days_(new ElectricityRateDays(this))
    , from_(new ElectricityRateTime(kMinutesOfDay - 1, this))
    , dash_(new QLabel(this))
    , to_(new ElectricityRateTime(kMinutesOfDay, this))
    , nextDay_(new QLabel(this))
    , price_(new ElectricityRatePrice(this))
    , up_(new UpDownButton(-1, this))
    , remove_(new TitleButton(Icon::Close, style::tone(style::colour::kText, 0.12), this))
    , message_(new QLabel(this)) {
    days_->setObjectName(QStringLiteral("rateDays"));
    from_->setObjectName(QStringLiteral("rateFrom"));
    to_->setObjectName(QStringLiteral("rateTo"));
    price_->setObjectName(QStringLiteral("ratePrice"));
    up_->setObjectName(QStringLiteral("btnRateUp"));
    remove_->setObjectName(QStringLiteral("btnRateRemove"));
    message_->setObjectName(QStringLiteral("lblRateFault"));
    dash_->setText(kNoValue);
    dash_->setProperty("tone", QStringLiteral("tertiary"));
    nextDay_->setProperty("tone", QStringLiteral("secondary"));
    message_->setProperty("tone", QStringLiteral("caution"));
    message_->hide();
    line_ = new QHBoxLayout;
    line_->addWidget(days_);
    line_->addWidget(from_);
    line_->addWidget(dash_);
    line_->addWidget(to_);
    line_->addWidget(nextDay_);
    line_->addWidget(price_);
    line_->addStretch(1);
    line_->addWidget(up_);
    line_->addWidget(remove_);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(line_);
    rows->addWidget(message_);
    connect(days_, &ElectricityRateDays::changed, this, &ElectricityRateRow::entryChanged);
    for (ElectricityRateEntry *entry : entries()) {
        connect(entry, &ElectricityRateEntry::changed, this, &ElectricityRateRow::entryChanged);
    }
    connect(up_, &QAbstractButton::clicked, this, &ElectricityRateRow::upRequested);
    connect(remove_, &QAbstractButton::clicked, this, &ElectricityRateRow::removeRequested);
    retranslate();
}

std::array<ElectricityRateEntry *, 3> ElectricityRateRow::entries() const { return {from_, to_, price_}; }

std::vector<QWidget *> ElectricityRateRow::stops() const {
    std::vector<QWidget *> stops(days_->buttons().begin(), days_->buttons().end());
    stops.insert(stops.end(), {from_, to_, price_, up_, remove_});
    return stops;
}

QWidget *ElectricityRateRow::upButton() const { return up_; }

QWidget *ElectricityRateRow::removeButton() const { return remove_; }

void ElectricityRateRow::setPeriod(const power::TariffPeriod &period) {
    days_->setDays(period.days);
    from_->setMinute(period.from);
    to_->setMinute(period.to);
    price_->setRate(period.rate);
    entryChanged();
}

void ElectricityRateRow::setDraft() {
    setPeriod({kEveryDay, kNightFrom, kNightTo, 0.0});
    price_->setRate(std::nullopt);
}

std::optional<power::TariffPeriod> ElectricityRateRow::period() const {
    const auto from = from_->minute();
    const auto to = to_->minute();
    const auto rate = price_->rate();
    if (days_->days() == 0U || !from || !to || !rate) {
        return std::nullopt;
    }
    return power::TariffPeriod{days_->days(), *from, *to, *rate};
}

QWidget *ElectricityRateRow::complain() {
    daysMissing_ = days_->days() == 0U;
    QWidget *first = daysMissing_ ? days_ : nullptr;
    for (ElectricityRateEntry *entry : entries()) {
        entry->showFault();
        if (first == nullptr && !entry->fault().isEmpty()) {
            first = entry;
        }
    }
    showMessage();
    return first;
}

void ElectricityRateRow::setPlace(int place) {
    place_ = place;
    up_->setEnabled(place > 0);
    retranslate();
}

void ElectricityRateRow::entryChanged() {
    daysMissing_ = daysMissing_ && days_->days() == 0U;
    const auto from = from_->minute();
    const auto to = to_->minute();
    const bool overnight = from && to && *to<*from && * to> 0;
    nextDay_->setText(overnight ? QStringLiteral("+1") : QString());
    nextDay_->setToolTip(overnight ? qtTrId("RATE_STR_NEXT_DAY") : QString());
    to_->setAccessibleDescription(nextDay_->toolTip());
    showMessage();
    emit changed();
}

void ElectricityRateRow::showMessage() {
    QStringList faults;
    if (daysMissing_) {
        faults << qtTrId("RATE_STR_FAULT_DAYS");
    }
    for (const ElectricityRateEntry *entry : entries()) {
        const QString fault = entry->shownFault();
        if (!fault.isEmpty() && !faults.contains(fault)) {
            faults << fault;
        }
    }
    message_->setText(faults.join(QStringLiteral("   \u00B7   ")));
    if (message_->isHidden() != faults.isEmpty()) {
        message_->setVisible(!faults.isEmpty());
        emit heightChanged();
    }
}

void ElectricityRateRow::retranslate() {
    const QString number = QString::number(place_ + 1);
    const auto name = [&number](QWidget *widget, const QString &text) {
        widget->setAccessibleName(QStringLiteral("%1, %2").arg(qtTrId("RATE_STR_ROW").arg(number), text));
    };
    days_->retranslate(
        QStringLiteral("%1, %2").arg(qtTrId("RATE_STR_ROW").arg(number), qtTrId("RATE_STR_DAYS")));
    name(from_, qtTrId("RATE_STR_FROM"));
    name(to_, qtTrId("RATE_STR_TO"));
    name(price_, qtTrId("RATE_STR_PRICE"));
    name(up_, qtTrId("RATE_STR_UP"));
    name(remove_, qtTrId("RATE_STR_REMOVE"));
    up_->setToolTip(qtTrId("RATE_STR_UP"));
    remove_->setToolTip(qtTrId("RATE_STR_REMOVE"));
    showMessage();
}

void ElectricityRateRow::applyScale(qreal scale) {
    layout()->setSpacing(qRound(2.0 * scale));
    line_->setSpacing(qRound(6.0 * scale));
    days_->applyScale(scale);
    for (ElectricityRateEntry *entry : entries()) {
        entry->applyScale(scale);
    }
    dash_->setFont(style::font(style::type::kBody * scale));
    nextDay_->setFont(style::font(style::type::kSmall * scale));
    nextDay_->setFixedWidth(qRound(20.0 * scale));
    message_->setFont(style::font(style::type::kSmall * scale));
    up_->setFixedSize(up_->sizeHint());
    remove_->setFixedSize(qRound(30.0 * scale), qRound(kControlHeight * scale));
}

std::array<int, 4> ElectricityRateRow::columns() const {
    return {days_->x(), from_->x(), to_->x(), price_->x()};
}

} // namespace zpsg::ui
