#include "ui/HistoryExport.h"

#include "ui/HistoryRanges.h"
#include "ui/Icons.h"
#include "ui/SegmentedControl.h"
#include "ui/Style.h"

#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStackedLayout>
#include <QStandardPaths>

#include <algorithm>

namespace zpsg::ui {
namespace {

constexpr int kProgressSteps = 1000;

} // namespace

/// How it ended: a tick or a warning.
class HistoryExport::Sign : public QWidget {
public:
    using QWidget::QWidget;

    void setFailed(bool failed) {
        failed_ = failed;
        update();
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        QPainter painter(this);
        paintIcon(painter, failed_ ? Icon::Warning : Icon::Tick, rect(),
                  style::tone(failed_ ? style::colour::kDanger : style::colour::kGood));
    }

private:
    bool failed_ = false;
};

HistoryExport::HistoryExport(QWidget *parent) : Card(parent), steps_(new QStackedLayout(this)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    steps_->addWidget(makeAsk());
    steps_->addWidget(makeRunning());
    steps_->addWidget(makeDone());
    for (QPushButton *button : {file_, dismiss_, cancel_, close_}) {
        button->setProperty("slim", true);
        button->setCursor(Qt::PointingHandCursor);
    }
    retranslate();
    connect(file_, &QPushButton::clicked, this, &HistoryExport::chooseFile);
    connect(dismiss_, &QPushButton::clicked, this, &HistoryExport::closed);
    connect(close_, &QPushButton::clicked, this, &HistoryExport::closed);
    connect(cancel_, &QPushButton::clicked, this, [this] {
        cancel_->setEnabled(false);
        emit exportCancelled();
    });
    connect(from_, &QDateEdit::dateChanged, this,
            [this](const QDate &date) { to_->setDate(std::max(date, to_->date())); });
    connect(to_, &QDateEdit::dateChanged, this,
            [this](const QDate &date) { from_->setDate(std::min(date, from_->date())); });
}

QWidget *HistoryExport::makeAsk() {
    auto *page = new QWidget(this);
    askTitle_ = new QLabel(page);
    from_ = new HistoryDateEdit(page);
    to_ = new HistoryDateEdit(page);
    kind_ = new SegmentedControl(page);
    file_ = new QPushButton(page);
    dismiss_ = new QPushButton(page);
    from_->setObjectName(QStringLiteral("editExportFrom"));
    to_->setObjectName(QStringLiteral("editExportTo"));
    kind_->setObjectName(QStringLiteral("switchExportKind"));
    file_->setObjectName(QStringLiteral("btnExportFile"));
    auto *dash = new QLabel(QStringLiteral("\u2013"), page);
    dash->setProperty("tone", QStringLiteral("secondary"));
    auto *layout = new QHBoxLayout(page);
    layout->addWidget(askTitle_);
    layout->addWidget(from_);
    layout->addWidget(dash);
    layout->addWidget(to_);
    layout->addWidget(kind_);
    layout->addStretch(1);
    layout->addWidget(file_);
    layout->addWidget(dismiss_);
    return page;
}

QWidget *HistoryExport::makeRunning() {
    auto *page = new QWidget(this);
    progressText_ = new QLabel(page);
    progress_ = new QProgressBar(page);
    cancel_ = new QPushButton(page);
    progress_->setRange(0, kProgressSteps);
    progress_->setTextVisible(false);
    cancel_->setObjectName(QStringLiteral("btnExportCancel"));
    auto *layout = new QHBoxLayout(page);
    layout->addWidget(progressText_);
    layout->addWidget(progress_, 1);
    layout->addWidget(cancel_);
    return page;
}

QWidget *HistoryExport::makeDone() {
    auto *page = new QWidget(this);
    sign_ = new Sign(page);
    result_ = new ElidedLabel(page);
    close_ = new QPushButton(page);
    result_->setObjectName(QStringLiteral("lblExportResult"));
    close_->setObjectName(QStringLiteral("btnExportClose"));
    auto *layout = new QHBoxLayout(page);
    layout->addWidget(sign_);
    layout->addWidget(result_, 1);
    layout->addWidget(close_);
    return page;
}

void HistoryExport::retranslate() {
    askTitle_->setText(qtTrId("HISTORY_EXPORT_WHAT"));
    from_->setAccessibleName(qtTrId("HISTORY_FROM"));
    to_->setAccessibleName(qtTrId("HISTORY_TO"));
    kind_->setAccessibleName(qtTrId("HISTORY_EXPORT_WHAT"));
    kind_->setTexts({qtTrId("HISTORY_EXPORT_DAYS"), qtTrId("HISTORY_EXPORT_MINUTES")});
    file_->setText(qtTrId("HISTORY_EXPORT_FILE"));
    dismiss_->setText(qtTrId("HISTORY_CLOSE"));
    cancel_->setText(qtTrId("HISTORY_CANCEL"));
    close_->setText(qtTrId("HISTORY_CLOSE"));
    progress_->setAccessibleName(qtTrId("HISTORY_EXPORT"));
    showProgress(progress_->value() / static_cast<double>(kProgressSteps));
}

void HistoryExport::open(const HistoryRange &range, const QDate &today) {
    if (running()) {
        return;
    }
    for (HistoryDateEdit *edit : {from_, to_}) {
        const QSignalBlocker quiet(edit);
        edit->setDateRange(QDate(kHistoryFirstYear, 1, 1), today);
        edit->setDate(std::min(edit == from_ ? range.from : range.to, today));
    }
    go(Ask);
}

bool HistoryExport::running() const { return steps_->currentIndex() == Running; }

void HistoryExport::go(Step step) {
    const bool before = running();
    steps_->setCurrentIndex(step);
    if (running() != before) {
        emit runningChanged();
    }
}

void HistoryExport::chooseFile() {
    if (folder_.isEmpty()) {
        folder_ = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    }
    const QString kind = kind_->current() == 1 ? QStringLiteral("minutes") : QStringLiteral("days");
    const QString name =
        QStringLiteral("zpsg-%1-%2-%3.csv")
            .arg(kind, from_->date().toString(Qt::ISODate), to_->date().toString(Qt::ISODate));
    // A child of the window, so that it does not take on the page's looks.
    auto *dialog = new QFileDialog(window(), qtTrId("HISTORY_EXPORT_TITLE"),
                                   folder_ + QLatin1Char('/') + name, qtTrId("HISTORY_EXPORT_FILTER"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("csv"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QFileDialog::fileSelected, this, &HistoryExport::begin);
    dialog->open();
}

void HistoryExport::begin(const QString &fileName) {
    folder_ = QFileInfo(fileName).absolutePath();
    cancel_->setEnabled(true);
    showProgress(0.0);
    go(Running);
    emit exportWanted(from_->date(), to_->date(), kind_->current() == 1, fileName);
}

void HistoryExport::showProgress(double fraction) {
    const double share = std::clamp(fraction, 0.0, 1.0);
    progress_->setValue(qRound(share * kProgressSteps));
    progressText_->setText(qtTrId("HISTORY_EXPORTING").arg(static_cast<int>(share * 100.0)));
}

void HistoryExport::showDone(const QString &message, bool failed) {
    sign_->setFailed(failed);
    result_->setText(message);
    go(Done);
}

void HistoryExport::applyScale(qreal scale) {
    const int margin = qRound(style::space::kM * scale);
    const int height = qRound(kControlHeight * scale);
    setFixedHeight(height + 2 * qRound(10.0 * scale));
    for (QWidget *page : findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (page->layout() != nullptr) {
            page->layout()->setContentsMargins(margin, 0, margin, 0);
            page->layout()->setSpacing(qRound(style::space::kS * scale));
        }
    }
    for (QLabel *label : findChildren<QLabel *>()) {
        label->setFont(style::font(style::type::kBody * scale));
    }
    askTitle_->setFont(style::font(style::type::kBody * scale, QFont::Medium));
    for (QPushButton *button : {file_, dismiss_, cancel_, close_}) {
        button->setFont(style::font(style::type::kBody * scale, QFont::Medium));
        button->setFixedHeight(height);
    }
    kind_->setFixedHeight(height);
    kind_->updateGeometry();
    progress_->setFixedHeight(qRound(8.0 * scale));
    // The widest text, so that the bar keeps its place.
    progressText_->setMinimumWidth(
        QFontMetrics(progressText_->font()).horizontalAdvance(qtTrId("HISTORY_EXPORTING").arg(100)) + 8);
    sign_->setFixedSize(qRound(18.0 * scale), qRound(18.0 * scale));
    from_->applyScale(scale);
    to_->applyScale(scale);
}

void HistoryExport::changeEvent(QEvent *event) {
    Card::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

} // namespace zpsg::ui
