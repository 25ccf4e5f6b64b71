// The table of the alarm log.
#pragma once

#include "ui/AlarmLogModel.h"

#include <QTableView>

#include <array>

namespace zpsg::ui {

/// Selects whole rows and copies them as lines of tab-separated text. What is in view stays in view when the
/// log changes, unless that is the top: there the newest comes into view.
class AlarmLogTable : public QTableView {
    Q_OBJECT

public:
    explicit AlarmLogTable(AlarmLogModel *model, QWidget *parent = nullptr);

    /// Type sizes and column widths for a window of this scale.
    void applyScale(qreal scale);
    /// Runs `change`, which may change the model, without moving what is looked at.
    template <typename Change>
    void keepingPlace(Change change) {
        const Place place = currentPlace();
        change();
        returnTo(place);
    }
    /// The selected rows from the top down.
    [[nodiscard]] QString selectedText() const;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    /// The row at the upper edge, and where it stands to it.
    struct Place {
        QPersistentModelIndex row;
        int y = 0;
    };
    [[nodiscard]] Place currentPlace() const;
    void returnTo(const Place &place);
    void spreadColumns();

    std::array<int, AlarmLogModel::kColumns> least_{}; ///< widths in which every text has room
};

} // namespace zpsg::ui
