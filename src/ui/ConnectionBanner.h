// The state of the connection, what to do about it when it is not well, and the way into and out of the demo.
#pragma once

#include <QTimer>
#include <QWidget>

class QBoxLayout;
class QLabel;
class QPushButton;

namespace zpsg::psu {
enum class LinkState;
}

namespace zpsg::ui {

/// The state in a few words.
[[nodiscard]] QString linkHeadline(psu::LinkState state);

/// The head of the dashboard while the supply answers: its model. A card with an explanation otherwise. Says
/// so, whatever the state, when the supply is a simulated one.
///
/// It is as high as the highest of its states, so that nothing below it moves when a supply comes or goes.
/// Only a remedy needs more room, and where there is too little for all of the page a supply that is well
/// takes a line.
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

    [[nodiscard]] QSize sizeHint() const override;

signals:
    /// The user wants to see the program with a simulated supply; offered while none can be reached.
    void demoRequested();
    /// The user has seen enough of the simulated supply.
    void demoEndRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    class Sign;
    void layOut();
    void applyScale();
    void update();
    void showWords();
    void reserve();
    [[nodiscard]] int heightOf(psu::LinkState state) const;
    void copyRemedy();

    psu::LinkState state_{}; ///< no device until told otherwise
    bool isDemo_ = false;
    QString modelText_;
    QString remedyCommand_;
    Sign *sign_; ///< small while all is well
    QLabel *headline_;
    QLabel *detail_;
    QLabel *demo_;
    QPushButton *look_;
    QPushButton *leave_;
    QWidget *command_; ///< holds the remedy and its button
    QLabel *remedy_;
    QPushButton *copy_;
    QBoxLayout *row_ = nullptr;
    QBoxLayout *words_ = nullptr;
    qreal scale_ = 0.0; ///< of the window, as applied
    int reserved_ = 0;  ///< height of the highest state
    QTimer copied_;     ///< runs while the button confirms
};

} // namespace zpsg::ui
