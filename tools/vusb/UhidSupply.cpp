#include "vusb/UhidSupply.h"

#include "vusb/Descriptor.h"
#include "vusb/UhidEvents.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <deque>
#include <fcntl.h>
#include <linux/uhid.h>
#include <poll.h>
#include <span>
#include <sys/eventfd.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace zpsg::vusb {
namespace {

using Clock = std::chrono::steady_clock;
using simulator::Answer;
using simulator::Fault;
using simulator::SupplyModel;

std::string openError(const std::string &path, int error) {
    std::string text = path + ": " + std::generic_category().message(error);
    if (error == ENOENT || error == ENODEV) {
        text += " (load the kernel module uhid: modprobe uhid)";
    } else if (error == EACCES || error == EPERM) {
        text += " (only root may make devices; a rule for udev can change that)";
    }
    return text;
}

} // namespace

/// One plug-in: the open node and the thread that serves it.
class UhidSupply::Connection {
public:
    /// Throws nothing; check error().
    Connection(UhidSupply &supply, Product product, InputLength length)
        : supply_(supply)
        , product_(product)
        , uhid_(open(supply.devicePath_.c_str(), O_RDWR | O_CLOEXEC | O_NONBLOCK)) {
        if (uhid_.get() < 0) {
            error_ = openError(supply.devicePath_, errno);
            return;
        }
        if (stop_.get() < 0 || !tell(uhid_.get(), creationEvent(product, length))) {
            error_ = "the kernel takes no device: " + std::generic_category().message(errno);
            return;
        }
        thread_ = std::thread([this] { serve(); });
    }

    ~Connection() {
        if (thread_.joinable()) {
            eventfd_write(stop_.get(), 1);
            thread_.join();
            tell(uhid_.get(), destructionEvent());
        }
        supply_.inUse_ = false;
    }

    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    [[nodiscard]] const std::string &error() const { return error_; }
    [[nodiscard]] Product product() const { return product_; }

private:
    struct Pending {
        uhid_event event;
        Clock::time_point due;
    };

    void serve() {
        while (true) {
            std::array<pollfd, 2> waits{pollfd{uhid_.get(), POLLIN, 0}, pollfd{stop_.get(), POLLIN, 0}};
            if (poll(waits.data(), waits.size(), waitMilliseconds()) < 0 && errno != EINTR) {
                return;
            }
            if (waits[1].revents != 0 || (waits[0].revents & (POLLERR | POLLHUP | POLLNVAL)) != 0) {
                return;
            }
            uhid_event event{};
            if ((waits[0].revents & POLLIN) != 0 && read(uhid_.get(), &event, sizeof event) > 0) {
                handle(event);
            }
            sendDue();
        }
    }

    /// Until the next answer is due; -1 when none is.
    [[nodiscard]] int waitMilliseconds() const {
        if (pending_.empty()) {
            return -1;
        }
        const auto wait = std::chrono::ceil<std::chrono::milliseconds>(pending_.front().due - Clock::now());
        return static_cast<int>(std::max<std::chrono::milliseconds::rep>(wait.count(), 0));
    }

    /// Answers leave in the order of their questions, as from a device that does one thing at a time.
    void sendDue() {
        while (!pending_.empty() && pending_.front().due <= Clock::now()) {
            tell(uhid_.get(), pending_.front().event);
            pending_.pop_front();
        }
    }

    void later(const uhid_event &event, std::chrono::milliseconds delay = {}) {
        pending_.push_back({event, Clock::now() + delay});
    }

    void handle(const uhid_event &event) {
        switch (event.type) {
        case UHID_OPEN:
            supply_.inUse_ = true;
            break;
        case UHID_CLOSE:
        case UHID_STOP:
            supply_.inUse_ = false;
            break;
        case UHID_OUTPUT:
            if (event.u.output.rtype == UHID_OUTPUT_REPORT) {
                takeOutput({event.u.output.data, event.u.output.size});
            }
            break;
        case UHID_SET_REPORT: {
            const auto &request = event.u.set_report;
            const bool taken =
                request.rtype == UHID_OUTPUT_REPORT && takeOutput({request.data, request.size});
            later(setReportReply(request.id, taken ? 0 : EIO));
            break;
        }
        case UHID_GET_REPORT:
            giveReport(event.u.get_report);
            break;
        default: // UHID_START says nothing that matters here
            break;
        }
    }

    /// `report` begins with its id, 0x00 on the main path.
    bool takeOutput(std::span<const std::uint8_t> report) {
        const std::lock_guard lock(supply_.modelMutex_);
        if (product_ == Product::Raw) {
            return supply_.model_.rawOutput(report);
        }
        if (const auto answer = supply_.model_.output(report)) {
            later(inputEvent(answer->bytes), answer->delay);
        }
        return true;
    }

    void giveReport(const uhid_get_report_req &request) {
        std::optional<Answer> answer;
        bool silent = false;
        {
            const std::lock_guard lock(supply_.modelMutex_);
            silent = supply_.model_.fault() == Fault::Silent;
            if (product_ == Product::Raw && request.rtype == UHID_INPUT_REPORT) {
                answer = supply_.model_.inputReport(request.rnum);
            }
        }
        if (answer) {
            later(getReportReply(request.id, 0, answer->bytes), answer->delay);
        } else if (!silent) {
            later(getReportReply(request.id, EIO));
        } // else the kernel gives up after its five seconds, as with a device that hangs
    }

    UhidSupply &supply_;
    const Product product_;
    Descriptor uhid_;
    Descriptor stop_{eventfd(0, EFD_CLOEXEC)};
    std::string error_;
    std::deque<Pending> pending_;
    std::thread thread_;
};

UhidSupply::UhidSupply(SupplyModel model, std::string devicePath)
    : devicePath_(std::move(devicePath)), model_(std::move(model)) {}

UhidSupply::~UhidSupply() { unplug(); }

std::optional<std::string> UhidSupply::plug(Product product, InputLength length) {
    const std::lock_guard lock(plugMutex_);
    connection_.reset();
    auto connection = std::make_unique<Connection>(*this, product, length);
    if (!connection->error().empty()) {
        return connection->error();
    }
    connection_ = std::move(connection);
    return std::nullopt;
}

void UhidSupply::unplug() {
    const std::lock_guard lock(plugMutex_);
    connection_.reset();
}

std::optional<Product> UhidSupply::plugged() const {
    const std::lock_guard lock(plugMutex_);
    return connection_ ? std::optional(connection_->product()) : std::nullopt;
}

void UhidSupply::withModel(const std::function<void(SupplyModel &)> &action) {
    const std::lock_guard lock(modelMutex_);
    action(model_);
}

} // namespace zpsg::vusb
