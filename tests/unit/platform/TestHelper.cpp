// platform_test_helper claim TITLE   reads the monotonic time in ns at which to claim; prints "won" or "lost"
// platform_test_helper send TITLE    sends a show request; prints the Delivery as a number
// platform_test_helper stuck         prints "asked" at the first exit request and never gets done with it
#include "platform/ExitRequest.h"
#include "platform/WindowRendezvous.h"

#include <chrono>
#include <iostream>
#include <QCoreApplication>
#include <string>
#include <unistd.h>

using namespace zpsg::platform;

namespace {

int claim(const std::string &title) {
    std::cout << "ready" << std::endl;
    long long at = 0;
    std::cin >> at;
    while (std::chrono::steady_clock::now().time_since_epoch() < std::chrono::nanoseconds(at)) {
    }
    const auto claim = TitleClaim::tryTake(title);
    std::cout << (claim ? "won" : "lost") << std::endl;
    std::cin.ignore();
    std::cin.get(); // until the test is over
    return 0;
}

int send(const std::string &title) {
    const auto delivery = sendToWindow(title, {kShowRequest, 0, 1}, std::chrono::seconds(30));
    std::cout << static_cast<int>(delivery) << std::endl;
    return 0;
}

int stuck(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    onExitRequest([] {
        std::cout << "asked" << std::endl;
        for (;;) {
            pause();
        }
    });
    std::cout << "ready" << std::endl;
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char **argv) {
    const std::string command = argc > 1 ? argv[1] : "";
    const std::string title = argc > 2 ? argv[2] : "";
    if (command == "claim") {
        return claim(title);
    }
    if (command == "send") {
        return send(title);
    }
    return command == "stuck" ? stuck(argc, argv) : 2;
}
