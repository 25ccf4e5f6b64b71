// The rows of the rate's dialog, in the order in which they count.
#pragma once

#include "power/Tariff.h"

#include <QScrollArea>

#include <array>
#include <vector>

class QLabel;
class QVBoxLayout;

namespace zpsg::ui {

class ElectricityRateRow;

class ElectricityRateList final : public QScrollArea {
    Q_OBJECT

public:
    /// `before`: what Tab leaves for the first row.
    ElectricityRateList(QWidget *before, QWidget *parent);

    void setPeriods(const std::vector<power::TariffPeriod> &periods);
    /// Those with which nothing is wrong.
    [[nodiscard]] std::vector<power::TariffPeriod> periods() const;
    [[nodiscard]] int count() const { return static_cast<int>(rows_.size()); }
    /// A row for the user to complete, with the focus. Nothing happens beyond Tariff::kMostPeriods.
    void addRow();
    /// Shows what is wrong, and returns the first entry that is, in sight; null while all is well.
    QWidget *complain();

    void retranslate();
    void applyScale(qreal scale);
    /// What all rows need, heads included.
    [[nodiscard]] int fullHeight() const;
    [[nodiscard]] int rowWidth() const;

signals:
    void changed();
    /// The rows need another height, or are fewer or more.
    void rowsChanged();
    /// The last row is gone, and the focus with it.
    void emptied();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    ElectricityRateRow *appendRow();
    void moveUp(ElectricityRateRow *row);
    void remove(ElectricityRateRow *row);
    void arrange();
    void placeHeads();

    QWidget *before_;
    QWidget *body_;
    QWidget *head_;
    std::array<QLabel *, 4> heads_{};
    QVBoxLayout *layout_ = nullptr;
    std::vector<ElectricityRateRow *> rows_;
    qreal scale_ = 1.0;
};

} // namespace zpsg::ui
