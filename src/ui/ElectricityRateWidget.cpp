#include "ui/ElectricityRateWidget.h"

#include "ui/Controls.h"
#include "ui/ElectricityRateCurrency.h"
#include "ui/ElectricityRateEntry.h"
#include "ui/ElectricityRateList.h"
#include "ui/ElectricityRateText.h"
#include "ui/ElectricityRateWeek.h"
#include "ui/FanOverlay.h"
#include "ui/Style.h"
#include "ui/TitleButton.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// All in a window of the usual size, pixels.
constexpr qreal kPlainWidth = 470.0; ///< of the card without periods
constexpr qreal kWeekWidth = 280.0;
constexpr qreal kLeastList = 90.0;
constexpr qreal kBeside = 16.0; ///< between the card and the window's edge

QLabel *label(const char *tone, QWidget *parent) {
    auto *made = new QLabel(parent);
    if (tone != nullptr) {
        made->setProperty("tone", QString::fromLatin1(tone));
    }
    return made;
}

/// A line across the card.
class Rule final : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        QPainter(this).fillRect(rect(), style::tone(colour::kText, 0.1));
    }
};

} // namespace

ElectricityRateWidget::ElectricityRateWidget(QWidget *parent)
    : QWidget(parent)
    , card_(new QWidget(this))
    , title_(label(nullptr, card_))
    , close_(new TitleButton(Icon::Close, style::tone(colour::kText, 0.12), card_))
    , priceCaption_(label("secondary", card_))
    , price_(new ElectricityRatePrice(card_))
    , currency_(new ElectricityRateCurrency(card_))
    , priceFault_(label("caution", card_))
    , rule_(new Rule(card_))
    , periodsCaption_(label(nullptr, card_))
    , add_(new QPushButton(card_))
    , hint_(label("secondary", card_))
    , list_(new ElectricityRateList(add_, card_))
    , week_(new QWidget(card_))
    , weekCaption_(label(nullptr, week_))
    , strips_(new ElectricityRateWeek(week_))
    , cancel_(new QPushButton(card_))
    , save_(new QPushButton(card_))
    // The whole of it counts as the card: a press beside the real one does nothing.
    , overlay_(new FanOverlay(this, this)) {
    close_->setObjectName(QStringLiteral("Close_Window"));
    price_->setObjectName(QStringLiteral("editRate"));
    currency_->setObjectName(QStringLiteral("listCurrency"));
    priceFault_->setObjectName(QStringLiteral("lblPriceFault"));
    add_->setObjectName(QStringLiteral("btnAddPeriod"));
    cancel_->setObjectName(QStringLiteral("btnCancel"));
    save_->setObjectName(QStringLiteral("btnSave"));
    price_->setOptional(true);
    save_->setProperty("primary", true);
    for (QPushButton *button : {add_, cancel_, save_}) {
        button->setProperty("slim", true);
        button->setCursor(Qt::PointingHandCursor);
    }
    hint_->setWordWrap(true);
    priceFault_->setWordWrap(true);
    layOut();
    retranslate();
    connect(price_, &ElectricityRateEntry::changed, this, &ElectricityRateWidget::showWeek);
    connect(price_, &ElectricityRateEntry::changed, this, &ElectricityRateWidget::showFaults);
    connect(currency_, &ElectricityRateCurrency::changed, this, &ElectricityRateWidget::showWeek);
    connect(currency_, &ElectricityRateCurrency::changed, this, &ElectricityRateWidget::showFaults);
    connect(list_, &ElectricityRateList::changed, this, &ElectricityRateWidget::showWeek);
    connect(list_, &ElectricityRateList::rowsChanged, this, &ElectricityRateWidget::showRows);
    connect(list_, &ElectricityRateList::emptied, add_, QOverload<>::of(&QWidget::setFocus));
    connect(add_, &QPushButton::clicked, list_, &ElectricityRateList::addRow);
    connect(close_, &QAbstractButton::clicked, this, &ElectricityRateWidget::closeSelf);
    connect(cancel_, &QPushButton::clicked, this, &ElectricityRateWidget::closeSelf);
    connect(save_, &QPushButton::clicked, this, &ElectricityRateWidget::save);
    connect(overlay_, &FanOverlay::dismissed, this, &ElectricityRateWidget::closeSelf);
    connect(overlay_, &FanOverlay::resized, this, &ElectricityRateWidget::place);
}

