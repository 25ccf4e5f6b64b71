#include "ui/HistoryHead.h"

#include "ui/HistoryControls.h"
#include "ui/HistoryDates.h"
#include "ui/HistoryRanges.h"
#include "ui/SegmentedControl.h"
#include "ui/Style.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QShortcut>
#include <QSignalBlocker>

#include <algorithm>
#include <array>

namespace zpsg::ui {
namespace {

constexpr int kPageTitlePixels = 18;

} // namespace

HistoryHead::HistoryHead(QWidget *parent)
    : QWidget(parent)
    , today_(QDate::currentDate())
    , title_(new QLabel(this))
    , back_(new StepButton(-1, this))
    , forward_(new StepButton(1, this))
    , todayButton_(new QPushButton(this))
    , rangeText_(new QLabel(this))
    , from_(new HistoryDateEdit(this))
    , dash_(new QLabel(QStringLiteral("\u2013"), this))
    , to_(new HistoryDateEdit(this))
    , span_(new SegmentedControl(this))
    , export_(new QPushButton(this)) {
    back_->setObjectName(QStringLiteral("btnHistoryBack"));
    forward_->setObjectName(QStringLiteral("btnHistoryForward"));
    todayButton_->setObjectName(QStringLiteral("btnHistoryToday"));
    span_->setObjectName(QStringLiteral("switchHistorySpan"));
    from_->setObjectName(QStringLiteral("editHistoryFrom"));
    to_->setObjectName(QStringLiteral("editHistoryTo"));
    export_->setObjectName(QStringLiteral("btnHistoryExport"));
    export_->setCheckable(true);
    for (QPushButton *button : std::initializer_list<QPushButton *>{back_, forward_, todayButton_, export_}) {
        button->setProperty("slim", true);
        button->setCursor(Qt::PointingHandCursor);
    }
    dash_->setProperty("tone", QStringLiteral("secondary"));
    retranslate();
    span_->setCurrent(static_cast<int>(HistorySpan::Month));
    range_ = rangeAround(span(), today_, QLocale().firstDayOfWeek());
    layOut();
    showRange();

    connect(back_, &QPushButton::clicked, this, [this] { step(-1); });
    connect(forward_, &QPushButton::clicked, this, [this] { step(1); });
    connect(todayButton_, &QPushButton::clicked, this, [this] {
        emit todayWanted();
        showAround(span() == HistorySpan::Range ? HistorySpan::Month : span(), today_);
    });
    connect(span_, &SegmentedControl::currentChanged, this, &HistoryHead::spanChosen);
    connect(from_, &QDateEdit::dateChanged, this, [this] { datesEdited(true); });
    connect(to_, &QDateEdit::dateChanged, this, [this] { datesEdited(false); });
    connect(export_, &QPushButton::toggled, this, &HistoryHead::exportToggled);
    for (const auto &[key, direction] : {std::pair(Qt::Key_PageUp, -1), std::pair(Qt::Key_PageDown, 1)}) {
        auto *shortcut = new QShortcut(key, parent, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, [this, direction = direction] { step(direction); });
    }
}

void HistoryHead::layOut() {
    layout_ = new QHBoxLayout(this);
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->addWidget(title_);
    layout_->addSpacing(style::space::kM);
    layout_->addWidget(back_);
    layout_->addWidget(forward_);
    layout_->addWidget(todayButton_);
    layout_->addSpacing(style::space::kXs);
    layout_->addWidget(rangeText_);
    layout_->addWidget(from_);
    layout_->addWidget(dash_);
    layout_->addWidget(to_);
    layout_->addStretch(1);
    layout_->addWidget(span_);
    layout_->addWidget(export_);
}

HistorySpan HistoryHead::span() const { return static_cast<HistorySpan>(span_->current()); }

void HistoryHead::retranslate() {
    title_->setText(qtTrId("HISTORY_PAGE_TITLE"));
    back_->setAccessibleName(qtTrId("HISTORY_BACK"));
    forward_->setAccessibleName(qtTrId("HISTORY_FORWARD"));
    back_->setToolTip(qtTrId("HISTORY_BACK"));
    forward_->setToolTip(qtTrId("HISTORY_FORWARD"));
    todayButton_->setText(qtTrId("HISTORY_TODAY"));
    from_->setAccessibleName(qtTrId("HISTORY_FROM"));
    to_->setAccessibleName(qtTrId("HISTORY_TO"));
    span_->setAccessibleName(qtTrId("HISTORY_SPAN"));
    span_->setTexts(
        {qtTrId("HISTORY_WEEK"), qtTrId("HISTORY_MONTH"), qtTrId("HISTORY_YEAR"), qtTrId("HISTORY_RANGE")});
    export_->setText(qtTrId("HISTORY_EXPORT"));
}

void HistoryHead::setToday(const QDate &today) {
    today_ = today;
    showRange();
}

void HistoryHead::showAround(HistorySpan span, const QDate &day) {
    {
        const QSignalBlocker quiet(span_);
        span_->setCurrent(static_cast<int>(span));
    }
    go(rangeAround(span, day, QLocale().firstDayOfWeek()));
}

void HistoryHead::go(const HistoryRange &range) {
    const bool other = range != range_;
    range_ = range;
    showRange();
    if (other) {
        emit rangeChanged();
    }
}

void HistoryHead::step(int step) {
    if (canStep(range_, step, today_)) {
        go(steppedRange(span(), range_, step, today_, QLocale().firstDayOfWeek()));
    }
}

void HistoryHead::spanChosen() {
    if (span() == HistorySpan::Range) {
        // Begins with what was shown, without days that are still to come.
        go({range_.from, std::max(range_.from, std::min(range_.to, today_))});
        return;
    }
    const QDate day = range_.contains(anchor_) ? anchor_ : std::min(range_.to, today_);
    go(rangeAround(span(), day, QLocale().firstDayOfWeek()));
}

void HistoryHead::datesEdited(bool fromEdited) {
    HistoryRange range{from_->date(), to_->date()};
    if (range.to < range.from) {
        // The end that was set is the one that is meant.
        (fromEdited ? range.to : range.from) = fromEdited ? range.from : range.to;
    }
    go(range);
}

void HistoryHead::showRange() {
    const bool own = span() == HistorySpan::Range;
    rangeText_->setText(rangeText(span(), range_));
    rangeText_->setVisible(!own);
    for (QWidget *widget : std::initializer_list<QWidget *>{from_, dash_, to_}) {
        widget->setVisible(own);
    }
    const QDate last = std::max(today_, range_.to);
    for (HistoryDateEdit *edit : {from_, to_}) {
        const QSignalBlocker quiet(edit);
        edit->setDateRange(QDate(kHistoryFirstYear, 1, 1), own ? today_ : last);
        edit->setDate(edit == from_ ? range_.from : range_.to);
    }
    back_->setEnabled(canStep(range_, -1, today_));
    forward_->setEnabled(canStep(range_, 1, today_));
    fitTitle();
}

// The title gives way where the two dates of a range need its room, as the navigation has the name as well;
// then the way to today, which the end of the range has too.
void HistoryHead::fitTitle() {
    const std::array<QWidget *, 2> spare{title_, todayButton_};
    for (QWidget *widget : spare) {
        widget->show();
    }
    for (QWidget *widget : spare) {
        layout_->invalidate();
        widget->setVisible(layout_->minimumSize().width() <= width());
    }
}

void HistoryHead::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    fitTitle();
}

void HistoryHead::setExportOpen(bool open) { export_->setChecked(open); }

void HistoryHead::setExportEnabled(bool enabled) { export_->setEnabled(enabled); }

void HistoryHead::applyScale(qreal scale) {
    layout_->setSpacing(qRound(style::space::kS * scale));
    title_->setFont(style::font(kPageTitlePixels * scale, QFont::DemiBold));
    rangeText_->setFont(style::font(style::type::kTitle * scale, QFont::DemiBold));
    dash_->setFont(style::font(style::type::kBody * scale));
    const int height = qRound(kControlHeight * scale);
    for (QPushButton *button : {static_cast<QPushButton *>(back_), static_cast<QPushButton *>(forward_)}) {
        button->setFixedSize(height, height);
    }
    for (QPushButton *button : {todayButton_, export_}) {
        button->setFont(style::font(style::type::kBody * scale, QFont::Medium));
        button->setFixedHeight(height);
    }
    span_->setFixedHeight(height);
    span_->updateGeometry();
    from_->applyScale(scale);
    to_->applyScale(scale);
    fitTitle();
}

void HistoryHead::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        showRange();
    }
}

} // namespace zpsg::ui
