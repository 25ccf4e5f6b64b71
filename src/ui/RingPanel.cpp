#include "ui/RingPanel.h"

#include "ui/ColourEditor.h"
#include "ui/Controls.h"
#include "ui/RingPicture.h"
#include "ui/Style.h"
#include "ui/ToggleSwitch.h"

#include <QEvent>
#include <QGridLayout>
#include <QPushButton>
#include <QVariant>

namespace zpsg::ui {

// Tab goes through the controls in the order in which they are made.
RingPanel::RingPanel(lighting::RingKind kind, QWidget *parent)
    : QWidget(parent)
    , pictureCard_(new Card(this))
    , controlsCard_(new Card(this))
    , shown_(new QLabel(pictureCard_))
    , source_(new ElidedLabel(pictureCard_))
    , picture_(new RingPicture(kind, pictureCard_))
    , note_(new QLabel(pictureCard_))
    , hint_(new QLabel(pictureCard_))
    , name_(new ElidedLabel(controlsCard_))
    , switchCaption_(new QLabel(controlsCard_))
    , switch_(new ToggleSwitch(controlsCard_))
    , editor_(new ColourEditor(controlsCard_))
    , default_(new QPushButton(controlsCard_))
    , save_(new QPushButton(controlsCard_)) {
    switch_->setObjectName(QStringLiteral("switchLights"));
    default_->setObjectName(QStringLiteral("btnLightingDefault"));
    save_->setObjectName(QStringLiteral("btnLightingSave"));
    note_->setObjectName(QStringLiteral("lblRingNote"));
    source_->setObjectName(QStringLiteral("lblRingSource"));
    save_->setProperty("primary", true);
    for (QLabel *label : {shown_, switchCaption_}) {
        label->setProperty("tone", QStringLiteral("secondary"));
    }
    for (QLabel *label : {static_cast<QLabel *>(source_), hint_}) {
        label->setProperty("tone", QStringLiteral("tertiary"));
    }
    for (QLabel *label : {note_, hint_}) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    }
    note_->hide();
    source_->hide();
    source_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const int rings = static_cast<int>(ringsOf(kind).size());
    for (int i = 0; picture_->ledCount() > 1 && i < (rings > 1 ? rings : 0) + 2; ++i) {
        auto *choice = new QPushButton(pictureCard_);
        choice->setProperty("slim", true);
        choices_.push_back(choice);
    }
    layOut();

    connect(switch_, &QAbstractButton::clicked, this, [this](bool on) {
        picture_->setOff(!on);
        lightsSwitched(on);
    });
    connect(default_, &QPushButton::clicked, this, &RingPanel::defaultRequested);
    connect(save_, &QPushButton::clicked, this, &RingPanel::saveRequested);
    if (!choices_.empty()) {
        connect(choices_.front(), &QPushButton::clicked, picture_, &RingPicture::selectAll);
        connect(choices_.back(), &QPushButton::clicked, picture_, &RingPicture::selectNone);
        for (std::size_t ring = 0; ring + 2 < choices_.size(); ++ring) {
            connect(choices_.at(ring + 1), &QPushButton::clicked, picture_,
                    [this, ring] { picture_->selectRing(ring); });
        }
    }
}

void RingPanel::layOut() {
    auto *shownRow = new QHBoxLayout;
    shownRow->addWidget(shown_);
    shownRow->addWidget(source_, 1);
    auto *left = new QVBoxLayout(pictureCard_);
    left->addLayout(shownRow);
    left->addWidget(picture_, 1);
    left->addWidget(note_);
    if (choices_.empty()) {
        hint_->hide();
    } else {
        choiceRow_ = new QHBoxLayout;
        choiceRow_->addStretch(1);
        for (QPushButton *choice : choices_) {
            choice->setCursor(Qt::PointingHandCursor);
            choiceRow_->addWidget(choice);
        }
        choiceRow_->addStretch(1);
        left->addWidget(hint_);
        left->addLayout(choiceRow_);
    }

    head_ = new QHBoxLayout;
    head_->addWidget(name_, 1);
    head_->addWidget(switchCaption_);
    head_->addWidget(switch_);
    selectors_ = new QGridLayout;
    foot_ = new QHBoxLayout;
    foot_->addStretch(1);
    for (QPushButton *button : {default_, save_}) {
        button->setCursor(Qt::PointingHandCursor);
        foot_->addWidget(button);
    }
    auto *right = new QVBoxLayout(controlsCard_);
    right->addLayout(head_);
    right->addLayout(selectors_);
    right->addWidget(editor_, 1);
    right->addLayout(foot_);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(pictureCard_, 42);
    row->addWidget(controlsCard_, 58);
}

QLabel *RingPanel::makeCaption() {
    auto *caption = new QLabel(controlsCard_);
    caption->setProperty("tone", QStringLiteral("secondary"));
    captions_.push_back(caption);
    return caption;
}

