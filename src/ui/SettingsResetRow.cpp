#include "ui/SettingsResetRow.h"

#include "ui/SettingRowControls.h"
#include "ui/Style.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVariant>

namespace zpsg::ui {

SettingsResetRow::SettingsResetRow(QWidget *parent)
    : SettingRow({QT_TRID_NOOP("SETTING_STR_RESET"), QT_TRID_NOOP("SETTING_STR_RESET_HINT")}, parent)
    , box_(new QWidget(this))
    , reset_(new QPushButton(box_))
    , question_(new QLabel(box_))
    , yes_(new QPushButton(box_))
    , no_(new QPushButton(box_)) {
    auto *layout = new QHBoxLayout(box_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(question_);
    for (QPushButton *button : {reset_, yes_, no_}) {
        button->setProperty("slim", true);
        button->setCursor(Qt::PointingHandCursor);
        layout->addWidget(button);
    }
    reset_->setObjectName(QStringLiteral("btnReset"));
    yes_->setObjectName(QStringLiteral("btnResetYes"));
    no_->setObjectName(QStringLiteral("btnResetNo"));
    for (QWidget *part :
         {static_cast<QWidget *>(question_), static_cast<QWidget *>(yes_), static_cast<QWidget *>(no_)}) {
        part->hide();
    }
    setControl(box_);
    connect(reset_, &QPushButton::clicked, this, [this] { ask(true); });
    connect(no_, &QPushButton::clicked, this, [this] { ask(false); });
    connect(yes_, &QPushButton::clicked, this, [this] {
        ask(false);
        emit confirmed();
    });
}

void SettingsResetRow::ask(bool asking) {
    const bool focused = reset_->hasFocus() || yes_->hasFocus() || no_->hasFocus();
    const auto showAnswers = [this](bool shown) {
        question_->setVisible(shown);
        yes_->setVisible(shown);
        no_->setVisible(shown);
    };
    // What comes takes the focus before what goes hands it to a stranger.
    if (asking) {
        showAnswers(true);
    } else {
        reset_->show();
    }
    if (focused && isVisible()) {
        (asking ? no_ : reset_)->setFocus(Qt::OtherFocusReason);
    }
    if (asking) {
        reset_->hide();
    } else {
        showAnswers(false);
    }
}

void SettingsResetRow::retranslate() {
    reset_->setText(qtTrId("SETTING_STR_RESET_BUTTON"));
    question_->setText(qtTrId("SETTING_STR_RESET_ASK"));
    yes_->setText(qtTrId("SETTING_STR_RESET_YES"));
    no_->setText(qtTrId("SETTING_STR_RESET_NO"));
    SettingRow::retranslate();
}

void SettingsResetRow::describe(const QString &name, const QString &description) {
    reset_->setAccessibleName(name);
    reset_->setAccessibleDescription(description);
    for (QPushButton *answer : {yes_, no_}) {
        answer->setAccessibleName(QStringLiteral("%1: %2").arg(name, answer->text()));
        answer->setAccessibleDescription(description);
    }
}

void SettingsResetRow::applyScale(qreal scale) {
    SettingRow::applyScale(scale);
    box_->layout()->setSpacing(qRound(style::space::kS * scale));
    question_->setFont(style::font(style::type::kBody * scale, QFont::Medium));
    for (QPushButton *button : {reset_, yes_, no_}) {
        applyButtonScale(*button, scale);
    }
}

void SettingsResetRow::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape && !yes_->isHidden()) {
        ask(false);
        return;
    }
    SettingRow::keyPressEvent(event);
}

// A question that nobody answered is not to wait there for a stray click.
void SettingsResetRow::hideEvent(QHideEvent *event) {
    SettingRow::hideEvent(event);
    ask(false);
}

} // namespace zpsg::ui
