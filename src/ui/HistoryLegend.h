// The table beside the day's plot: least, mean and greatest value of each curve in view.
#pragma once

#include "ui/HistoryMinutes.h"
#include "ui/HistoryWindow.h"

#include <QWidget>

namespace zpsg::ui {

class HistoryLegend final : public QWidget {
    Q_OBJECT

public:
    explicit HistoryLegend(QWidget *parent) : QWidget(parent) {}

    void showStatistics(const HistoryMinutes &minutes, const HistoryWindow &window,
                        const std::vector<HistoryQuantity> &quantities);

    /// The width that the table needs in a window of this scale.
    [[nodiscard]] static int widthFor(qreal scale) { return qRound(238.0 * scale); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Row {
        HistoryQuantity quantity;
        std::optional<HistoryCurve> curve; ///< nothing for the heading of a quantity with several curves
        QString name;
        QString unit;
        std::array<QString, 3> figures;
    };
    std::vector<Row> rows_;
};

} // namespace zpsg::ui
