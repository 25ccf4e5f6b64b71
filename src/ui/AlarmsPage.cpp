#include "ui/AlarmsPage.h"

#include "ui/AlarmLogModel.h"
#include "ui/AlarmLogTable.h"
#include "ui/Controls.h"
#include "ui/Style.h"
#include "ui/Temperature.h"
#include "ui/WarningCard.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedLayout>

namespace zpsg::ui {
namespace {

using psu::AlarmGroup;

constexpr std::array kGroups{AlarmGroup::Voltage, AlarmGroup::Fan, AlarmGroup::Temperature};
static_assert(kGroups.size() == psu::kAlarmGroups);

QString nameOf(AlarmGroup group) {
    switch (group) {
    case AlarmGroup::Voltage:
        return qtTrId("ALARM_GROUP_VOLTAGE");
    case AlarmGroup::Fan:
        return qtTrId("ALARM_GROUP_FAN");
    case AlarmGroup::Temperature:
        break;
    }
    return qtTrId("ALARM_GROUP_TEMPERATURE");
}

QString effectOf(AlarmGroup group) {
    switch (group) {
    case AlarmGroup::Voltage:
        return qtTrId("ALARM_GROUP_VOLTAGE_HINT");
    case AlarmGroup::Fan:
        return qtTrId("ALARM_GROUP_FAN_HINT");
    case AlarmGroup::Temperature:
        break;
    }
    return qtTrId("ALARM_GROUP_TEMPERATURE_HINT").arg(degreesText(psu::kHotCelsius));
}

} // namespace

AlarmsPage::AlarmsPage(QWidget *parent)
    : QWidget(parent), head_(new PageHead(this)), model_(new AlarmLogModel(this)) {
    for (const AlarmGroup group : kGroups) {
        auto *card = new WarningCard(this);
        warnings_.at(static_cast<std::size_t>(group)) = card;
        connect(card, &WarningCard::thrown, this, [this, group](bool on) { emit warningToggled(group, on); });
    }
    card_ = new Card(this);
    logTitle_ = new QLabel(card_);
    clear_ = new QPushButton(card_);
    table_ = new AlarmLogTable(model_, card_);
    empty_ = new EmptyState(Icon::Calm, style::colour::kGood, card_);

    clear_->setObjectName(QStringLiteral("btnClearLog"));
    clear_->setCursor(Qt::PointingHandCursor);
    connect(clear_, &QPushButton::clicked, this, &AlarmsPage::clearRequested);
    logTitle_->setProperty("tone", QStringLiteral("secondary"));
    clock_.setInterval(1000);
    connect(&clock_, &QTimer::timeout, this, &AlarmsPage::tick);
    layOut();
    retranslate();
    refresh();
}

void AlarmsPage::layOut() {
    cards_ = new QHBoxLayout;
    for (WarningCard *card : warnings_) {
        cards_->addWidget(card, 1);
    }

    auto *caption = new QHBoxLayout;
    caption->addWidget(logTitle_, 1);
    caption->addWidget(clear_);
    body_ = new QStackedLayout;
    body_->addWidget(table_);
    body_->addWidget(empty_);
    auto *cardLayout = new QVBoxLayout(card_);
    cardLayout->addLayout(caption);
    cardLayout->addLayout(body_, 1);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(head_);
    layout->addLayout(cards_);
    layout->addWidget(card_, 1);
}

void AlarmsPage::applyScale() {
    const qreal scale = style::windowScale(*this);
    const int gap = qRound(style::space::kM * scale);
    const int margin = qRound(style::space::kL * scale);
    layout()->setContentsMargins(margin, 0, margin, margin);
    layout()->setSpacing(gap);
    cards_->setSpacing(gap);
    card_->layout()->setContentsMargins(gap, gap, gap, gap);
    card_->layout()->setSpacing(qRound(style::space::kS * scale));
    empty_->applyScale(scale);
    head_->applyScale(scale);
    logTitle_->setFont(style::font(style::type::kBody * scale, QFont::Medium));
    clear_->setFont(style::font(style::type::kBody * scale, QFont::Medium));
    for (WarningCard *card : warnings_) {
        card->applyScale(scale);
    }
    table_->applyScale(scale);
}

void AlarmsPage::retranslate() {
    head_->setTexts(qtTrId("ALARM_PAGE_TITLE"), qtTrId("ALARM_PAGE_RULE"));
    clear_->setText(qtTrId("ALARM_CLEAR_LOG"));
    clear_->setToolTip(qtTrId("ALARM_CLEAR_LOG_HINT"));
    empty_->setTexts(qtTrId("ALARM_LOG_EMPTY"), qtTrId("ALARM_LOG_EMPTY_HINT"));
    table_->setAccessibleName(qtTrId("ALARM_LOG"));
    for (const AlarmGroup group : kGroups) {
        warnings_.at(static_cast<std::size_t>(group))->setTexts(nameOf(group), effectOf(group));
    }
    model_->retranslate();
}

void AlarmsPage::showLog(const std::vector<psu::AlarmEntry> &entries) {
    table_->keepingPlace([&] { model_->setEntries(entries, QDateTime::currentDateTime()); });
    refresh();
}

void AlarmsPage::refresh() {
    const int count = model_->rowCount();
    logTitle_->setText(count == 0 ? qtTrId("ALARM_LOG")
                                  : qtTrId("ALARM_LOG_COUNT").arg(QLocale().toString(count)));
    body_->setCurrentWidget(count == 0 ? static_cast<QWidget *>(empty_) : table_);
    clear_->setEnabled(model_->anyEnded());
    if (isVisible() && model_->anyHolds()) {
        clock_.start();
    } else {
        clock_.stop();
    }
}

void AlarmsPage::setWarning(AlarmGroup group, bool on) {
    warnings_.at(static_cast<std::size_t>(group))->setOn(on);
}

void AlarmsPage::tick() { model_->setNow(QDateTime::currentDateTime()); }

void AlarmsPage::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    tick();
    refresh();
}

void AlarmsPage::hideEvent(QHideEvent *event) {
    QWidget::hideEvent(event);
    clock_.stop();
}

void AlarmsPage::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    applyScale();
}

void AlarmsPage::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        refresh();
        applyScale(); // the columns fit their captions
    }
}

} // namespace zpsg::ui
