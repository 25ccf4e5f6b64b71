// The base of everything painted that shows a value: what it shows is there for assistive programs as well.
#pragma once

#include <QString>
#include <QWidget>

#include <optional>

namespace zpsg::ui {

class Readout : public QWidget {
    Q_OBJECT

public:
    explicit Readout(QWidget *parent = nullptr);

    /// What is shown, in words: figures with their unit, and the mark when there is one.
    [[nodiscard]] virtual QString readoutText() const = 0;
    /// The figure; nothing when none is shown.
    [[nodiscard]] virtual std::optional<double> readoutValue() const = 0;
    /// The least and the greatest figure that the widget can show.
    [[nodiscard]] virtual std::pair<double, double> readoutRange() const = 0;

protected:
    /// Tells assistive programs, if one listens, that the value has changed.
    void announce();
};

} // namespace zpsg::ui
