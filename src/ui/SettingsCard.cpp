#include "ui/SettingsCard.h"

#include "ui/SettingsLink.h"

#include <QVBoxLayout>

namespace zpsg::ui {

using Sign = SettingsStatusLine::Sign;

SettingsCard::SettingsCard(const SettingTexts &texts, QWidget *parent)
    : Card(parent)
    , texts_(texts)
    , title_(new QLabel(this))
    , hint_(new QLabel(this))
    , head_(new QVBoxLayout)
    , column_(new QVBoxLayout(this)) {
    title_->setProperty("tone", QStringLiteral("secondary"));
    hint_->setProperty("tone", QStringLiteral("tertiary"));
    for (QLabel *label : {title_, hint_}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        head_->addWidget(label);
    }
    title_->setVisible(texts.name != nullptr);
    hint_->setVisible(texts.hint != nullptr);
    column_->setSpacing(0);
    column_->addLayout(head_);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void SettingsCard::addRow(SettingRow *row) {
    row->setDivided(divided_);
    divided_ = true;
    rows_.push_back(row);
    column_->addWidget(row);
}

void SettingsCard::addCaption(const char *key) {
    auto *label = new QLabel(this);
    label->setProperty("tone", QStringLiteral("tertiary"));
    auto *place = new QVBoxLayout;
    place->addWidget(label);
    column_->addLayout(place);
    captions_.push_back({label, place, key});
    divided_ = false;
}

SettingsStatusLine *SettingsCard::addStatus() {
    status_ = new SettingsStatusLine(this);
    status_->setSelectable();
    head_->addWidget(status_);
    return status_;
}

SettingsStatusLine *SettingsCard::addFoot() {
    foot_ = new SettingsStatusLine(this);
    foot_->setSelectable();
    column_->addWidget(foot_);
    return foot_;
}

void SettingsCard::retranslate() {
    title_->setText(texts_.name == nullptr ? QString() : qtTrId(texts_.name));
    hint_->setText(texts_.hint == nullptr ? QString() : qtTrId(texts_.hint));
    for (const Caption &caption : captions_) {
        caption.label->setText(qtTrId(caption.key));
    }
    for (SettingRow *row : rows_) {
        row->retranslate();
    }
}

void SettingsCard::applyScale(qreal scale) {
    const int margin = qRound(style::space::kM * scale);
    const int narrow = qRound(2.0 * scale);
    const bool headed = texts_.name != nullptr || status_ != nullptr;
    head_->setContentsMargins(margin, headed ? margin - narrow : 0, margin, headed ? narrow : 0);
    head_->setSpacing(qRound(style::space::kXs * scale));
    column_->setContentsMargins(0, 0, 0, headed ? narrow : 0);
    title_->setFont(style::font(style::type::kBody * scale, QFont::Medium));
    hint_->setFont(style::font(style::type::kLabel * scale));
    if (status_ != nullptr) {
        status_->applyScale(scale);
    }
    if (foot_ != nullptr) {
        foot_->applyScale(scale);
        foot_->setContentsMargins(margin, qRound(2.0 * scale), margin, margin - narrow);
    }
    for (const Caption &caption : captions_) {
        caption.label->setFont(style::font(style::type::kSmall * scale, QFont::DemiBold));
        caption.place->setContentsMargins(margin, margin, margin, 0);
    }
    for (SettingRow *row : rows_) {
        row->applyScale(scale);
    }
}

void showStatus(SettingsLink &link, SettingStatus status, SettingsStatusLine *line) {
    QObject::connect(&link, &SettingsLink::statusShown, line,
                     [line, status](SettingStatus which, const QString &text, bool problem) {
                         if (which == status) {
                             line->showText(text, problem ? Sign::Problem : Sign::Info);
                         }
                     });
}

} // namespace zpsg::ui
