#include "ui/PowerCountdown.h"

#include "UiFixture.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <array>

namespace zpsg::ui::test {
namespace {

using namespace std::chrono_literals;
using Action = PowerCountdown::Action;

class PowerCountdownTest : public UiTest {
protected:
    PowerCountdownTest() { begin(Action::Shutdown); }
    void begin(Action action) {
        now_ = PowerCountdown::Clock::time_point(1h);
        countdown_ = std::make_unique<PowerCountdown>(action, [this] { return now_; });
        confirmed_ = std::make_unique<QSignalSpy>(countdown_.get(), &PowerCountdown::confirmed);
        cancelled_ = std::make_unique<QSignalSpy>(countdown_.get(), &PowerCountdown::cancelled);
        countdown_->begin();
        EXPECT_TRUE(QTest::qWaitForWindowActive(countdown_.get()));
    }
    void pass(std::chrono::milliseconds time) {
        now_ += time;
        countdown_->tick();
    }
    [[nodiscard]] QPushButton *button(const char *name) const {
        return countdown_->findChild<QPushButton *>(QLatin1String(name));
    }
    void expectOver(int confirmations) {
        EXPECT_EQ(confirmed_->count(), confirmations);
        EXPECT_EQ(cancelled_->count(), 1 - confirmations);
        EXPECT_FALSE(countdown_->isVisible());
        pass(2min); // it says so once
        EXPECT_EQ(confirmed_->count() + cancelled_->count(), 1);
    }

    PowerCountdown::Clock::time_point now_;
    std::unique_ptr<PowerCountdown> countdown_;
    std::unique_ptr<QSignalSpy> confirmed_;
    std::unique_ptr<QSignalSpy> cancelled_;
};

TEST_F(PowerCountdownTest, CountsAMinuteByTheClockAndConfirms) {
    EXPECT_EQ(countdown_->secondsLeft(), 60);
    pass(1ms);
    EXPECT_EQ(countdown_->secondsLeft(), 60) << "a second that has begun";
    pass(58999ms);
    EXPECT_EQ(countdown_->secondsLeft(), 1);
    pass(999ms);
    EXPECT_EQ(confirmed_->count(), 0);
    EXPECT_TRUE(countdown_->isVisible());
    pass(1ms);
    EXPECT_EQ(countdown_->secondsLeft(), 0);
    expectOver(1);
}

TEST_F(PowerCountdownTest, ALateLookAtTheClockConfirmsOnce) {
    pass(10min);
    expectOver(1);
}

TEST_F(PowerCountdownTest, EveryWayOfDismissingItCancels) {
    const std::array<std::function<void()>, 5> ways{
        [this] { QTest::keyClick(countdown_.get(), Qt::Key_Escape); },
        [this] { QTest::keyClick(countdown_.get(), Qt::Key_Return); },
        [this] { QTest::keyClick(countdown_->focusWidget(), Qt::Key_Space); },
        [this] { QTest::mouseClick(button("btnPowerCancel"), Qt::LeftButton); },
        [this] { countdown_->close(); },
    };
    for (const auto &dismiss : ways) {
        begin(Action::Restart);
        pass(30s);
        dismiss();
        expectOver(0);
    }
}

TEST_F(PowerCountdownTest, DoesItNowWhenTold) {
    for (const auto &[action, title, now] :
         {std::tuple{Action::Shutdown, "The PC is about to shut down", "Shut down now"},
          std::tuple{Action::Restart, "The PC is about to restart", "Restart now"},
          std::tuple{Action::Sleep, "The PC is about to sleep", "Sleep now"}}) {
        begin(action);
        EXPECT_EQ(countdown_->windowTitle(), QLatin1String(title));
        EXPECT_EQ(button("btnPowerNow")->text(), QLatin1String(now));
        QTest::mouseClick(button("btnPowerNow"), Qt::LeftButton);
        expectOver(1);
    }
}

TEST_F(PowerCountdownTest, StandsAboveOtherWindowsHoldsUpNoneAndEndsNoProgram) {
    EXPECT_TRUE(countdown_->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(countdown_->parentWidget(), nullptr) << "a hidden parent would hide it";
    EXPECT_FALSE(countdown_->isModal());
    const QSignalSpy lastClosed(qApp, &QGuiApplication::lastWindowClosed);
    // The signal comes in a running event loop only.
    QObject::connect(countdown_.get(), &PowerCountdown::cancelled, qApp, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    QTimer::singleShot(0, countdown_.get(), &QWidget::close);
    QCoreApplication::exec();
    EXPECT_EQ(lastClosed.count(), 0);
}

} // namespace
} // namespace zpsg::ui::test