void ElectricityRateWidget::layOut() {
    head_ = new QHBoxLayout;
    head_->addWidget(title_, 1);
    head_->addWidget(close_);
    priceLine_ = new QHBoxLayout;
    priceLine_->addWidget(priceCaption_);
    priceLine_->addWidget(price_);
    priceLine_->addWidget(currency_);
    priceLine_->addWidget(priceFault_, 1);
    auto *periodsLine = new QHBoxLayout;
    periodsLine->addWidget(periodsCaption_, 1);
    periodsLine->addWidget(add_);
    left_ = new QVBoxLayout;
    left_->addLayout(periodsLine);
    left_->addWidget(hint_);
    left_->addWidget(list_);
    left_->addStretch(1);
    auto *right = new QVBoxLayout(week_);
    right->setContentsMargins(0, 0, 0, 0);
    right->addWidget(weekCaption_);
    right->addWidget(strips_);
    right->addStretch(1);
    body_ = new QHBoxLayout;
    body_->addLayout(left_, 1);
    body_->addWidget(week_);
    foot_ = new QHBoxLayout;
    foot_->addStretch(1);
    foot_->addWidget(cancel_);
    foot_->addWidget(save_);
    auto *layout = new QVBoxLayout(card_);
    layout->addLayout(head_);
    layout->addLayout(priceLine_);
    layout->addWidget(rule_);
    layout->addLayout(body_);
    layout->addLayout(foot_);
}

void ElectricityRateWidget::retranslate() {
    setAccessibleName(qtTrId("RATE_STR_TITLE"));
    title_->setText(qtTrId("RATE_STR_TITLE"));
    close_->setToolTip(qtTrId("FAN_CLOSE"));
    close_->setAccessibleName(qtTrId("FAN_CLOSE"));
    priceCaption_->setText(qtTrId("RATE_STR_PRICE_OF_KWH"));
    price_->setAccessibleName(qtTrId("RATE_STR_PRICE_OF_KWH"));
    price_->setPlaceholderText(qtTrId("RATE_STR_NOT_SET"));
    currency_->setAccessibleName(qtTrId("RATE_STR_CURRENCY"));
    currency_->setToolTip(qtTrId("RATE_STR_CURRENCY"));
    periodsCaption_->setText(qtTrId("RATE_STR_PERIODS"));
    add_->setText(qtTrId("RATE_STR_ADD"));
    weekCaption_->setText(qtTrId("RATE_STR_WEEK"));
    cancel_->setText(qtTrId("RATE_STR_CANCEL"));
    save_->setText(qtTrId("RATE_STR_SAVE"));
    list_->retranslate();
    strips_->retranslate();
    showFaults();
    showRows();
}

void ElectricityRateWidget::applyScale(qreal scale) {
    const auto pixels = [scale](qreal usual) { return qRound(usual * scale); };
    const int margin = pixels(style::space::kL);
    card_->layout()->setContentsMargins(margin, pixels(style::space::kM), margin, margin);
    card_->layout()->setSpacing(pixels(style::space::kM));
    // The sign in the button is in line with what is below it, not the button's own edge.
    head_->setContentsMargins(0, 0, -pixels(style::space::kM), 0);
    priceLine_->setSpacing(pixels(style::space::kS));
    left_->setSpacing(pixels(style::space::kS));
    body_->setSpacing(pixels(style::space::kXl));
    foot_->setSpacing(pixels(style::space::kS));
    week_->layout()->setSpacing(pixels(style::space::kM));
    title_->setFont(style::font(style::type::kTitle * scale, QFont::DemiBold));
    priceCaption_->setFont(style::font(style::type::kBody * scale));
    priceFault_->setFont(style::font(style::type::kLabel * scale));
    hint_->setFont(style::font(style::type::kLabel * scale));
    for (QLabel *caption : {periodsCaption_, weekCaption_}) {
        caption->setFont(style::font(style::type::kBody * scale, QFont::DemiBold));
    }
    // Both captions stand at one height, with the button beside them or without.
    weekCaption_->setFixedHeight(pixels(kControlHeight));
    for (QPushButton *button : {add_, cancel_, save_}) {
        button->setFont(
            style::font(style::type::kBody * scale, button == save_ ? QFont::DemiBold : QFont::Medium));
        const qreal words = QFontMetricsF(button->font()).horizontalAdvance(button->text());
        button->setFixedSize(std::max(pixels(92.0), qRound(words + 28.0 * scale)), pixels(kControlHeight));
    }
    rule_->setFixedHeight(1);
    price_->applyScale(scale);
    currency_->applyScale(scale);
    list_->applyScale(scale);
    close_->updateGeometry();
}

