#include "ui/CustomFanSpeedWidget.h"

#include "fan/FanMode.h"
#include "ui/Controls.h"
#include "ui/FanOverlay.h"
#include "ui/LevelSlider.h"
#include "ui/Style.h"
#include "ui/TitleButton.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// All in a window of the usual size.
constexpr qreal kCardWidth = 348.0;
constexpr qreal kFigure = 54.0;
constexpr qreal kSpeedFigure = 22.0;

QLabel *quietLabel(const char *tone, QWidget *parent) {
    auto *label = new QLabel(parent);
    label->setProperty("tone", QString::fromLatin1(tone));
    return label;
}

QString percentText(int percent) { return QString::number(percent) + QStringLiteral("\u00A0%"); }

} // namespace

CustomFanSpeedWidget::CustomFanSpeedWidget(float fullRpm, QWidget *parent)
    : QWidget(parent)
    , fullRpm_(fullRpm)
    , card_(new QWidget(this))
    , title_(new QLabel(card_))
    , close_(new TitleButton(Icon::Close, style::tone(colour::kText, 0.12), card_))
    , percentLabel_(new QLabel(card_))
    , percentSign_(quietLabel("secondary", card_))
    , speedLabel_(new QLabel(card_))
    , speedUnit_(quietLabel("secondary", card_))
    , slider_(new LevelSlider(card_))
    , least_(quietLabel("tertiary", card_))
    , most_(quietLabel("tertiary", card_))
    , edit_(new QLineEdit(card_))
    , editUnit_(quietLabel("secondary", card_))
    , confirm_(new QPushButton(card_))
    , overlay_(new FanOverlay(this, card_)) {
    close_->setObjectName(QStringLiteral("Close_Window"));
    percentLabel_->setObjectName(QStringLiteral("lblPercent"));
    speedLabel_->setObjectName(QStringLiteral("lblRpm"));
    edit_->setObjectName(QStringLiteral("editPercent"));
    confirm_->setObjectName(QStringLiteral("btnConfirm"));
    edit_->setProperty("entry", true);
    edit_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    edit_->setMaxLength(6);
    confirm_->setProperty("primary", true);
    confirm_->setProperty("slim", true);
    confirm_->setCursor(Qt::PointingHandCursor);
    slider_->setRange(fan::kLeastPercent, fan::kMostPercent);
    slider_->setPageStep(5);
    percentSign_->setText(QStringLiteral("%"));
    editUnit_->setText(QStringLiteral("%"));
    least_->setText(percentText(fan::kLeastPercent));
    most_->setText(percentText(fan::kMostPercent));
    layOut();
    retranslate();
    connect(slider_, &QSlider::valueChanged, this, &CustomFanSpeedWidget::brightChangeSlot);
    connect(edit_, &QLineEdit::returnPressed, this, &CustomFanSpeedWidget::returnTyped);
    connect(edit_, &QLineEdit::editingFinished, this, &CustomFanSpeedWidget::takeTyped);
    connect(close_, &QAbstractButton::clicked, this, &CustomFanSpeedWidget::closeSelf);
    connect(confirm_, &QPushButton::clicked, this, &CustomFanSpeedWidget::checkValue);
    connect(overlay_, &FanOverlay::dismissed, this, &CustomFanSpeedWidget::closeSelf);
    connect(overlay_, &FanOverlay::resized, this, &CustomFanSpeedWidget::place);
    setPercent(fan::kFirstPercent);
}

void CustomFanSpeedWidget::layOut() {
    head_ = new QHBoxLayout;
    head_->addWidget(title_, 1);
    head_->addWidget(close_);
    auto *figures = new QHBoxLayout;
    figures->setSpacing(0);
    figures->addWidget(percentLabel_, 0, Qt::AlignBottom);
    figures->addWidget(percentSign_, 0, Qt::AlignBottom);
    figures->addStretch(1);
    figures->addWidget(speedLabel_, 0, Qt::AlignBottom);
    figures->addWidget(speedUnit_, 0, Qt::AlignBottom);
    auto *ends = new QHBoxLayout;
    ends->addWidget(least_);
    ends->addStretch(1);
    ends->addWidget(most_);
    auto *travel = new QVBoxLayout;
    travel->setSpacing(2);
    travel->addWidget(slider_);
    travel->addLayout(ends);
    auto *foot = new QHBoxLayout;
    foot->addWidget(edit_);
    foot->addWidget(editUnit_);
    foot->addStretch(1);
    foot->addWidget(confirm_);
    auto *layout = new QVBoxLayout(card_);
    layout->addLayout(head_);
    layout->addLayout(figures);
    layout->addLayout(travel);
    layout->addLayout(foot);
}

