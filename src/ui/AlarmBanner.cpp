#include "ui/AlarmBanner.h"

#include "ui/AlarmText.h"
#include "ui/Icons.h"
#include "ui/Style.h"

#include <QAccessible>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

constexpr int kSignSide = 26;
/// A window at least this high has room for the advice above the figures, in pixels of a usual window.
constexpr qreal kRoomyHeight = 680.0;

QLabel *addLabel(QWidget *parent, bool secondary) {
    auto *label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    if (secondary) {
        label->setProperty("tone", QStringLiteral("secondary"));
    }
    return label;
}

} // namespace

AlarmBanner::AlarmBanner(QWidget *parent) : QWidget(parent) {
    for (Line &line : lines_) {
        line = {addLabel(this, false), addLabel(this, false), addLabel(this, true)};
    }
    more_ = addLabel(this, true);
    advice_ = addLabel(this, true);
    advice_->setWordWrap(true);
    log_ = new QPushButton(this);
    log_->setObjectName(QStringLiteral("btnShowAlarms"));
    log_->setCursor(Qt::PointingHandCursor);
    log_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(log_, &QPushButton::clicked, this, &AlarmBanner::logRequested);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    layOut();
    hide();
}

void AlarmBanner::layOut() {
    grid_ = new QGridLayout;
    for (std::size_t i = 0; i < kLines; ++i) {
        const Line &line = lines_.at(i);
        int column = 0;
        for (QLabel *label : {line.title, line.value, line.since}) {
            grid_->addWidget(label, static_cast<int>(i), column++);
        }
    }
    grid_->addWidget(more_, 0, 3);
    grid_->setColumnStretch(4, 1);

    auto *words = new QVBoxLayout;
    words->addLayout(grid_);
    words->addWidget(advice_);

    auto *row = new QHBoxLayout(this);
    row->addLayout(words, 1);
    row->addWidget(log_, 0, Qt::AlignVCenter);
}

void AlarmBanner::showAlarms(const std::vector<psu::AlarmEntry> &holding) {
    const bool counts = holding.size() != holding_.size();
    holding_ = holding;
    refresh();
    if (counts) {
        emit countChanged(static_cast<int>(holding_.size()));
    }
}

QString AlarmBanner::spokenText() const {
    const QDate today = QDate::currentDate();
    QStringList parts;
    for (const psu::AlarmEntry &entry : holding_) {
        parts << QStringLiteral("%1, %2, %3. %4")
                     .arg(alarmTitle(entry.kind), alarmValue(entry.kind, entry.value),
                          alarmSince(entry.begin, today), alarmAdvice(entry.kind));
    }
    return parts.isEmpty()
               ? QString()
               : qtTrId("ALARM_BANNER_NAME") + QStringLiteral(": ") + parts.join(QLatin1Char(' '));
}

void AlarmBanner::refresh() {
    const QString spoken = spokenText();
    if (spoken == shown_) {
        return;
    }
    shown_ = spoken;
    log_->setText(qtTrId("ALARM_SHOW_LOG"));
    setAccessibleName(spoken);
    const QDate today = QDate::currentDate();
    const std::size_t shown = holding_.size() > kLines ? 1 : holding_.size();
    for (std::size_t i = 0; i < kLines; ++i) {
        const Line &line = lines_.at(i);
        if (i < shown) {
            const psu::AlarmEntry &entry = holding_[i];
            line.title->setText(alarmTitle(entry.kind));
            line.value->setText(alarmValue(entry.kind, entry.value));
            line.since->setText(alarmSince(entry.begin, today));
        }
        for (QLabel *label : {line.title, line.value, line.since}) {
            label->setVisible(i < shown);
        }
    }
    more_->setVisible(shown < holding_.size());
    more_->setText(qtTrId("ALARM_MORE").arg(holding_.size() - shown));
    advice_->setText(holding_.empty() ? QString() : alarmAdvice(holding_.front().kind));
    applyScale();
    setVisible(!holding_.empty());
    update();
    if (!holding_.empty() && QAccessible::isActive()) {
        QAccessibleEvent event(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

void AlarmBanner::fitToWindow() {
    const qreal scale = style::windowScale(*this);
    const bool roomy = window()->height() >= kRoomyHeight * scale;
    if (scale != scale_ || roomy != roomy_) {
        scale_ = scale;
        roomy_ = roomy;
        applyScale();
        update();
    }
}

void AlarmBanner::applyScale() {
    const bool single = holding_.size() == 1;
    for (const Line &line : lines_) {
        line.title->setFont(
            style::font((single ? style::type::kTitle : style::type::kBody) * scale_, QFont::DemiBold));
        line.value->setFont(style::font(style::type::kBody * scale_, QFont::DemiBold));
        line.since->setFont(style::font(style::type::kBody * scale_));
    }
    more_->setFont(style::font(style::type::kBody * scale_));
    advice_->setFont(style::font(style::type::kBody * scale_));
    advice_->setVisible(single && roomy_);
    log_->setFont(style::font(style::type::kBody * scale_, QFont::Medium));

    const int edge = qRound((roomy_ ? style::space::kM : style::space::kS) * scale_);
    const int side = qRound(style::space::kL * scale_);
    const int signRoom = qRound((kSignSide + style::space::kM) * scale_);
    layout()->setContentsMargins(side + signRoom, edge, side, edge);
    layout()->setSpacing(qRound(style::space::kL * scale_));
    layout()->itemAt(0)->layout()->setSpacing(qRound(style::space::kXs * scale_));
    grid_->setHorizontalSpacing(qRound(style::space::kM * scale_));
    grid_->setVerticalSpacing(qRound((roomy_ ? style::space::kXs : 1) * scale_));
}

void AlarmBanner::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        refresh();
    }
}

void AlarmBanner::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    const qreal radius = style::kCardRadius * scale_;
    const QRectF card = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(style::tone(colour::kDanger, 0.45), 1.0));
    painter.setBrush(style::tone(colour::kDanger, 0.10));
    painter.drawRoundedRect(card, radius, radius);

    const qreal inset = std::min<qreal>(style::space::kM * scale_, height() / 4.0);
    const qreal bar = 3.0 * scale_;
    painter.setPen(Qt::NoPen);
    painter.setBrush(style::tone(colour::kDanger));
    painter.drawRoundedRect(QRectF(0.0, inset, bar, height() - 2.0 * inset), bar / 2.0, bar / 2.0);

    const qreal sign = kSignSide * scale_;
    paintIcon(painter, Icon::Warning, QRectF(style::space::kL * scale_, (height() - sign) / 2.0, sign, sign),
              style::tone(colour::kDanger));
}

} // namespace zpsg::ui
