// What a user waits for in the window: another page, until it is painted; another language.
//   bench_window [ROUNDS]

#include "app/CvZpsGV2.h"
#include "simulator/SimulatedBus.h"
#include "ui/MainView.h"

#include <QApplication>
#include <QMetaEnum>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace zpsg;
using Clock = std::chrono::steady_clock;
using Page = ui::MainView::Page;

namespace {

/// Until everything that the change has asked for is done, painting included.
void settle(QWidget &window) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    window.repaint();
}

template <typename Change>
double milliseconds(QWidget &window, Change change) {
    const auto begin = Clock::now();
    change();
    settle(window);
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

void report(const char *what, std::vector<double> &times) {
    std::sort(times.begin(), times.end());
    std::printf("%-12s median %6.1f ms, longest %6.1f ms\n", what, times[times.size() / 2], times.back());
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 50;
    const QTemporaryDir home;
    qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    const auto bus = simulator::SimulatedBus::create();
    bus->plug(simulator::SupplyModel("CVX-1000-D"));
    app::WindowParts parts{{QString(), QStringLiteral(ZPSG_RESOURCES), home.path()}, bus->backend()};
    parts.demo = true;
    parts.socketPort = 0;
    app::CvZpsGV2 window(std::move(parts));
    window.show();
    settle(window);
    const QMetaEnum pages = QMetaEnum::fromType<Page>();
    std::vector<std::vector<double>> times(static_cast<std::size_t>(pages.keyCount()));
    std::vector<double> languages;
    for (int round = 0; round < rounds; ++round) {
        for (int page = 0; page < pages.keyCount(); ++page) {
            times[static_cast<std::size_t>(page)].push_back(
                milliseconds(window, [&] { window.view().showPage(static_cast<Page>(page)); }));
        }
        languages.push_back(milliseconds(window, [&] { window.resetLanguage(); }));
    }
    for (int page = 0; page < pages.keyCount(); ++page) {
        report(pages.key(page), times[static_cast<std::size_t>(page)]);
    }
    report("language", languages);
    return 0;
}
