#include "ui/SettingRow.h"

#include "ui/Style.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVariant>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;
using Sign = SettingsStatusLine::Sign;

/// Above and below the words, in a window of the usual size.
constexpr qreal kPadding = 10.0;
constexpr qreal kMarkWidth = 3.0;

} // namespace

SettingRow::SettingRow(const SettingTexts &texts, QWidget *parent)
    : QWidget(parent)
    , texts_(texts)
    , name_(new QLabel(this))
    , hint_(new QLabel(this))
    , warning_(new SettingsStatusLine(this))
    , note_(new SettingsStatusLine(this))
    , reason_(new SettingsStatusLine(this))
    , words_(new QVBoxLayout)
    , row_(new QHBoxLayout(this)) {
    hint_->setProperty("tone", QStringLiteral("secondary"));
    words_->addStretch(1);
    for (QLabel *label : {name_, hint_}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setProperty("figure", true); // pale while it is disabled
        words_->addWidget(label);
    }
    for (SettingsStatusLine *line : {warning_, note_, reason_}) {
        words_->addWidget(line);
    }
    words_->addStretch(1);
    row_->addLayout(words_, 1);
}

void SettingRow::setControl(QWidget *control, qreal overhang) {
    control_ = control;
    overhang_ = overhang;
    row_->addWidget(control, 0, Qt::AlignRight | Qt::AlignVCenter);
}

void SettingRow::addLine(QWidget *line) {
    const int place = words_->indexOf(warning_);
    lineGap_ = new QSpacerItem(0, 0);
    words_->insertItem(place, lineGap_);
    words_->insertWidget(place + 1, line);
}

void SettingRow::showNote(const QString &text, Sign sign) {
    note_->showText(text, sign);
    refresh();
}

void SettingRow::setBlocked(const char *reasonKey, const char *what, bool tell) {
    blockedBy_ = reasonKey;
    blockedWhat_ = what;
    tellsReason_ = tell;
    const bool free = reasonKey == nullptr;
    name_->setEnabled(free);
    hint_->setEnabled(free);
    if (control_ != nullptr) {
        control_->setEnabled(free);
    }
    refresh();
}

void SettingRow::setMarked(bool marked) {
    if (marked != marked_) {
        marked_ = marked;
        update();
    }
}

void SettingRow::refresh() {
    QString reason;
    if (blockedBy_ != nullptr) {
        reason = qtTrId(blockedBy_);
        if (blockedWhat_ != nullptr) {
            reason = reason.arg(qtTrId(blockedWhat_));
        }
    }
    reason_->showText(tellsReason_ ? reason : QString(), Sign::Info);
    QStringList lines{hint_->text(), warning_->label()->text(), note_->label()->text(), reason};
    lines.removeAll(QString());
    describe(name(), lines.join(QLatin1Char(' ')));
}

void SettingRow::describe(const QString &name, const QString &description) {
    if (control_ != nullptr) {
        control_->setAccessibleName(name);
        control_->setAccessibleDescription(description);
    }
}

void SettingRow::retranslate() {
    name_->setText(name());
    QString hint = texts_.hint == nullptr ? QString() : qtTrId(texts_.hint);
    hint_->setText(texts_.hintArgument == nullptr ? hint : hint.arg(texts_.hintArgument()));
    hint_->setVisible(texts_.hint != nullptr);
    warning_->showText(texts_.warning == nullptr ? QString() : qtTrId(texts_.warning), Sign::Caution);
    refresh();
}

void SettingRow::applyScale(qreal scale) {
    const int side = qRound(style::space::kM * scale);
    const int padding = qRound(kPadding * scale);
    row_->setContentsMargins(side, padding, qRound((style::space::kM - overhang_) * scale), padding);
    row_->setSpacing(qRound(style::space::kXl * scale));
    words_->setSpacing(qRound(3.0 * scale));
    if (lineGap_ != nullptr) {
        lineGap_->changeSize(0, qRound(2.0 * scale));
    }
    name_->setFont(style::font(style::type::kBody * scale, QFont::DemiBold));
    hint_->setFont(style::font(style::type::kLabel * scale));
    for (SettingsStatusLine *line : {warning_, note_, reason_}) {
        line->applyScale(scale);
    }
}

void SettingRow::paintEvent(QPaintEvent * /*event*/) {
    const qreal scale = style::windowScale(*this);
    QPainter painter(this);
    if (divided_) {
        const qreal inset = style::space::kM * scale;
        painter.fillRect(QRectF(inset, 0.0, width() - 2.0 * inset, 1.0), style::tone(colour::kCardEdge));
    }
    if (marked_) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(style::tone(colour::kAccent));
        const qreal inset = kPadding * scale;
        painter.drawRoundedRect(QRectF(3.0 * scale, inset, kMarkWidth * scale, height() - 2.0 * inset),
                                kMarkWidth * scale / 2.0, kMarkWidth * scale / 2.0);
    }
}

} // namespace zpsg::ui
