#include "platform/PowerAction.h"

#include "platform/linux/Log.h"

#include <chrono>
#include <cstring>
#include <memory>
#include <optional>
#include <systemd/sd-bus.h>

namespace zpsg::platform {
namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto kPatience = 200ms;

struct Close {
    void operator()(sd_bus *bus) const { sd_bus_close_unref(bus); }
};
using Connection = std::unique_ptr<sd_bus, Close>;

const char *methodOf(PowerAction action) {
    switch (action) {
    case PowerAction::Restart:
        return "Reboot";
    case PowerAction::Sleep:
        return "Suspend";
    case PowerAction::Shutdown:
        break;
    }
    return "PowerOff";
}

/// Empty: agreed.
using Answer = std::optional<std::string>;

int takeAnswer(sd_bus_message *message, void *answer, sd_bus_error * /*error*/) {
    const sd_bus_error *refusal = sd_bus_message_get_error(message);
    *static_cast<Answer *>(answer) = refusal == nullptr            ? ""
                                     : refusal->message != nullptr ? refusal->message
                                                                   : refusal->name;
    return 0;
}

/// Until there is an answer or the time is up; below zero, a negative error number, when the connection
/// broke.
int serve(sd_bus *bus, const Answer &answer, Clock::time_point end) {
    while (!answer) {
        const int done = sd_bus_process(bus, nullptr);
        if (done < 0) {
            return done;
        }
        const auto left = std::chrono::duration_cast<std::chrono::microseconds>(end - Clock::now());
        if (left <= 0us) {
            return 0;
        }
        if (done == 0) {
            const int waited = sd_bus_wait(bus, static_cast<std::uint64_t>(left.count()));
            if (waited < 0 && waited != -EINTR) {
                return waited;
            }
        }
    }
    return 0;
}

} // namespace

bool requestPower(PowerAction action, std::string &error) {
    const auto end = Clock::now() + kPatience;
    sd_bus *opened = nullptr;
    int result = sd_bus_open_system(&opened); // connects while it is served
    Connection bus(opened);
    Answer answer;
    sd_bus_slot *slot = nullptr;
    if (result >= 0) {
        result = sd_bus_call_method_async(opened, &slot, "org.freedesktop.login1", "/org/freedesktop/login1",
                                          "org.freedesktop.login1.Manager", methodOf(action), takeAnswer,
                                          &answer, "b", 0); // not interactive: nobody need sit there
    }
    const std::unique_ptr<sd_bus_slot, decltype(&sd_bus_slot_unref)> owned(slot, sd_bus_slot_unref);
    if (result >= 0) {
        result = serve(opened, answer, end);
    }
    if (result >= 0 && !answer && sd_bus_is_ready(opened) <= 0) {
        result = -ETIMEDOUT; // closed with the request unsent, so it can't come true later
    }
    if (result < 0) {
        error = std::string("no message bus: ") + std::strerror(-result);
        return false;
    }
    if (!answer) {
        // Whoever checks our rights looks for the one who asked, so the connection must not end yet.
        qCDebug(lcPlatform, "the login service takes its time over %s", methodOf(action));
        static Connection waiting;
        waiting = std::move(bus);
        return true;
    }
    error = *answer;
    return error.empty();
}

} // namespace zpsg::platform
