// What the PC has used and what that costs: today, this month, this year, and a year at this pace.
#pragma once

#include "ui/TrendView.h"

#include <array>

class QPushButton;

namespace zpsg::ui {

/// All the view shows. Costs count only while a rate is known.
struct EnergyShown {
    struct Figures {
        double minutes = 0;   ///< how long the PC was on
        double outputKwh = 0; ///< what the supply gave
        double wallKwh = 0;   ///< what it took from the wall for that
        double cost = 0;      ///< of the wall's kWh
    };
    Figures today, month, year;
    Figures thisRun, lastRun, total;      ///< total: since the program was started for the first time
    std::optional<Figures> projectedYear; ///< absent while there is not a day to project from
    bool rateKnown = false;
    bool efficiencyKnown = true; ///< without it the wall's kWh are the output's
    QString currency;            ///< ISO 4217 code; empty: the country's
};

/// Repaints only when a figure changes as it is shown.
class EnergyView final : public TrendView {
    Q_OBJECT

public:
    explicit EnergyView(QWidget *parent = nullptr);

    void showEnergy(const EnergyShown &shown);

    [[nodiscard]] QString captionText() const override;
    /// That the efficiency is not known, when it is not.
    [[nodiscard]] QString summaryText() const override;
    /// Every figure with its name.
    [[nodiscard]] QString readoutText() const override;
    /// What today costs; its kWh from the wall while there is no rate.
    [[nodiscard]] std::optional<double> readoutValue() const override;
    [[nodiscard]] std::pair<double, double> readoutRange() const override;

    [[nodiscard]] QSize minimumSizeHint() const override { return {640, 112}; }

signals:
    /// The user wants to enter what a kWh costs.
    void rateRequested();

protected:
    void retranslate() override;
    void replot() override {} // all of it is painted
    void layOut(qreal scale) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct Column {
        QString title;
        QString figure;
        QString unit;   ///< stands after the figure, smaller
        QString second; ///< below the figure
        QString third;  ///< below that where there is room
        QString beside; ///< the second in short, where there is no room below the figure
        bool operator==(const Column &) const = default;
    };
    struct Run {
        QString title;
        QString figures;
        bool operator==(const Run &) const = default;
    };
    struct Texts {
        std::array<Column, 4> columns;
        std::array<Run, 3> runs;
        bool operator==(const Texts &) const = default;
    };

    struct Look;

    [[nodiscard]] Texts textsNow() const;
    [[nodiscard]] Column column(const QString &title, const EnergyShown::Figures &figures) const;
    [[nodiscard]] Run run(const QString &title, const EnergyShown::Figures &figures) const;
    void showTexts();
    void showToolTip();
    [[nodiscard]] QRectF footPlace() const;
    [[nodiscard]] Look look(const QSizeF &column) const;
    [[nodiscard]] static qreal figureWidth(const Column &column, qreal pixels, qreal scale);
    void paintColumn(QPainter &painter, const QRectF &place, const Look &look, const Column &column) const;
    void paintRuns(QPainter &painter, const QRectF &line) const;

    EnergyShown shown_;
    Texts texts_;
    QPushButton *rate_;
};

} // namespace zpsg::ui
