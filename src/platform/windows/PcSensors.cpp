#include "platform/PcSensors.h"

#include "platform/windows/SharedMemory.h"

#include <algorithm>

namespace zpsg::platform {
namespace {

// Under these names HWiNFO offers its readings to other programs.
constexpr const wchar_t *kBlock = L"Global\\HWiNFO_SENS_SM2";
constexpr const wchar_t *kMutex = L"Global\\HWiNFO_SM2_MUTEX";
constexpr DWORD kPatience = 20;                                // milliseconds
constexpr std::size_t kLargest = std::size_t{4} * 1024 * 1024; // a PC with a thousand sensors has half of one

class HwinfoMemory final : public PcSensorMemory {
public:
    MemoryState copy(std::vector<std::byte> &block) override {
        if (memory_ == nullptr) {
            memory_ = std::make_unique<SharedMemory>(kBlock);
        }
        const auto bytes = memory_->bytes();
        if (bytes.empty()) {
            memory_.reset();
            return MemoryState::Missing;
        }
        // Here what can fail; nothing may while the mutex is held.
        block.resize(std::min(bytes.size(), kLargest));
        // Without a mutex the other program writes without one.
        const OwnedHandle mutex(OpenMutexW(SYNCHRONIZE, FALSE, kMutex));
        if (mutex) {
            const DWORD waited = WaitForSingleObject(mutex.get(), kPatience);
            if (waited != WAIT_OBJECT_0 && waited != WAIT_ABANDONED) {
                return MemoryState::Busy;
            }
        }
        std::copy_n(bytes.begin(), block.size(), block.begin());
        if (mutex) {
            ReleaseMutex(mutex.get());
        }
        return MemoryState::Copied;
    }

    void close() override { memory_.reset(); }

private:
    std::unique_ptr<SharedMemory> memory_;
};

} // namespace

PcSensorAccess pcSensorAccess() { return PcSensorAccess::Memory; }

std::unique_ptr<PcChips> openPcChips(const PcSensorPlaces & /*places*/) { return nullptr; }

std::unique_ptr<PcSensorMemory> openPcSensorMemory() { return std::make_unique<HwinfoMemory>(); }

std::string processorName(const PcSensorPlaces & /*places*/) {
    std::wstring name(256, L'\0');
    auto bytes = static_cast<DWORD>(name.size() * sizeof(wchar_t));
    if (RegGetValueW(HKEY_LOCAL_MACHINE, L"HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0",
                     L"ProcessorNameString", RRF_RT_REG_SZ, nullptr, name.data(), &bytes) != ERROR_SUCCESS) {
        return {};
    }
    name.resize(std::min(name.find(L'\0'), name.size()));
    while (!name.empty() && name.back() == L' ') {
        name.pop_back(); // some models are padded
    }
    return narrow(name);
}

} // namespace zpsg::platform
