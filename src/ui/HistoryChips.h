// Which quantities of a day are drawn: a switch for each, which is the legend of its colour and mark as well.
#pragma once

#include "ui/HistoryQuantity.h"

#include <QWidget>

namespace zpsg::ui {

/// One or two are on: a plot has two axes. A third one switched on takes the place of the one that has been
/// on for longer; the only one can't be switched off.
class HistoryChips final : public QWidget {
    Q_OBJECT

public:
    explicit HistoryChips(QWidget *parent);

    /// One or two, in the order of HistoryQuantity: the first has the axis at the left.
    [[nodiscard]] std::vector<HistoryQuantity> shown() const;
    void retranslate();
    /// In this much room, pixels: without the units where that is little.
    void applyScale(int room);

    [[nodiscard]] QSize sizeHint() const override;

signals:
    void changed();

private:
    class Chip;
    void toggle(HistoryQuantity quantity);

    std::array<Chip *, kHistoryQuantities.size()> chips_{};
    std::vector<HistoryQuantity> on_; ///< the one that has been on for the longest first
};

} // namespace zpsg::ui
