// The pop-up in which the fan's custom speed is chosen.
#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace zpsg::ui {

class FanOverlay;
class LevelSlider;
class TitleButton;

/// A child that covers its parent while it is open. Enter confirms, once a number that is being typed has
/// been taken; Escape, the close button and a press beside the card leave everything as it was.
class CustomFanSpeedWidget final : public QWidget {
    Q_OBJECT

public:
    /// `fullRpm`: revolutions a minute at 100 %.
    explicit CustomFanSpeedWidget(float fullRpm, QWidget *parent = nullptr);

    void setFullRpm(float fullRpm);
    /// What the slider stands at, without a signal; put into fan::kLeastPercent to fan::kMostPercent.
    void setPercent(int percent);
    [[nodiscard]] int percent() const;
    void open();
    void applyScale(qreal scale);

signals:
    /// The user has confirmed this many percent of the full speed.
    void sentFanSpeed(int percent);

public slots:
    /// Shows the percentage and the speed that is expected with it.
    void brightChangeSlot(int percent);
    /// Hides the pop-up.
    void closeSelf();
    /// Sends the slider's value, and hides the pop-up.
    void checkValue();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void layOut();
    void retranslate();
    void place();
    /// Takes the number that is typed, put into the range; what is none gives way to the present one.
    void takeTyped();
    void returnTyped();

    float fullRpm_;
    QWidget *card_;
    QLabel *title_;
    TitleButton *close_;
    QLabel *percentLabel_;
    QLabel *percentSign_;
    QLabel *speedLabel_;
    QLabel *speedUnit_;
    LevelSlider *slider_;
    QLabel *least_;
    QLabel *most_;
    QLineEdit *edit_;
    QLabel *editUnit_;
    QPushButton *confirm_;
    FanOverlay *overlay_;
    QHBoxLayout *head_ = nullptr;
    bool returnTaken_ = false; ///< the press of Enter that is on its way has taken what was typed
};

} // namespace zpsg::ui
