// A gauge with an arc of 270 degrees on a card: caption, figure, unit, and a short note in the arc's opening.
#pragma once

#include "ui/Readout.h"

#include <QPixmap>
#include <QVariantAnimation>

namespace zpsg::ui {

/// The arc glides to a new value in 300 ms; the figure is the new value's at once. Nothing runs and nothing
/// is painted while the rounded value stands still.
class ArcGauge : public Readout {
    Q_OBJECT

public:
    /// The hero has labelled divisions and a bright arc; the others name only the ends.
    enum class Prominence { Hero, Normal };

    struct Scale {
        double from = 0.0;
        double to = 100.0;
        int divisions = 4;
        /// Places after the point of the figure.
        int decimals = 0;
    };

    explicit ArcGauge(Prominence prominence, QWidget *parent = nullptr);

    void setCaption(const QString &caption);
    void setUnit(const QString &unit);
    void setScale(const Scale &scale);
    /// From this value on the arc takes the caution colour and the note starts with a warning sign; `note` is
    /// shown then unless it is empty.
    void setCaution(double from, const QString &note);
    void setNote(const QString &note);

    void showValue(double value);
    /// No value: an en dash and an empty arc.
    void clear();
    /// A stale value is one that was good and may no longer be true: shown in grey.
    void setStale(bool stale);

    [[nodiscard]] bool isAnimating() const { return glide_.state() == QAbstractAnimation::Running; }
    /// The figure as shown.
    [[nodiscard]] QString valueText() const { return figure_; }
    [[nodiscard]] QString noteText() const;

    [[nodiscard]] QString readoutText() const override;
    [[nodiscard]] std::optional<double> readoutValue() const override { return value_; }
    [[nodiscard]] std::pair<double, double> readoutRange() const override { return {scale_.from, scale_.to}; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    /// Where things are, in the widget's coordinates.
    struct Face {
        qreal enlargement = 1.0;
        QPointF centre;
        qreal radius = 0.0;
        qreal stroke = 0.0;
        [[nodiscard]] QRectF ring() const {
            return {centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius};
        }
    };

    [[nodiscard]] double share(double value) const;
    [[nodiscard]] bool cautious() const { return value_ && cautionFrom_ && *value_ >= *cautionFrom_; }
    [[nodiscard]] Face layOut() const;
    void moveArcTo(double share);
    void refresh();
    void paintBackground(QPainter &painter) const;
    /// Those at the arc's ends only where they leave room for the note.
    void paintDivisions(QPainter &painter, const QRectF &note) const;
    void paintTicks(QPainter &painter) const;
    void paintArc(QPainter &painter) const;
    void paintTexts(QPainter &painter) const;
    void paintCaption(QPainter &painter) const;
    void paintFigure(QPainter &painter) const;
    /// Middle of the labels' line below the arc's ends.
    [[nodiscard]] qreal endLabelMiddle() const;
    /// Where it stands; empty without one.
    QRectF paintNote(QPainter &painter) const;

    Prominence prominence_;
    QString caption_;
    QString unit_;
    QString note_;
    QString cautionNote_;
    QString figure_;
    Scale scale_;
    std::optional<double> cautionFrom_;
    std::optional<double> value_;
    bool stale_ = false;
    double shown_ = 0.0; ///< share of the arc that is painted, 0 to 1
    Face face_;
    QPixmap background_; ///< null when it has to be painted anew
    QVariantAnimation glide_;
};

} // namespace zpsg::ui
