// What a kWh costs in every hour of the week: a strip for each day, and which letter stands for which price.
#pragma once

#include "power/Tariff.h"

#include <QWidget>

#include <array>
#include <vector>

namespace zpsg::ui {

/// The cheapest is A, and blue; each price that costs more has a letter later in the alphabet, and a colour
/// nearer to amber.
class ElectricityRateWeek final : public QWidget {
    Q_OBJECT

public:
    explicit ElectricityRateWeek(QWidget *parent);

    /// `currency` stands behind each price.
    void showTariff(const power::Tariff &tariff, const QString &currency);
    void retranslate();
    [[nodiscard]] int heightFor(int width) const;
    /// What applies at this place, in words; empty beside the strips.
    [[nodiscard]] QString textAt(const QPoint &place) const;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// From one minute of a day to another all is one price.
    struct Part {
        int from;
        int to;
        std::size_t rate; ///< place in rates_
    };
    struct Measures;

    [[nodiscard]] QString legendText(std::size_t rate) const;
    [[nodiscard]] QColor colourOf(std::size_t rate) const;
    /// Where a part of a day stands.
    [[nodiscard]] static QRectF place(const Measures &measures, std::size_t row, const Part &part);
    void paintDay(QPainter &painter, const Measures &measures, std::size_t row) const;
    void paintHours(QPainter &painter, const Measures &measures) const;
    void paintLetters(QPainter &painter, const Measures &measures) const;
    void paintLetter(QPainter &painter, const QRectF &on, std::size_t rate, qreal scale) const;
    void paintLegend(QPainter &painter, const Measures &measures) const;

    std::vector<double> rates_;             ///< that apply at some time, rising
    std::array<std::vector<Part>, 7> days_; ///< in the order of the calendar
    QString currency_;
};

} // namespace zpsg::ui
