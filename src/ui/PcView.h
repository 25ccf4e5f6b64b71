// What the PC's own sensors say: processor at the left, graphics card at the right.
#pragma once

#include "sensors/PcReading.h"
#include "ui/TrendView.h"

#include <array>

class QBoxLayout;
class QLabel;
class QPushButton;

namespace zpsg::ui {

/// Until reading is switched on, and while nothing can be read, words stand in the figures' place. Another
/// unit of temperature is taken with the next reading or LanguageChange.
class PcView final : public TrendView {
    Q_OBJECT

public:
    explicit PcView(QWidget *parent = nullptr);

    /// Whether the sensors are read.
    void setEnabledState(bool reading);
    void showReading(const sensors::PcReading &reading);
    /// What to install so that there is something to read; shown while a reading has nothing.
    void setProblem(const QString &whatToInstall);

    [[nodiscard]] QString captionText() const override;
    [[nodiscard]] QString summaryText() const override { return {}; }
    /// Every figure, or the words that stand there instead.
    [[nodiscard]] QString readoutText() const override;
    /// The processor's temperature, in the unit that is chosen for the program.
    [[nodiscard]] std::optional<double> readoutValue() const override;
    [[nodiscard]] std::pair<double, double> readoutRange() const override;

    [[nodiscard]] QSize minimumSizeHint() const override { return {480, 112}; }

signals:
    /// The user wants the sensors to be read.
    void enableRequested();

protected:
    void retranslate() override;
    void replot() override {} // all of it is painted
    void layOut(qreal scale) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// What it is, its model, and its figures without their units.
    struct Half {
        QString kind, name;
        QString degrees, watts, volts, amps;
        bool operator==(const Half &) const = default;
    };
    enum class State { Off, Waiting, Nothing, Figures };

    [[nodiscard]] State state() const;
    [[nodiscard]] std::array<Half, 2> halvesNow() const;
    void showState();
    void paintHalf(QPainter &painter, const QRectF &place, const Half &half) const;

    bool reading_ = false;
    std::optional<sensors::PcReading> last_; ///< nothing since reading was switched on
    QString problem_;
    std::array<Half, 2> halves_;
    QWidget *words_;
    QLabel *title_;
    QLabel *text_;
    QPushButton *enable_;
    QBoxLayout *column_ = nullptr;
};

} // namespace zpsg::ui
