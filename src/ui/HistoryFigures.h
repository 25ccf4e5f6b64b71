// The figures of a range, side by side on a card: energy, mean power, the highest and the lowest day, and the
// averages over everything.
#pragma once

#include "ui/HistorySums.h"

#include <QWidget>

#include <array>

namespace zpsg::ui {

class HistoryFigures final : public QWidget {
    Q_OBJECT

public:
    explicit HistoryFigures(QWidget *parent);

    /// Nothing while the days of the range are not known. The highest and the lowest day are those by
    /// `measure`; `years`: whether their dates need their years.
    void showSum(const std::optional<HistorySum> &sum, HistoryMeasure measure, bool years);
    /// Percent and watts; 0 for what is not known.
    void showLongTerm(double efficiency, double watts);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {320, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Tile {
        QString caption;
        QString figure;
        QString note; ///< beside the figure
    };
    void compose();

    std::optional<HistorySum> sum_;
    HistoryMeasure measure_ = HistoryMeasure::Energy;
    bool years_ = false;
    double efficiency_ = 0.0;
    double watts_ = 0.0;
    std::array<Tile, 5> tiles_;
};

} // namespace zpsg::ui
