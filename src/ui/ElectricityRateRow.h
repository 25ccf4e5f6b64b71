// One period of the rate's dialog: its days, from when to when, what a kWh costs then, and what is wrong.
#pragma once

#include "power/Tariff.h"

#include <QWidget>

#include <array>
#include <optional>
#include <vector>

class QBoxLayout;
class QLabel;

namespace zpsg::ui {

class ElectricityRateDays;
class ElectricityRateEntry;
class ElectricityRatePrice;
class ElectricityRateTime;
class TitleButton;
class UpDownButton;

class ElectricityRateRow final : public QWidget {
    Q_OBJECT

public:
    explicit ElectricityRateRow(QWidget *parent);

    void setPeriod(const power::TariffPeriod &period);
    /// A period that the user has still to complete: without a price.
    void setDraft();
    /// Nothing while something is wrong with it.
    [[nodiscard]] std::optional<power::TariffPeriod> period() const;
    /// Shows what is wrong, and returns the first entry that is; null while all is well.
    QWidget *complain();
    /// Where it stands, counted from 0.
    void setPlace(int place);

    void retranslate();
    void applyScale(qreal scale);
    /// Where each column begins, for the heads above the rows: days, from, to, price.
    [[nodiscard]] std::array<int, 4> columns() const;
    /// All that takes the focus, in the order of the Tab key.
    [[nodiscard]] std::vector<QWidget *> stops() const;
    [[nodiscard]] QWidget *upButton() const;
    [[nodiscard]] QWidget *removeButton() const;

signals:
    void changed();
    /// What is wrong with it takes a line, or takes none any more.
    void heightChanged();
    void upRequested();
    void removeRequested();

private:
    void entryChanged();
    void showMessage();
    [[nodiscard]] std::array<ElectricityRateEntry *, 3> entries() const;

    ElectricityRateDays *days_;
    ElectricityRateTime *from_;
    QLabel *dash_;
    ElectricityRateTime *to_;
    QLabel *nextDay_;
    ElectricityRatePrice *price_;
    UpDownButton *up_;
    TitleButton *remove_;
    QLabel *message_;
    QBoxLayout *line_ = nullptr;
    int place_ = 0;
    bool daysMissing_ = false; ///< and it is to be said
};

} // namespace zpsg::ui
