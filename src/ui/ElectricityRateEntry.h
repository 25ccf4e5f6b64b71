// The entries of the rate's dialog: a price and a time of day, each with a word on what is wrong with it.
#pragma once

#include <QLineEdit>

#include <optional>

namespace zpsg::ui {

/// Says what is wrong only once it has been left or is asked for: half a figure is no mistake yet.
class ElectricityRateEntry : public QLineEdit {
    Q_OBJECT

public:
    explicit ElectricityRateEntry(QWidget *parent);

    /// What is wrong, in words; empty while nothing is.
    [[nodiscard]] virtual QString fault() const = 0;
    /// The same, once it is to be shown.
    [[nodiscard]] QString shownFault() const;
    void showFault();
    virtual void applyScale(qreal scale) = 0;

signals:
    /// The user has changed the text, or what is wrong with it is shown now.
    void changed();

protected:
    /// Puts what was typed into the usual form.
    virtual void tidy() = 0;
    /// A text that the program has set has no fault to show.
    void setTidyText(const QString &text);
    void applyFont(qreal scale, int width);

private:
    void edited();
    void left();
    void showEdge();

    bool shown_ = false;
};

class ElectricityRatePrice final : public ElectricityRateEntry {
    Q_OBJECT

public:
    explicit ElectricityRatePrice(QWidget *parent) : ElectricityRateEntry(parent) {}

    /// `optional`: an empty entry is no fault, and means 0.
    void setOptional(bool optional) { optional_ = optional; }
    /// Nothing: empty.
    void setRate(std::optional<double> rate);
    /// As it was set, to the last digit, unless the text is another one since; nothing while it is faulty.
    [[nodiscard]] std::optional<double> rate() const;
    [[nodiscard]] QString fault() const override;
    void applyScale(qreal scale) override;

protected:
    void tidy() override;

private:
    bool optional_ = false;
    std::optional<double> given_;
};

/// A minute of the day as HH:mm. The arrow keys go by a quarter of an hour.
class ElectricityRateTime final : public ElectricityRateEntry {
    Q_OBJECT

public:
    /// `lastMinute`: 1439, or 1440 where 24:00 is a time.
    ElectricityRateTime(int lastMinute, QWidget *parent);

    void setMinute(int minute);
    /// Nothing while the text is no time.
    [[nodiscard]] std::optional<int> minute() const;
    [[nodiscard]] QString fault() const override;
    void applyScale(qreal scale) override;

protected:
    void tidy() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    int lastMinute_;
};

/// "HH:mm" of a minute of the day, 1440 as 24:00.
[[nodiscard]] QString minuteText(int minute);

} // namespace zpsg::ui
