#include "ui/ElectricityRateList.h"

#include "ui/ElectricityRateRow.h"
#include "ui/Style.h"

#include <QLabel>
#include <QScrollBar>
#include <QVariant>
#include <QVBoxLayout>

#include <algorithm>

namespace zpsg::ui {

ElectricityRateList::ElectricityRateList(QWidget *before, QWidget *parent)
    : QScrollArea(parent), before_(before), body_(new QWidget), head_(new QWidget(body_)) {
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    for (QLabel *&label : heads_) {
        label = new QLabel(head_);
        label->setProperty("tone", QStringLiteral("tertiary"));
    }
    layout_ = new QVBoxLayout(body_);
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->addWidget(head_);
    layout_->addStretch(1);
    setWidget(body_);
    // The dialog's surface shines through.
    body_->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    setStyleSheet(QStringLiteral("QScrollArea { background: transparent; }"));
    retranslate();
}

ElectricityRateRow *ElectricityRateList::appendRow() {
    auto *row = new ElectricityRateRow(body_);
    row->applyScale(scale_);
    rows_.push_back(row);
    layout_->insertWidget(layout_->count() - 1, row);
    row->show();
    connect(row, &ElectricityRateRow::changed, this, &ElectricityRateList::changed);
    connect(row, &ElectricityRateRow::heightChanged, this, &ElectricityRateList::rowsChanged);
    connect(row, &ElectricityRateRow::upRequested, this, [this, row] { moveUp(row); });
    connect(row, &ElectricityRateRow::removeRequested, this, [this, row] { remove(row); });
    return row;
}

void ElectricityRateList::setPeriods(const std::vector<power::TariffPeriod> &periods) {
    qDeleteAll(rows_);
    rows_.clear();
    for (const power::TariffPeriod &period : periods) {
        appendRow()->setPeriod(period);
    }
    verticalScrollBar()->setValue(0);
    arrange();
}

std::vector<power::TariffPeriod> ElectricityRateList::periods() const {
    std::vector<power::TariffPeriod> periods;
    for (const ElectricityRateRow *row : rows_) {
        if (const auto period = row->period()) {
            periods.push_back(*period);
        }
    }
    return periods;
}

void ElectricityRateList::addRow() {
    if (rows_.size() >= power::Tariff::kMostPeriods) {
        return;
    }
    ElectricityRateRow *row = appendRow();
    row->setDraft();
    arrange();
    layout_->activate();
    row->stops().front()->setFocus(Qt::TabFocusReason);
    ensureWidgetVisible(row);
}

void ElectricityRateList::moveUp(ElectricityRateRow *row) {
    const auto at = std::find(rows_.begin(), rows_.end(), row);
    if (at == rows_.begin() || at == rows_.end()) {
        return;
    }
    std::iter_swap(at, at - 1);
    layout_->removeWidget(row);
    layout_->insertWidget(1 + static_cast<int>(at - 1 - rows_.begin()), row);
    arrange();
    layout_->activate();
    // At the top there is no way further up, and the button with it.
    (rows_.front() == row ? row->stops().front() : row->upButton())->setFocus(Qt::TabFocusReason);
    ensureWidgetVisible(row);
    emit changed();
}

void ElectricityRateList::remove(ElectricityRateRow *row) {
    const auto at = std::find(rows_.begin(), rows_.end(), row);
    const auto index = static_cast<std::size_t>(at - rows_.begin());
    rows_.erase(at);
    // Before the row goes, or the focus would go anywhere.
    if (rows_.empty()) {
        emit emptied();
    } else {
        rows_.at(std::min(index, rows_.size() - 1))->removeButton()->setFocus(Qt::TabFocusReason);
    }
    row->hide();
    layout_->removeWidget(row);
    row->deleteLater(); // it is the one that has asked
    arrange();
    emit changed();
}

void ElectricityRateList::arrange() {
    QWidget *before = before_;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        rows_.at(i)->setPlace(static_cast<int>(i));
        for (QWidget *stop : rows_.at(i)->stops()) {
            setTabOrder(before, stop);
            before = stop;
        }
    }
    placeHeads();
    emit rowsChanged();
}

QWidget *ElectricityRateList::complain() {
    QWidget *first = nullptr;
    for (ElectricityRateRow *row : rows_) {
        QWidget *faulty = row->complain();
        if (first == nullptr && faulty != nullptr) {
            first = faulty;
            layout_->activate();
            ensureWidgetVisible(row);
        }
    }
    return first;
}

void ElectricityRateList::retranslate() {
    heads_.at(0)->setText(qtTrId("RATE_STR_DAYS"));
    heads_.at(1)->setText(qtTrId("RATE_STR_FROM"));
    heads_.at(2)->setText(qtTrId("RATE_STR_TO"));
    heads_.at(3)->setText(qtTrId("RATE_STR_PRICE"));
    for (ElectricityRateRow *row : rows_) {
        row->retranslate();
    }
    placeHeads();
}

void ElectricityRateList::applyScale(qreal scale) {
    scale_ = scale;
    layout_->setSpacing(qRound(6.0 * scale));
    for (QLabel *label : heads_) {
        label->setFont(style::font(style::type::kSmall * scale));
    }
    head_->setFixedHeight(qRound(16.0 * scale));
    for (ElectricityRateRow *row : rows_) {
        row->applyScale(scale);
    }
    layout_->activate();
    placeHeads();
}

int ElectricityRateList::fullHeight() const { return layout_->sizeHint().height(); }

int ElectricityRateList::rowWidth() const {
    const int rows = rows_.empty() ? 0 : rows_.front()->sizeHint().width();
    return rows + verticalScrollBar()->sizeHint().width();
}

void ElectricityRateList::placeHeads() {
    if (rows_.empty()) {
        return;
    }
    layout_->activate();
    rows_.front()->layout()->activate();
    const auto columns = rows_.front()->columns();
    for (std::size_t i = 0; i < heads_.size(); ++i) {
        // Not beyond the next column: a long word is cut, and the fields have it as their name.
        const int end = i + 1 < columns.size() ? columns.at(i + 1) : head_->width();
        heads_.at(i)->setGeometry(columns.at(i), 0, std::max(0, end - columns.at(i) - 2), head_->height());
    }
}

void ElectricityRateList::resizeEvent(QResizeEvent *event) {
    QScrollArea::resizeEvent(event);
    placeHeads();
}

} // namespace zpsg::ui