void RingPanel::showLive(std::span<const lighting::Colour> leds) {
    live_ = true;
    picture_->setLeds(leds);
}

void RingPanel::showSet(const std::vector<lighting::Colour> &leds) {
    if (!live_) {
        picture_->setLeds(switch_->isChecked() ? leds : std::vector<lighting::Colour>(leds.size()));
    }
}

void RingPanel::showOn(bool on) {
    switch_->setChecked(on);
    picture_->setOff(!on);
}

void RingPanel::showGauge(RingGauge gauge) {
    gauge_ = gauge;
    showNotes();
}

void RingPanel::setNotice(const QString &notice) {
    notice_ = notice;
    showNotes();
}

void RingPanel::setSource(const QString &source) {
    source_->setText(source);
    source_->setVisible(!source.isEmpty());
}

void RingPanel::setName(const QString &name) { name_->setText(name); }

void RingPanel::showNotes() {
    QStringList notes;
    if (gauge_ != RingGauge::None) {
        notes << (gauge_ == RingGauge::Load ? qtTrId("LIGHTING_NOTE_LOAD")
                                            : qtTrId("LIGHTING_NOTE_TEMPERATURE"));
    }
    if (!notice_.isEmpty()) {
        notes << notice_;
    }
    note_->setText(notes.join(QLatin1Char('\n')));
    note_->setVisible(!notes.isEmpty());
}

QString RingPanel::selectionText() const {
    const std::size_t count = picture_->selectedCount();
    if (count == 0 || count == picture_->ledCount()) {
        return qtTrId("LIGHTING_ALL_LIGHTS");
    }
    return qtTrId("LIGHTING_SOME_LIGHTS").arg(count).arg(picture_->ledCount());
}

void RingPanel::retranslate() {
    shown_->setText(qtTrId("LIGHTING_SHOWN"));
    hint_->setText(qtTrId("LIGHTING_CHOOSE_HINT"));
    switchCaption_->setText(qtTrId("LIGHTING_LIGHTS"));
    switch_->setAccessibleName(switchCaption_->text());
    switch_->setToolTip(qtTrId("LIGHTING_LIGHTS_HINT"));
    default_->setText(qtTrId("LIGHTING_DEFAULT"));
    default_->setToolTip(qtTrId("LIGHTING_DEFAULT_HINT"));
    save_->setText(qtTrId("LIGHTING_SAVE"));
    save_->setToolTip(qtTrId("LIGHTING_SAVE_HINT"));
    for (std::size_t i = 0; i < choices_.size(); ++i) {
        choices_.at(i)->setText(i == 0                     ? qtTrId("LIGHTING_CHOOSE_ALL")
                                : i + 1 == choices_.size() ? qtTrId("LIGHTING_CHOOSE_NONE")
                                : i == 1                   ? qtTrId("LIGHTING_FRONT")
                                                           : qtTrId("LIGHTING_MIDDLE"));
    }
    picture_->retranslate();
    editor_->retranslate();
    showNotes();
}

void RingPanel::applyScale(qreal scale) {
    const int gap = qRound(style::space::kS * scale);
    const int margin = qRound(style::space::kM * scale);
    layout()->setSpacing(margin);
    for (Card *card : {pictureCard_, controlsCard_}) {
        card->layout()->setContentsMargins(margin, margin, margin, margin);
    }
    pictureCard_->layout()->setSpacing(gap);
    controlsCard_->layout()->setSpacing(margin);
    head_->setSpacing(gap);
    if (choiceRow_ != nullptr) {
        choiceRow_->setSpacing(gap);
    }
    foot_->setSpacing(gap);
    selectors_->setHorizontalSpacing(gap);
    selectors_->setVerticalSpacing(qRound(6.0 * scale));
    shown_->setFont(style::font(style::type::kBody * scale, QFont::Medium));
    name_->setFont(style::font(style::type::kTitle * scale, QFont::DemiBold));
    switchCaption_->setFont(style::font(style::type::kBody * scale));
    for (QLabel *label : {static_cast<QLabel *>(source_), note_}) {
        label->setFont(style::font(style::type::kLabel * scale));
    }
    hint_->setFont(style::font(style::type::kSmall * scale));
    for (QLabel *caption : captions_) {
        caption->setFont(style::font(style::type::kLabel * scale));
    }
    for (QPushButton *button : choices_) {
        button->setFont(style::font(style::type::kLabel * scale, QFont::Medium));
        button->setFixedHeight(qRound(24.0 * scale));
    }
    for (QPushButton *button : {default_, save_}) {
        button->setFont(style::font(style::type::kBody * scale, QFont::Medium));
        button->setMinimumWidth(qRound(84.0 * scale));
    }
    switch_->updateGeometry();
    editor_->applyScale(scale);
    scaleSelectors(scale);
}

void RingPanel::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

} // namespace zpsg::ui
