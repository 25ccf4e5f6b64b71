// The state of the connection, and what to do about it when it is not well.
#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;
class QPushButton;

namespace zpsg::psu {
enum class LinkState;
}

namespace zpsg::ui {

/// A quiet line while the supply answers, a card with an explanation otherwise. Says so, whatever the state,
/// when the supply is a simulated one.
class ConnectionBanner : public QWidget {
    Q_OBJECT

public:
    explicit ConnectionBanner(QWidget *parent = nullptr);

    void showState(psu::LinkState state, const QString &modelText);
    void setDemo(bool demo);
    /// The command that gives this user access; shown while access is denied. Empty: no command is shown.
    void setRemedy(const QString &command);

    /// All that is said now, for assistive programs and reports.
    [[nodiscard]] QString spokenText() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    class Sign;
    void layOut();
    void applyScale();
    void update();
    void copyRemedy();

    psu::LinkState state_{}; ///< no device until told otherwise
    QString modelText_;
    QString remedyCommand_;
    Sign *sign_;
    QLabel *headline_;
    QLabel *detail_;
    QLabel *demo_;
    QWidget *command_; ///< holds the remedy and its button
    QLabel *remedy_;
    QPushButton *copy_;
    qreal scale_ = 0.0; ///< of the window, as applied
    QTimer copied_;     ///< runs while the button confirms
};

} // namespace zpsg::ui
