#include "ui/AlarmLogTable.h"

#include "ui/AlarmLogDelegate.h"
#include "ui/AlarmText.h"
#include "ui/Figures.h"
#include "ui/Style.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <numeric>

namespace zpsg::ui {
namespace {

constexpr int kRowHeight = 34;
constexpr int kHeaderHeight = 30;
/// Of the width that is left over, what the first column takes.
constexpr double kFirstShare = 0.36;

/// Captions start where the texts below them do, which a style's own header does not promise.
class Header : public QHeaderView {
public:
    explicit Header(QWidget *parent) : QHeaderView(Qt::Horizontal, parent) {}

protected:
    void paintSection(QPainter *painter, const QRect &rect, int section) const override {
        const int margin = qRound(style::space::kM * style::windowScale(*this));
        painter->save();
        painter->setFont(font());
        painter->setPen(style::tone(style::colour::kTextSecondary));
        painter->drawText(rect.adjusted(margin, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                          model()->headerData(section, Qt::Horizontal).toString());
        painter->fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1),
                          style::tone(style::colour::kText, 0.16));
        painter->restore();
    }
};

} // namespace

AlarmLogTable::AlarmLogTable(AlarmLogModel *model, QWidget *parent) : QTableView(parent) {
    setHorizontalHeader(new Header(this));
    setModel(model);
    setItemDelegate(new AlarmLogDelegate(this));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabKeyNavigation(false); // Tab leads out of the table
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setFrameShape(QFrame::NoFrame);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(1);
}

void AlarmLogTable::applyScale(qreal scale) {
    const QFont text = style::font(style::type::kBody * scale);
    const QFont head = style::font(style::type::kLabel * scale, QFont::Medium);
    setFont(text);
    horizontalHeader()->setFont(head);
    horizontalHeader()->setFixedHeight(qRound(kHeaderHeight * scale));
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(qRound(kRowHeight * scale));
    // Wide texts of each kind, in the weight of an alarm that holds: no column changes its width while
    // entries come and go.
    const QString moment = momentText(QDateTime(QDate(2028, 10, 28), QTime(20, 48, 58)));
    const std::array<QString, AlarmLogModel::kColumns> samples{alarmTitle(psu::AlarmKind::Rail33),
                                                               alarmValue(psu::AlarmKind::Rail12, 12.888),
                                                               moment, moment, durationText(59 * 60 + 58)};
    const FigureFont figures(style::font(style::type::kBody * scale, QFont::DemiBold));
    const QFontMetricsF heads(head);
    for (int column = 0; column < AlarmLogModel::kColumns; ++column) {
        const auto place = static_cast<std::size_t>(column);
        const QString caption = model()->headerData(column, Qt::Horizontal).toString();
        const qreal width = std::max(figures.width(samples.at(place)), heads.horizontalAdvance(caption));
        const int signs = column == AlarmLogModel::What ? style::space::kXl : 0;
        least_.at(place) = qRound(width + (2.0 * style::space::kM + signs) * scale);
    }
    spreadColumns();
}

void AlarmLogTable::spreadColumns() {
    const int spare = std::max(0, viewport()->width() - std::accumulate(least_.begin(), least_.end(), 0));
    const int first = static_cast<int>(spare * kFirstShare);
    const int others = (spare - first) / (AlarmLogModel::kColumns - 1);
    int left = viewport()->width();
    for (int column = AlarmLogModel::kColumns - 1; column > 0; --column) {
        const int width = least_.at(static_cast<std::size_t>(column)) + others;
        setColumnWidth(column, width);
        left -= width;
    }
    setColumnWidth(AlarmLogModel::What, std::max(left, 1));
}

void AlarmLogTable::resizeEvent(QResizeEvent *event) {
    QTableView::resizeEvent(event);
    spreadColumns();
}

QString AlarmLogTable::selectedText() const {
    QModelIndexList rows = selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    for (const QModelIndex &row : qAsConst(rows)) {
        QStringList cells;
        for (int column = 0; column < AlarmLogModel::kColumns; ++column) {
            cells << row.siblingAtColumn(column).data().toString();
        }
        lines << cells.join(QLatin1Char('\t'));
    }
    return lines.join(QLatin1Char('\n'));
}

void AlarmLogTable::keyPressEvent(QKeyEvent *event) {
    if (!event->matches(QKeySequence::Copy)) {
        QTableView::keyPressEvent(event);
        return;
    }
    const QString text = selectedText();
    if (!text.isEmpty()) {
        QGuiApplication::clipboard()->setText(text);
    }
}

void AlarmLogTable::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
    QTableView::currentChanged(current, previous);
    viewport()->update(); // the mark is around the whole row
}

AlarmLogTable::Place AlarmLogTable::currentPlace() const {
    const QModelIndex top = verticalScrollBar()->value() > 0 ? indexAt(QPoint(0, 0)) : QModelIndex();
    return {QPersistentModelIndex(top), top.isValid() ? rowViewportPosition(top.row()) : 0};
}

void AlarmLogTable::returnTo(const Place &place) {
    if (place.row.isValid()) {
        updateGeometries(); // the scroll bar's range
        QScrollBar *bar = verticalScrollBar();
        bar->setValue(bar->value() + rowViewportPosition(place.row.row()) - place.y);
    }
}

} // namespace zpsg::ui
