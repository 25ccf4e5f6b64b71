// How a row of the alarm log looks.
#pragma once

#include <QStyledItemDelegate>

namespace zpsg::ui {

/// A row whose alarm holds has a bar at its edge, a lit sign and heavier type. Figures have equal widths. The
/// mark of the focus is around the whole row.
class AlarmLogDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};

} // namespace zpsg::ui
