#include "ui/FanCurveCard.h"

#include "fan/FanGovernor.h"
#include "psu/AlarmEntry.h"
#include "ui/FanCurveEditor.h"
#include "ui/FanNumberEntry.h"
#include "ui/Icons.h"
#include "ui/SegmentedControl.h"
#include "ui/Style.h"
#include "ui/Temperature.h"
#include "ui/ToggleSwitch.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>

#include <utility>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// All in a window of the usual size.
constexpr qreal kToolSide = 26.0;
constexpr qreal kSignSide = 40.0;

/// A button with a plus or a minus.
class PlusMinusButton final : public QPushButton {
public:
    PlusMinusButton(bool plus, QWidget *parent) : QPushButton(parent), plus_(plus) {
        setProperty("slim", true);
        setCursor(Qt::PointingHandCursor);
    }

protected:
    void paintEvent(QPaintEvent *event) override {
        QPushButton::paintEvent(event);
        const qreal half = 4.5 * style::windowScale(*this);
        const QPointF middle = QRectF(rect()).center();
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(style::tone(isEnabled() ? colour::kText : colour::kStale), 0.36 * half,
                            Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(middle - QPointF(half, 0.0), middle + QPointF(half, 0.0));
        if (plus_) {
            painter.drawLine(middle - QPointF(0.0, half), middle + QPointF(0.0, half));
        }
    }

private:
    bool plus_;
};

/// A fan, above the sentence that stands in the card while there is no curve.
class FanSign final : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        QPainter painter(this);
        paintIcon(painter, Icon::Fan, rect(), style::tone(colour::kTextTertiary));
    }
};

} // namespace

FanCurveCard::FanCurveCard(QWidget *parent)
    : Card(parent)
    , caption_(new QLabel(this))
    , stateText_(new QLabel(this))
    , switch_(new ToggleSwitch(this))
    , body_(new QWidget(this))
    , source_(new SegmentedControl(body_))
    , add_(new PlusMinusButton(true, body_))
    , remove_(new PlusMinusButton(false, body_))
    , editor_(new FanCurveEditor(body_))
    , hysteresisCaption_(new QLabel(body_))
    , hysteresis_(new FanNumberEntry(body_))
    , secondsCaption_(new QLabel(body_))
    , seconds_(new FanNumberEntry(body_))
    , note_(new QLabel(body_))
    , instead_(new QWidget(this))
    , sign_(new FanSign(instead_))
    , sentence_(new QLabel(instead_)) {
    switch_->setObjectName(QStringLiteral("switchFanCurve"));
    source_->setObjectName(QStringLiteral("fanCurveSource"));
    add_->setObjectName(QStringLiteral("btnAddPoint"));
    remove_->setObjectName(QStringLiteral("btnRemovePoint"));
    hysteresis_->setObjectName(QStringLiteral("fanCurveHysteresis"));
    seconds_->setObjectName(QStringLiteral("fanCurveSeconds"));
    hysteresis_->setRange(0, fan::kMostHysteresis);
    seconds_->setRange(fan::kLeastMinSeconds, fan::kMostMinSeconds);
    for (QLabel *label : {caption_, stateText_, hysteresisCaption_, secondsCaption_, sentence_}) {
        label->setProperty("tone", QStringLiteral("secondary"));
    }
    note_->setProperty("tone", QStringLiteral("tertiary"));
    for (QLabel *label : {hysteresisCaption_, secondsCaption_, note_, sentence_}) {
        label->setWordWrap(true);
    }
    sentence_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    layOut();
    retranslate();
    setUsable(false, true);

    connect(switch_, &QAbstractButton::clicked, this, [this](bool on) {
        editor_->setDriving(on);
        emit toggled(on);
    });
    connect(source_, &SegmentedControl::currentChanged, this, [this](int index) {
        editor_->chooseSource(static_cast<fan::CurveSource>(index));
        showUnits();
    });
    connect(editor_, &FanCurveEditor::edited, this, &FanCurveCard::edited);
    const auto enableTools = [this] {
        add_->setEnabled(editor_->canAdd());
        remove_->setEnabled(editor_->canRemove());
    };
    connect(editor_, &FanCurveEditor::selectionChanged, this, enableTools);
    enableTools();
    connect(add_, &QPushButton::clicked, editor_, &FanCurveEditor::addOne);
    connect(remove_, &QPushButton::clicked, editor_, &FanCurveEditor::removeSelected);
    for (FanNumberEntry *entry : {hysteresis_, seconds_}) {
        connect(entry, &FanNumberEntry::valueChosen, this,
                [this] { emit tuningEdited(hysteresis_->value(), seconds_->value()); });
    }
}

void FanCurveCard::layOut() {
    auto *head = new QHBoxLayout;
    head->addWidget(caption_);
    head->addWidget(stateText_, 1);
    head->addWidget(switch_);
    tools_ = new QHBoxLayout;
    tools_->addWidget(source_);
    tools_->addStretch(1);
    tools_->addWidget(add_);
    tools_->addWidget(remove_);
    tuning_ = new QHBoxLayout;
    tuning_->addWidget(hysteresisCaption_, 1);
    tuning_->addWidget(hysteresis_);
    tuning_->addSpacing(style::space::kS);
    tuning_->addWidget(secondsCaption_, 1);
    tuning_->addWidget(seconds_);
    auto *column = new QVBoxLayout(body_);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(tools_);
    column->addWidget(editor_, 1);
    column->addLayout(tuning_);
    column->addWidget(note_);
    auto *apology = new QVBoxLayout(instead_);
    apology->addStretch(2);
    apology->addWidget(sign_, 0, Qt::AlignHCenter);
    apology->addWidget(sentence_);
    apology->addStretch(3);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(head);
    layout->addWidget(body_, 1);
    layout->addWidget(instead_, 1);
}