void ElectricityRateWidget::place() {
    if (!isVisible()) {
        return; // FanOverlay asks for it on opening
    }
    const qreal scale = style::windowScale(*this);
    applyScale(scale);
    const bool periods = list_->count() > 0;
    const QSize most = size() - QSize(1, 1) * qRound(2.0 * kBeside * scale);
    const int margins = 2 * qRound(style::space::kL * scale);
    int wide = qRound(kPlainWidth * scale);
    if (periods) {
        const int week = qRound(kWeekWidth * scale);
        strips_->setFixedSize(week, strips_->heightFor(week));
        list_->setFixedWidth(list_->rowWidth());
        wide = std::max(wide, margins + list_->width() + body_->spacing() + week);
    } else {
        wide = std::max(wide, periodsCaption_->sizeHint().width() + add_->width() + margins * 2);
    }
    wide = std::min(wide, most.width());
    list_->setFixedHeight(0);
    QLayout &layout = *card_->layout();
    const auto tall = [&layout, wide] {
        layout.invalidate();
        layout.activate(); // asks what is within it anew
        return layout.hasHeightForWidth() ? layout.totalHeightForWidth(wide)
                                          : layout.totalSizeHint().height();
    };
    if (periods) {
        // What the others leave of the window's height; the week may be higher than the list beside it.
        const int others = margins + layout.spacing() * 4 + head_->sizeHint().height() +
                           priceLine_->sizeHint().height() + 1 + foot_->sizeHint().height() + add_->height() +
                           hint_->heightForWidth(list_->width()) + 3 * left_->spacing();
        const int room = std::max(qRound(kLeastList * scale), most.height() - others);
        list_->setFixedHeight(std::min(list_->fullHeight(), room));
    }
    QRect card(0, 0, wide, std::min(tall(), most.height()));
    card.moveCenter(rect().center());
    card_->setGeometry(card);
    update();
}

void ElectricityRateWidget::open(const power::Tariff &tariff, const QString &currency) {
    opened_ = tariff;
    price_->setRate(tariff.baseRate() > 0.0 ? std::optional(tariff.baseRate()) : std::nullopt);
    currency_->setCode(currency);
    openedCurrency_ = currency_->code();
    currencyChecked_ = false;
    shownRate_ = tariff.baseRate();
    list_->setPeriods(tariff.periods());
    showFaults();
    showWeek();
    overlay_->open(price_);
    price_->selectAll();
}

power::Tariff ElectricityRateWidget::entered() const {
    return power::Tariff(price_->rate().value_or(0.0), list_->periods());
}

void ElectricityRateWidget::showWeek() {
    // While a price is being typed, the last good one stands.
    shownRate_ = price_->rate().value_or(shownRate_);
    strips_->showTariff(power::Tariff(shownRate_, list_->periods()), currency_->code());
    if (strips_->heightFor(strips_->width()) != strips_->height()) {
        place(); // the legend takes another line, or one less
    }
}

void ElectricityRateWidget::showFaults() {
    currencyChecked_ = currencyChecked_ && !currency_->fault().isEmpty();
    QStringList faults{price_->shownFault(), currencyChecked_ ? currency_->fault() : QString()};
    faults.removeAll({});
    const QString text = faults.join(QStringLiteral(" \u00B7 "));
    if (text != priceFault_->text()) {
        priceFault_->setText(text);
        place();
    }
}

void ElectricityRateWidget::showRows() {
    const bool periods = list_->count() > 0;
    list_->setVisible(periods);
    week_->setVisible(periods);
    hint_->setText(periods ? qtTrId("RATE_STR_PERIODS_HINT") : qtTrId("RATE_STR_NO_PERIODS"));
    const bool full = list_->count() >= static_cast<int>(power::Tariff::kMostPeriods);
    add_->setEnabled(!full);
    add_->setToolTip(full ? qtTrId("RATE_STR_FULL").arg(power::Tariff::kMostPeriods) : QString());
    showWeek();
    place();
}

void ElectricityRateWidget::closeSelf() { overlay_->close(); }

void ElectricityRateWidget::save() {
    price_->showFault();
    currencyChecked_ = true;
    QWidget *faulty = list_->complain();
    showFaults();
    if (currencyChecked_) {
        faulty = currency_;
    }
    if (!price_->fault().isEmpty()) {
        faulty = price_;
    }
    if (faulty != nullptr) {
        faulty->setFocus(Qt::TabFocusReason);
        return;
    }
    const power::Tariff now = entered();
    const QString currency = currency_->code();
    overlay_->close();
    if (rateText(now.baseRate()) != rateText(opened_.baseRate())) {
        emit rateConfirmed(static_cast<float>(now.baseRate()));
    }
    if (currency != openedCurrency_) {
        emit currencyChosen(currency);
    }
    if (now.periods() != opened_.periods()) {
        emit periodsConfirmed(now.periodsText());
    }
}

void ElectricityRateWidget::keyPressEvent(QKeyEvent *event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QWidget::keyPressEvent(event);
        return;
    }
    auto *button = qobject_cast<QAbstractButton *>(focusWidget());
    if (button != nullptr && button->hasFocus() && !button->isCheckable()) {
        button->click();
    } else {
        save();
    }
}

void ElectricityRateWidget::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void ElectricityRateWidget::paintEvent(QPaintEvent * /*event*/) {
    const qreal radius = style::kCardRadius * style::windowScale(*this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), style::tone(colour::kWindowBottom, 0.6));
    painter.setPen(QPen(style::tone(colour::kStale, 0.7), 1.0));
    painter.setBrush(QColor(38, 42, 46));
    painter.drawRoundedRect(QRectF(card_->geometry()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

} // namespace zpsg::ui
