#include "vusb/UhidEvents.h"

#include "vusb/ReportDescriptors.h"

#include <algorithm>
#include <cerrno>
#include <linux/input.h>
#include <string_view>
#include <unistd.h>

namespace zpsg::vusb {

uhid_event creationEvent(Product product, InputLength length) {
    const std::span<const std::uint8_t> descriptor =
        product == Product::Main ? std::span<const std::uint8_t>(kMainDescriptor) : kRawDescriptor;
    constexpr std::string_view kName = "ZPS G Digital Power Supply";
    uhid_event event{};
    event.type = UHID_CREATE2;
    auto &request = event.u.create2;
    std::copy(kName.begin(), kName.end(), request.name);
    std::copy(descriptor.begin(), descriptor.end(), request.rd_data);
    if (product == Product::Main && length == InputLength::Loose) {
        request.rd_data[kMainInputCount] = 1;
    }
    request.rd_size = static_cast<std::uint16_t>(descriptor.size());
    request.bus = BUS_USB;
    request.vendor = kVendorId;
    request.product = static_cast<std::uint16_t>(product);
    request.version = 0x0100;
    return event;
}

uhid_event destructionEvent() {
    uhid_event event{};
    event.type = UHID_DESTROY;
    return event;
}

uhid_event inputEvent(std::span<const std::uint8_t> bytes) {
    uhid_event event{};
    event.type = UHID_INPUT2;
    event.u.input2.size = static_cast<std::uint16_t>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), event.u.input2.data);
    return event;
}

uhid_event getReportReply(std::uint32_t id, int error, std::span<const std::uint8_t> bytes) {
    uhid_event event{};
    event.type = UHID_GET_REPORT_REPLY;
    auto &reply = event.u.get_report_reply;
    reply.id = id;
    reply.err = static_cast<std::uint16_t>(error);
    reply.size = static_cast<std::uint16_t>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), reply.data);
    return event;
}

uhid_event setReportReply(std::uint32_t id, int error) {
    uhid_event event{};
    event.type = UHID_SET_REPORT_REPLY;
    event.u.set_report_reply.id = id;
    event.u.set_report_reply.err = static_cast<std::uint16_t>(error);
    return event;
}

bool tell(int uhid, const uhid_event &event) {
    ssize_t written = -1;
    do {
        written = write(uhid, &event, sizeof event);
    } while (written < 0 && errno == EINTR);
    return written == static_cast<ssize_t>(sizeof event);
}

} // namespace zpsg::vusb
