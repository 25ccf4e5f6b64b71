// The currency of the electricity's price: a list of codes that takes another one as well.
#pragma once

#include <QComboBox>

namespace zpsg::ui {

class ElectricityRateCurrency final : public QComboBox {
    Q_OBJECT

public:
    explicit ElectricityRateCurrency(QWidget *parent);

    /// Fills the list anew, as the language may be another one. An empty code is the country's own.
    void setCode(const QString &code);
    /// ISO 4217, in capitals; empty while it is faulty.
    [[nodiscard]] QString code() const;
    /// What is wrong, in words; empty while nothing is.
    [[nodiscard]] QString fault() const;
    void applyScale(qreal scale);

signals:
    void changed();

protected:
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
};

} // namespace zpsg::ui
