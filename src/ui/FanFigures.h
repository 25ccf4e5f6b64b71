// How fast the fan turns and how warm the supply is, in large figures.
#pragma once

#include "ui/Readout.h"

namespace zpsg::ui {

class FanFigures final : public Readout {
    Q_OBJECT

public:
    /// In a window of the usual size, pixels.
    static constexpr qreal kCaptionHeight = 18.0;

    explicit FanFigures(QWidget *parent = nullptr);

    /// Revolutions a minute, percent of the full speed, degrees Celsius.
    void show(std::optional<double> rpm, std::optional<double> dutyPercent, std::optional<double> celsius);

    [[nodiscard]] QString speedText() const; ///< "997", or the word for a fan that stands
    [[nodiscard]] QString dutyText() const;  ///< "44 % of full speed"; empty when it is not known
    [[nodiscard]] QString readoutText() const override;
    [[nodiscard]] std::optional<double> readoutValue() const override { return rpm_; }
    [[nodiscard]] std::pair<double, double> readoutRange() const override { return {0.0, 100.0}; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    [[nodiscard]] bool stands() const { return rpm_ && qRound(*rpm_) == 0; }
    void paintFigure(QPainter &painter, const QRectF &place, const QString &caption, const QString &figure,
                     const QString &unit) const;

    std::optional<double> rpm_;
    std::optional<double> duty_;
    std::optional<double> celsius_;
};

} // namespace zpsg::ui
