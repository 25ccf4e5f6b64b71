#include "platform/linux/UdevWatch.h"

#include "platform/EventBurst.h"
#include "platform/linux/Log.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <libudev.h>
#include <QSocketNotifier>
#include <QTimer>
#include <unistd.h>

namespace zpsg::platform {
namespace {

// A docking station makes hundreds of events at once, up to 8 KiB each.
constexpr int kReceiveBuffer = 1024 * 1024;

struct Unref {
    void operator()(udev *context) const { udev_unref(context); }
    void operator()(udev_monitor *monitor) const { udev_monitor_unref(monitor); }
    void operator()(udev_device *device) const { udev_device_unref(device); }
};
using Context = std::unique_ptr<udev, Unref>;
using Monitor = std::unique_ptr<udev_monitor, Unref>;

class UdevWatch final : public DeviceWatch {
public:
    UdevWatch(Context context, Monitor monitor, MessageHandler handler)
        : context_(std::move(context))
        , monitor_(std::move(monitor))
        , handler_(std::move(handler))
        , readable_(udev_monitor_get_fd(monitor_.get()), QSocketNotifier::Read) {
        due_.setSingleShot(true);
        due_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&readable_, &QSocketNotifier::activated, &due_, [this] { drain(); });
        QObject::connect(&due_, &QTimer::timeout, &readable_, [this] { tell(); });
    }

private:
    void drain() {
        bool any = false;
        for (;;) {
            errno = 0;
            const std::unique_ptr<udev_device, Unref> device(udev_monitor_receive_device(monitor_.get()));
            // Events that the full buffer lost are events all the same.
            if (!device && errno != ENOBUFS) {
                break;
            }
            any = true;
        }
        if (any) {
            due_.start(burst_.note(EventBurst::Clock::now()));
        }
    }

    void tell() {
        burst_.told();
        const MessageHandler handler = handler_; // the handler may end the watch
        handler(WindowMessage{kDeviceChange, 0, 0});
    }

    Context context_;
    Monitor monitor_;
    MessageHandler handler_;
    EventBurst burst_;
    QTimer due_;
    QSocketNotifier readable_;
};

} // namespace

std::unique_ptr<DeviceWatch> startUdevWatch(const char *group, std::span<const DeviceFilter> filters,
                                            MessageHandler handler) {
    Context context(udev_new());
    Monitor monitor(context ? udev_monitor_new_from_netlink(context.get(), group) : nullptr);
    bool ready = monitor != nullptr;
    for (const DeviceFilter &filter : filters) {
        ready = ready && udev_monitor_filter_add_match_subsystem_devtype(monitor.get(), filter.subsystem,
                                                                         filter.type) >= 0;
    }
    if (ready) {
        udev_monitor_set_receive_buffer_size(monitor.get(), kReceiveBuffer); // the default will do otherwise
        ready = udev_monitor_enable_receiving(monitor.get()) >= 0;
    }
    if (!ready) {
        qCDebug(lcPlatform, "no notice of device changes: %s", std::strerror(errno));
        return nullptr;
    }
    return std::make_unique<UdevWatch>(std::move(context), std::move(monitor), std::move(handler));
}

std::unique_ptr<DeviceWatch> DeviceWatch::start(MessageHandler handler) {
    static constexpr std::array kFilters{DeviceFilter{"hidraw", nullptr}, DeviceFilter{"usb", "usb_device"}};
    // The daemon passes an event on once its rules have set the permissions of the node. Where there is none
    // (a container, a small system) the kernel's own events are all there is.
    const bool daemon = access("/run/udev/control", F_OK) == 0;
    return startUdevWatch(daemon ? "udev" : "kernel", kFilters, std::move(handler));
}

} // namespace zpsg::platform
