// The pop-up in which the user says what a kilowatt-hour costs, and when it costs something else.
#pragma once

#include "power/Tariff.h"

#include <QWidget>

class QBoxLayout;
class QLabel;
class QPushButton;

namespace zpsg::ui {

class ElectricityRateCurrency;
class ElectricityRateList;
class ElectricityRatePrice;
class ElectricityRateWeek;
class FanOverlay;
class TitleButton;

/// A child that covers its parent while it is open. Enter and "Save" take everything, once nothing is wrong
/// with it; Escape, "Cancel" and the close button leave everything as it was. A press beside the card does
/// nothing: it would throw away what was typed.
class ElectricityRateWidget final : public QWidget {
    Q_OBJECT

public:
    explicit ElectricityRateWidget(QWidget *parent = nullptr);

    /// With what applies now: the price is the tariff's base rate, 0 for none. `currency`: an ISO 4217 code,
    /// empty for the country's.
    void open(const power::Tariff &tariff, const QString &currency);

signals:
    // On saving, and only for what is another one than it was on opening.
    /// Money for a kWh outside all periods; 0 when the user has emptied the entry.
    void rateConfirmed(float rate);
    /// An ISO 4217 code.
    void currencyChosen(const QString &code);
    /// A text for power::parseTariff().
    void periodsConfirmed(const QString &periods);

public slots:
    /// Hides the pop-up; nothing is taken.
    void closeSelf();
    void save();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void layOut();
    void retranslate();
    void applyScale(qreal scale);
    void place();
    void showFaults();
    void showWeek();
    void showRows();
    [[nodiscard]] power::Tariff entered() const;

    power::Tariff opened_;
    QString openedCurrency_;
    QWidget *card_;
    QLabel *title_;
    TitleButton *close_;
    QLabel *priceCaption_;
    ElectricityRatePrice *price_;
    ElectricityRateCurrency *currency_;
    QLabel *priceFault_;
    QWidget *rule_;
    QLabel *periodsCaption_;
    QPushButton *add_;
    QLabel *hint_;
    ElectricityRateList *list_;
    QWidget *week_; ///< its caption and what is below
    QLabel *weekCaption_;
    ElectricityRateWeek *strips_;
    QPushButton *cancel_;
    QPushButton *save_;
    FanOverlay *overlay_;
    QBoxLayout *head_ = nullptr;
    QBoxLayout *priceLine_ = nullptr;
    QBoxLayout *left_ = nullptr;
    QBoxLayout *body_ = nullptr;
    QBoxLayout *foot_ = nullptr;
    double shownRate_ = 0.0;
    bool currencyChecked_ = false; ///< what is wrong with it is to be said
};

} // namespace zpsg::ui
