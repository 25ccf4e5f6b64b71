#include "app/StartUp.h"

#include "app/Backend.h"
#include "app/CvZpsGV2.h"
#include "app/Logging.h"
#include "platform/ExitRequest.h"
#include "platform/SystemMenu.h"
#include "platform/WindowRendezvous.h"
#include "ui/DashboardPage.h"
#include "ui/MainView.h"

#include <QApplication>
#include <QEvent>
#include <QProcess>
#include <QTimer>

#include <cstdio>

namespace zpsg::app {
namespace {

constexpr std::chrono::milliseconds kCompanionPatience(1000);
constexpr int kHideAfterMilliseconds = 600;

/// Sends the running instance the request to show itself.
int showOther() {
    using platform::Delivery;
    const auto delivery = platform::sendToWindow(platform::kMainWindowTitle, {platform::kShowRequest, 0, 1});
    if (delivery == Delivery::NotHandled) {
        std::fputs("zpsg: already running without a window (--headless)\n", stderr);
    } else if (delivery != Delivery::Handled) {
        std::fputs("zpsg: already running, but the other instance does not answer\n", stderr);
    }
    return kExitOk;
}

/// Says in a debug line when the first reading is painted: what the start-up benchmark waits for.
class FirstPaint : public QObject {
public:
    explicit FirstPaint(CvZpsGV2 &window) : QObject(&window), window_(window) {
        window.centralWidget()->installEventFilter(this);
    }

    ~FirstPaint() override {
        if (painted_) {
            qCDebug(lcApp) << "first reading on screen";
        }
    }
    FirstPaint(const FirstPaint &) = delete;
    FirstPaint &operator=(const FirstPaint &) = delete;

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::Paint && window_.monitor().hasReading()) {
            painted_ = true;
            deleteLater(); // once this event has been dealt with
        }
        return QObject::eventFilter(watched, event);
    }

private:
    CvZpsGV2 &window_;
    bool painted_ = false;
};

/// Runs the event loop with the window. True in `change` when the user wants to change between the supply and
/// a simulated one.
int runLoop(const CommandLine &line, const Paths &paths, std::unique_ptr<platform::TitleClaim> title,
            bool &change) {
    const auto clock = makeFastClock(line);
    WindowParts parts{paths, makeBackend(line, clock), line.demo};
    parts.fastClock = clock;
    parts.fastClockFactor = line.fastClock;
    CvZpsGV2 window(std::move(parts));
    if (lcApp().isDebugEnabled()) {
        new FirstPaint(window); // the window owns it
    }
    const auto leave = [&change] {
        change = true;
        QCoreApplication::quit();
    };
    QObject::connect(window.view().dashboard(), &ui::DashboardPage::demoRequested, &window, leave);
    QObject::connect(window.view().dashboard(), &ui::DashboardPage::demoEndRequested, &window, leave);
    window.show();
    window.setWindowTitle(QString::fromLatin1(platform::kMainWindowTitle));
    if (title) { // the system may have refused it; better a program that a second start can't find than none
        title->deliverTo(
            [&window](const platform::WindowMessage &message) { return window.windowMessage(message); });
    }
    if (line.startHidden) {
        QTimer::singleShot(kHideAfterMilliseconds, &window, SLOT(hide()));
    }
    platform::trimSystemMenu(platform::kMainWindowTitle);
    return QApplication::exec();
}

/// The program once more, with the other kind of supply. This one has given everything back by now.
void startOther(const CommandLine &line, const Paths &paths) {
    QStringList arguments;
    if (!line.demo) {
        arguments << QStringLiteral("--demo");
    }
    if (line.dataDir) {
        arguments << QStringLiteral("--data-dir") << *line.dataDir;
    }
    QProcess::startDetached(paths.executable, arguments);
}

} // namespace

int runWithWindow(const CommandLine &line, const Paths &paths) {
    // Before the single-instance check, so that a second instance sends it as well. A demo takes no device.
    if (!line.demo) {
        platform::sendToWindow(platform::kCompanionWindowTitle, {platform::kCompanionNotice, 0, 1},
                               kCompanionPatience);
    }
    if (platform::windowExists(platform::kMainWindowTitle)) {
        return showOther();
    }
    // Of several starts at the same moment all get here; one takes the title.
    auto title = platform::TitleClaim::tryTake(platform::kMainWindowTitle);
    if (!title && platform::windowExists(platform::kMainWindowTitle)) {
        return showOther();
    }

    QApplication::setQuitOnLastWindowClosed(false);
    platform::onExitRequest([] { QCoreApplication::quit(); });
    bool change = false;
    const int code = runLoop(line, paths, std::move(title), change);
    if (change) {
        startOther(line, paths);
    }
    return code;
}

} // namespace zpsg::app
