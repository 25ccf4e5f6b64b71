// A connection to one of the system's message buses.
#pragma once

#include <functional>
#include <memory>
#include <QSocketNotifier>
#include <QTimer>
#include <systemd/sd-bus.h>
#include <systemd/sd-event.h>

namespace zpsg::platform {

/// Lives on the event loop of the thread that made it. Nothing here waits, not even for a bus that hangs:
/// connecting, calls and answers are events. Connects again by itself, every few seconds. The functions it is
/// given run inside its own processing: they must not destroy it.
class Bus {
public:
    enum class Which { System, Session };
    /// A signal, or the answer to a call; null when the call failed.
    using Receiver = std::function<void(sd_bus_message *)>;

    /// `opened` is for subscribing and calling, from the event loop, each time there is a connection; `lost`
    /// is called when it has ended.
    Bus(Which which, std::function<void()> opened, std::function<void()> lost);

    /// Until the connection ends. `match` as the bus's own match rules have it.
    void subscribe(const char *match, Receiver receiver);

    /// `types` and `values` as the library's functions take them.
    template <class... Values>
    void call(const char *service, const char *path, const char *interface, const char *method,
              Receiver receiver, const char *types, Values... values) {
        sd_bus_slot *slot = nullptr;
        auto owned = std::make_unique<Receiver>(std::move(receiver));
        const int result = sd_bus_call_method_async(bus_.get(), &slot, service, path, interface, method,
                                                    answer, owned.get(), types, values...);
        keep(result, slot, std::move(owned));
    }

private:
    struct Release {
        void operator()(sd_bus *bus) const { sd_bus_close_unref(bus); }
        void operator()(sd_event *event) const { sd_event_unref(event); }
    };

    static int answer(sd_bus_message *message, void *receiver, sd_bus_error *error);
    void keep(int result, sd_bus_slot *slot, std::unique_ptr<Receiver> receiver);
    void open();
    void process();

    const Which which_;
    const std::function<void()> opened_;
    const std::function<void()> lost_;
    std::unique_ptr<sd_event, Release> event_; // gathers the connection's descriptors and timeouts into one
    std::unique_ptr<sd_bus, Release> bus_;
    std::unique_ptr<QSocketNotifier> readable_;
    QTimer due_;   // what was called outside of process() is to be sent
    QTimer retry_; // also of the first time
    bool over_ = false;
};

} // namespace zpsg::platform