void FanCurveCard::setUsable(bool customSpeed, bool reachable) {
    customSpeed_ = customSpeed;
    reachable_ = reachable;
    body_->setVisible(customSpeed);
    switch_->setVisible(customSpeed);
    stateText_->setVisible(customSpeed);
    instead_->setVisible(!customSpeed);
    showText();
}

void FanCurveCard::showCurve(bool on, const fan::FanCurve &curve, int hysteresis, int minSeconds) {
    switch_->setChecked(on);
    editor_->setCurve(curve);
    editor_->setDriving(on);
    {
        const QSignalBlocker quiet(source_);
        source_->setCurrent(static_cast<int>(curve.source));
    }
    hysteresis_->showValue(hysteresis);
    seconds_->showValue(minSeconds);
    showUnits();
}

void FanCurveCard::showState(CurveState state, int percent) {
    state_ = state;
    percent_ = percent;
    showText();
}

void FanCurveCard::showText() {
    const bool paused = state_ == CurveState::TooHot || state_ == CurveState::NoReading;
    const auto text = [this] {
        switch (state_) {
        case CurveState::Off:
            return qtTrId("FAN_CURVE_OFF");
        case CurveState::Driving:
            return qtTrId("FAN_CURVE_DRIVING").arg(percent_);
        case CurveState::TooHot:
            return qtTrId("FAN_CURVE_TOO_HOT");
        case CurveState::NoReading:
            return qtTrId("FAN_CURVE_NO_READING");
        case CurveState::NotConnected:
            break;
        }
        return qtTrId("FAN_CURVE_NOT_CONNECTED");
    };
    stateText_->setText(text());
    const QString tone = paused ? QStringLiteral("caution") : QStringLiteral("secondary");
    if (stateText_->property("tone").toString() != tone) {
        stateText_->setProperty("tone", tone);
        stateText_->style()->unpolish(stateText_); // a style sheet looks at a property only once
        stateText_->style()->polish(stateText_);
    }
    sentence_->setText(reachable_ ? qtTrId("FAN_CURVE_UNSUPPORTED") : qtTrId("FAN_CURVE_NO_SUPPLY"));
}

void FanCurveCard::showUnits() {
    const bool byTemperature = editor_->curve().source == fan::CurveSource::Temperature;
    hysteresis_->setUnit(byTemperature ? degreesApart(1.0) : 1.0,
                         QChar(QChar::Nbsp) + (byTemperature ? degreeUnit() : QStringLiteral("%")));
    seconds_->setSuffix(QStringLiteral("\u00A0s"));
}

void FanCurveCard::retranslate() {
    caption_->setText(qtTrId("FAN_CURVE"));
    switch_->setAccessibleName(qtTrId("FAN_CURVE"));
    switch_->setAccessibleDescription(qtTrId("FAN_CURVE_NOTE").arg(degreesText(psu::kHotCelsius)));
    source_->setAccessibleName(qtTrId("FAN_CURVE_SOURCE"));
    source_->setToolTip(qtTrId("FAN_CURVE_SOURCE"));
    source_->setTexts({qtTrId("MAIN_STR_TEMPERATURE"), qtTrId("FAN_CURVE_LOAD")});
    for (const auto &[button, text] :
         {std::pair(add_, qtTrId("FAN_CURVE_ADD")), std::pair(remove_, qtTrId("FAN_CURVE_REMOVE"))}) {
        button->setToolTip(text);
        button->setAccessibleName(text);
    }
    editor_->retranslate();
    hysteresisCaption_->setText(qtTrId("FAN_CURVE_HYSTERESIS"));
    hysteresis_->setAccessibleName(hysteresisCaption_->text());
    secondsCaption_->setText(qtTrId("FAN_CURVE_SECONDS"));
    seconds_->setAccessibleName(secondsCaption_->text());
    note_->setText(qtTrId("FAN_CURVE_NOTE").arg(degreesText(psu::kHotCelsius)));
    showText();
    showUnits();
}

void FanCurveCard::applyScale(qreal scale) {
    const int margin = qRound(style::space::kM * scale);
    const int gap = qRound(style::space::kS * scale);
    layout()->setContentsMargins(margin, qRound(7.0 * scale), margin, margin);
    layout()->setSpacing(qRound(style::space::kXs * scale));
    body_->layout()->setSpacing(gap);
    layout()->itemAt(0)->layout()->setSpacing(margin);
    tools_->setSpacing(gap);
    tuning_->setSpacing(gap);
    caption_->setFont(style::font(style::type::kBody * scale, QFont::Medium));
    stateText_->setFont(style::font(style::type::kLabel * scale, QFont::DemiBold));
    stateText_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (QLabel *label : {hysteresisCaption_, secondsCaption_}) {
        label->setFont(style::font(style::type::kLabel * scale));
    }
    note_->setFont(style::font(style::type::kSmall * scale));
    sentence_->setFont(style::font(style::type::kBody * scale));
    instead_->layout()->setSpacing(margin);
    sign_->setFixedSize(qRound(kSignSide * scale), qRound(kSignSide * scale));
    // As high with the switch as without it.
    caption_->setFixedHeight(switch_->sizeHint().height());
    hysteresis_->applyScale(scale);
    seconds_->applyScale(scale);
    source_->setFixedSize(source_->sizeHint().width(), qRound(kToolSide * scale));
    const int side = qRound(kToolSide * scale);
    for (QPushButton *button : {add_, remove_}) {
        button->setFixedSize(side + gap / 2, side);
    }
    switch_->updateGeometry();
    editor_->updateGeometry();
}

} // namespace zpsg::ui
