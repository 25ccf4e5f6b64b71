// The alarm log as a table: the alarms that hold on top, below them the newest first.
#pragma once

#include "psu/AlarmEntry.h"

#include <QAbstractTableModel>

#include <vector>

namespace zpsg::ui {

/// An update inserts, removes and moves rows and changes cells, and never resets: selection, current row and
/// scroll position of its views stay with the entries that they were on.
class AlarmLogModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { What, Value, Began, Ended, Lasted };
    static constexpr int kColumns = 5;
    /// Whether the row's alarm holds now.
    static constexpr int kHoldsRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    /// `entries` in the order in which they began. Their order counts, not their times: clocks get set.
    void setEntries(const std::vector<psu::AlarmEntry> &entries, const QDateTime &now);
    /// The moment up to which alarms that hold have lasted.
    void setNow(const QDateTime &now);
    /// Texts have changed with the language.
    void retranslate();

    [[nodiscard]] bool anyHolds() const;
    [[nodiscard]] bool anyEnded() const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    [[nodiscard]] QString text(const psu::AlarmEntry &entry, int column) const;
    void dropAllBut(const std::vector<psu::AlarmEntry> &wanted);

    std::vector<psu::AlarmEntry> rows_;
    QDateTime now_;
};

} // namespace zpsg::ui
