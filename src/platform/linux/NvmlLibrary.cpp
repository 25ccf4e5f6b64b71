#include "platform/linux/NvmlLibrary.h"

#include <algorithm>
#include <array>
#include <dlfcn.h>

namespace zpsg::platform {
namespace {

constexpr int kSuccess = 0;             // NVML_SUCCESS
constexpr unsigned kGpuTemperature = 0; // NVML_TEMPERATURE_GPU
constexpr std::size_t kNameSize = 96;   // NVML_DEVICE_NAME_V2_BUFFER_SIZE
constexpr double kMilli = 1e-3;

template <class Function>
bool findOne(void *library, const char *name, Function &function) {
    function = reinterpret_cast<Function>(dlsym(library, name));
    return function != nullptr;
}

} // namespace

void NvmlLibrary::CloseLibrary::operator()(void *library) const { dlclose(library); }

bool NvmlLibrary::find(void *library, Functions &functions) {
    return findOne(library, "nvmlInit_v2", functions.init) &&
           findOne(library, "nvmlShutdown", functions.shutdown) &&
           findOne(library, "nvmlDeviceGetCount_v2", functions.count) &&
           findOne(library, "nvmlDeviceGetHandleByIndex_v2", functions.handle) &&
           findOne(library, "nvmlDeviceGetName", functions.name) &&
           findOne(library, "nvmlDeviceGetTemperature", functions.temperature) &&
           findOne(library, "nvmlDeviceGetPowerUsage", functions.power);
}

std::unique_ptr<NvmlLibrary> NvmlLibrary::load(const std::string &path) {
    Library library(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL));
    Functions functions{};
    if (library == nullptr || !find(library.get(), functions) || functions.init() != kSuccess) {
        return nullptr;
    }
    return std::unique_ptr<NvmlLibrary>(new NvmlLibrary(std::move(library), functions));
}

NvmlLibrary::~NvmlLibrary() { functions_.shutdown(); }

unsigned NvmlLibrary::count() const {
    unsigned count = 0;
    return functions_.count(&count) == kSuccess ? count : 0;
}

NvmlLibrary::Device NvmlLibrary::device(unsigned index) const {
    Device device = nullptr;
    return functions_.handle(index, &device) == kSuccess ? device : nullptr;
}

std::string NvmlLibrary::name(Device device) const {
    std::array<char, kNameSize> text{};
    if (functions_.name(device, text.data(), static_cast<unsigned>(text.size())) != kSuccess) {
        return {};
    }
    return {text.begin(), std::find(text.begin(), text.end(), '\0')};
}

std::optional<double> NvmlLibrary::celsius(Device device) const {
    unsigned celsius = 0;
    const bool read = functions_.temperature(device, kGpuTemperature, &celsius) == kSuccess;
    return read ? std::optional(static_cast<double>(celsius)) : std::nullopt;
}

std::optional<double> NvmlLibrary::watts(Device device) const {
    unsigned milliwatts = 0;
    const bool read = functions_.power(device, &milliwatts) == kSuccess;
    return read ? std::optional(static_cast<double>(milliwatts) * kMilli) : std::nullopt;
}

} // namespace zpsg::platform
