// Stands in for the companion lighting application: holds its window title and prints every message that
// comes, one "NUMBER WPARAM LPARAM" a line.

#include "platform/WindowRendezvous.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const auto claim = zpsg::platform::TitleClaim::tryTake(zpsg::platform::kCompanionWindowTitle);
    if (!claim) {
        return 1;
    }
    claim->deliverTo([](const zpsg::platform::WindowMessage &message) {
        std::printf("%u %llu %lld\n", message.number, static_cast<unsigned long long>(message.wParam),
                    static_cast<long long>(message.lParam));
        std::fflush(stdout);
        return true;
    });
    std::puts("ready");
    std::fflush(stdout);
    return QCoreApplication::exec();
}