void CustomFanSpeedWidget::retranslate() {
    title_->setText(qtTrId("FAN_TARGET_SPEED"));
    close_->setToolTip(qtTrId("FAN_CLOSE"));
    close_->setAccessibleName(qtTrId("FAN_CLOSE"));
    slider_->setAccessibleName(qtTrId("FAN_TARGET_SPEED"));
    edit_->setAccessibleName(qtTrId("FAN_TARGET_PERCENT"));
    edit_->setToolTip(qtTrId("FAN_TARGET_PERCENT"));
    speedUnit_->setText(qtTrId("FAN_TARGET_RPM"));
    confirm_->setText(qtTrId("FAN_TARGET_SET"));
}

void CustomFanSpeedWidget::applyScale(qreal scale) {
    const int margin = qRound(style::space::kL * scale);
    card_->layout()->setContentsMargins(margin, qRound(style::space::kM * scale), margin, margin);
    card_->layout()->setSpacing(qRound(style::space::kM * scale));
    // The sign in the button is in line with what is below it, not the button's own edge.
    head_->setContentsMargins(0, 0, -qRound(style::space::kM * scale), 0);
    title_->setFont(style::font(style::type::kTitle * scale, QFont::DemiBold));
    percentLabel_->setFont(style::font(kFigure * scale, QFont::DemiBold));
    percentSign_->setFont(style::font(kSpeedFigure * scale, QFont::Medium));
    speedLabel_->setFont(style::font(kSpeedFigure * scale, QFont::DemiBold));
    speedUnit_->setFont(style::font(style::type::kBody * scale, QFont::Medium));
    const int before = qRound(style::space::kXs * scale);
    percentSign_->setContentsMargins(before, 0, 0, 0);
    speedUnit_->setContentsMargins(before, 0, 0, 0);
    // All on one base line, which a layout does not leave enough room for.
    const int deepest = QFontMetrics(percentLabel_->font()).descent();
    for (QLabel *label : {percentSign_, speedLabel_, speedUnit_}) {
        QMargins margins = label->contentsMargins();
        margins.setBottom(deepest - QFontMetrics(label->font()).descent());
        label->setContentsMargins(margins);
    }
    for (QLabel *end : {least_, most_}) {
        end->setFont(style::font(style::type::kSmall * scale));
    }
    edit_->setFont(style::font(style::type::kBody * scale));
    editUnit_->setFont(edit_->font());
    confirm_->setFont(style::font(style::type::kBody * scale, QFont::DemiBold));
    edit_->setFixedSize(qRound(56.0 * scale), qRound(kControlHeight * scale));
    confirm_->setFixedHeight(qRound(kControlHeight * scale));
    confirm_->setMinimumWidth(qRound(96.0 * scale));
    slider_->updateGeometry();
    close_->updateGeometry();
}

void CustomFanSpeedWidget::place() {
    const qreal scale = style::windowScale(*this);
    applyScale(scale);
    card_->layout()->invalidate();
    card_->layout()->activate(); // asks what is within it anew
    const QSize needed = card_->layout()->sizeHint();
    QRect card(0, 0, std::max(qRound(kCardWidth * scale), needed.width()), needed.height());
    card.moveCenter(rect().center());
    card_->setGeometry(card);
    update();
}

void CustomFanSpeedWidget::open() { overlay_->open(slider_); }

void CustomFanSpeedWidget::setFullRpm(float fullRpm) {
    fullRpm_ = fullRpm;
    brightChangeSlot(percent());
}

void CustomFanSpeedWidget::setPercent(int percent) {
    slider_->showLevel(fan::fittedPercent(percent));
    brightChangeSlot(this->percent());
}

int CustomFanSpeedWidget::percent() const { return slider_->value(); }

void CustomFanSpeedWidget::brightChangeSlot(int percent) {
    const QString text = QString::number(percent);
    edit_->setText(text);
    percentLabel_->setText(text);
    speedLabel_->setText(
        QString::number(static_cast<int>((percent / 100.0) * static_cast<double>(fullRpm_))));
}

void CustomFanSpeedWidget::takeTyped() {
    bool number = false;
    const int value = edit_->text().trimmed().toInt(&number);
    setPercent(number ? value : percent());
}

void CustomFanSpeedWidget::returnTyped() {
    // What was typed is seen in its place before another Enter confirms it.
    returnTaken_ = edit_->text() != QString::number(percent());
    takeTyped();
}

void CustomFanSpeedWidget::closeSelf() { overlay_->close(); }

void CustomFanSpeedWidget::checkValue() {
    emit sentFanSpeed(percent());
    overlay_->close();
}

void CustomFanSpeedWidget::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (returnTaken_) {
            returnTaken_ = false;
            edit_->selectAll();
        } else {
            checkValue();
        }
        return;
    }
    QWidget::keyPressEvent(event);
}

void CustomFanSpeedWidget::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void CustomFanSpeedWidget::paintEvent(QPaintEvent * /*event*/) {
    const qreal radius = style::kCardRadius * style::windowScale(*this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), style::tone(colour::kWindowBottom, 0.6));
    painter.setPen(QPen(style::tone(colour::kStale, 0.7), 1.0));
    painter.setBrush(QColor(38, 42, 46));
    painter.drawRoundedRect(QRectF(card_->geometry()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

} // namespace zpsg::ui
