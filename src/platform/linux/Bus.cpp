#include "platform/linux/Bus.h"

#include "platform/linux/Log.h"

#include <chrono>
#include <cstring>

namespace zpsg::platform {
namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds kRetry = 3s;

} // namespace

Bus::Bus(Which which, std::function<void()> opened, std::function<void()> lost)
    : which_(which), opened_(std::move(opened)), lost_(std::move(lost)) {
    sd_event *event = nullptr;
    const int result = sd_event_new(&event);
    event_.reset(event);
    if (result < 0) {
        qCWarning(lcPlatform, "no message bus: %s", std::strerror(-result));
        return;
    }
    readable_ = std::make_unique<QSocketNotifier>(sd_event_get_fd(event), QSocketNotifier::Read);
    QObject::connect(readable_.get(), &QSocketNotifier::activated, &due_, [this] { process(); });
    due_.setSingleShot(true);
    QObject::connect(&due_, &QTimer::timeout, &due_, [this] { process(); });
    retry_.setSingleShot(true);
    QObject::connect(&retry_, &QTimer::timeout, &retry_, [this] { open(); });
    retry_.start(0ms);
}

void Bus::open() {
    sd_bus *bus = nullptr;
    int result = which_ == Which::System ? sd_bus_open_system(&bus) : sd_bus_open_user(&bus);
    bus_.reset(bus);
    if (result >= 0) {
        result = sd_bus_attach_event(bus, event_.get(), SD_EVENT_PRIORITY_NORMAL);
    }
    if (result < 0) {
        qCDebug(lcPlatform, "no message bus: %s", std::strerror(-result));
        bus_.reset();
        retry_.start(kRetry);
        return;
    }
    // Made up by the library itself.
    subscribe("type='signal',sender='org.freedesktop.DBus.Local',path='/org/freedesktop/DBus/Local',"
              "interface='org.freedesktop.DBus.Local',member='Disconnected'",
              [this](sd_bus_message *) { over_ = true; });
    opened_();
}

void Bus::process() {
    int result = 1;
    while (result > 0 && !over_) {
        result = sd_event_run(event_.get(), 0);
    }
    if (bus_ && (over_ || result < 0)) {
        over_ = false;
        bus_.reset();
        retry_.start(kRetry);
        lost_();
    }
}

void Bus::subscribe(const char *match, Receiver receiver) {
    sd_bus_slot *slot = nullptr;
    auto owned = std::make_unique<Receiver>(std::move(receiver));
    // A bus that refuses ends the connection: without the subscription it would be of no use.
    const int result = sd_bus_add_match_async(bus_.get(), &slot, match, answer, nullptr, owned.get());
    keep(result, slot, std::move(owned));
}

int Bus::answer(sd_bus_message *message, void *receiver, sd_bus_error * /*error*/) {
    const bool failed = sd_bus_message_is_method_error(message, nullptr) > 0;
    if (failed) {
        const sd_bus_error *reason = sd_bus_message_get_error(message);
        qCDebug(lcPlatform, "message bus: %s", reason->message != nullptr ? reason->message : reason->name);
    }
    (*static_cast<Receiver *>(receiver))(failed ? nullptr : message);
    return 0;
}

// The receiver belongs to the slot, and the slot to the connection.
void Bus::keep(int result, sd_bus_slot *slot, std::unique_ptr<Receiver> receiver) {
    if (result < 0) {
        qCDebug(lcPlatform, "message bus: %s", std::strerror(-result));
        return;
    }
    sd_bus_slot_set_destroy_callback(slot, [](void *owned) { delete static_cast<Receiver *>(owned); });
    static_cast<void>(receiver.release());
    sd_bus_slot_set_floating(slot, 1);
    sd_bus_slot_unref(slot);
    due_.start(0ms);
}

} // namespace zpsg::platform
