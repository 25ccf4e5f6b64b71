// The question before a remote command shuts the PC down: a minute to say no.
#pragma once

#include <QDialog>
#include <QTimer>

#include <chrono>
#include <functional>

class QLabel;
class QPushButton;

namespace zpsg::ui {

class CountdownRing;

/// A window of its own above all others, so that it is seen while the program's window is hidden in the tray,
/// and not modal. Escape, Enter and closing it all cancel. It hides itself with either signal.
class PowerCountdown final : public QDialog {
    Q_OBJECT

public:
    enum class Action { Shutdown, Restart, Sleep };
    using Clock = std::chrono::steady_clock;
    using Now = std::function<Clock::time_point()>;

    static constexpr int kSeconds = 60;

    explicit PowerCountdown(Action action, Now now = Clock::now);

    /// Shows it; the minute begins.
    void begin();
    /// Seconds, those that have begun counted as whole; 0 once it is over.
    [[nodiscard]] int secondsLeft() const;

public slots:
    /// Looks at the clock. Its own timer calls it while it is shown.
    void tick();

signals:
    /// The time is up, or the user doesn't want to wait for it.
    void confirmed();
    void cancelled();

protected:
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void layOut();
    void retranslate();

    const Action action_;
    const Now now_;
    Clock::time_point end_;
    CountdownRing *ring_;
    QLabel *title_;
    QLabel *words_;
    QPushButton *doNow_;
    QPushButton *cancel_;
    QTimer timer_;
};

} // namespace zpsg::ui
