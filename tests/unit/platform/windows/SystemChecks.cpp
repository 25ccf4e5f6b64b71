// Texts, streams, settings, sensors and sound.
#include "SelfTest.h"

#include "platform/AudioCapture.h"
#include "platform/Autostart.h"
#include "platform/PcSensors.h"
#include "platform/Terminal.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <future>
#include <thread>
#include <utility>
#include <vector>

namespace zpsg::selftest {

using namespace platform;

void checkTexts() {
    const std::string text = "a \xC3\xA4 \xE2\x82\xAC \xF0\x9F\x98\x80";
    expect(wide(text) == L"a \u00E4 \u20AC \U0001F600" && narrow(wide(text)) == text,
           "UTF-8 goes there and back");
    expect(wide("a\xFF") == L"a\uFFFD" && wide("").empty() && narrow(L"").empty(),
           "what is no text is replaced");
    for (const DWORD error : {DWORD{ERROR_ACCESS_DENIED}, DWORD{0xE0001234}}) {
        const std::string told = errorText(error);
        expect(!told.empty() && told.back() != '\n' && told.back() != ' ',
               "every error has a text of one line");
    }
}

void checkTerminal() {
    std::FILE *file = std::tmpfile();
    if (file == nullptr) {
        return expect(false, "a temporary file can be made");
    }
    expect(!isTerminal(file), "a file is no terminal");
    expect(prepareForData(file), "data can go to a file");
    std::fputs("a\nb", file);
    std::rewind(file);
    std::array<char, 8> bytes{};
    expect(std::fread(bytes.data(), 1, bytes.size(), file) == 3 && bytes[1] == '\n',
           "the bytes stay as they are");
    std::fclose(file);
    std::FILE *none = std::fopen("NUL", "w");
    expect(!isTerminal(none), "the null device is no terminal");
    std::fclose(none);
}

void checkAutostart() {
    if (autostartEnabled()) {
        std::puts("autostart is on and stays as it is: not checked");
        return;
    }
    const auto value = [] {
        std::array<wchar_t, MAX_PATH> text{};
        DWORD bytes = sizeof(text);
        RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Run", L"ZPS G",
                     RRF_RT_REG_SZ, nullptr, text.data(), &bytes);
        return std::wstring(text.data());
    };
    struct Row {
        Autostart mode;
        const wchar_t *command;
    };
    std::string error;
    for (const Row &row :
         {Row{Autostart::Off, L""}, Row{Autostart::Shown, L"\"C:\\Prog \u00E4\\zpsg.exe\""},
          Row{Autostart::Hidden, L"\"C:\\Prog \u00E4\\zpsg.exe\" open"},
          Row{Autostart::Hidden, L"\"C:\\Prog \u00E4\\zpsg.exe\" open"}, Row{Autostart::Off, L""}}) {
        expect(setAutostart(row.mode, "C:/Prog \xC3\xA4/zpsg.exe", error) && error.empty(),
               "Run is set: " + error);
        expect(autostartEnabled() == (row.mode != Autostart::Off), "Run is there or not");
        expect(value() == row.command, "Run holds " + narrow(row.command) + ", not " + narrow(value()));
    }
}

void checkSensors() {
    expect(pcSensorAccess() == PcSensorAccess::Memory && openPcChips() == nullptr,
           "chips are left to HWiNFO");
    expect(!processorName().empty(), "the processor has a name");
    const auto memory = openPcSensorMemory();
    std::vector<std::byte> block;
    if (memory->copy(block) != MemoryState::Missing) {
        return expect(!block.empty(), "HWiNFO runs and shares its block"); // which is not to be played with
    }
    constexpr const char *kContent = "HWiS and what follows";
    {
        const OwnedHandle mapping(CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, 10000,
                                                     L"Global\\HWiNFO_SENS_SM2"));
        if (!mapping) {
            std::puts("only an administrator may share memory: reading it is not checked");
            return;
        }
        const OwnedHandle mutex(CreateMutexW(nullptr, FALSE, L"Global\\HWiNFO_SM2_MUTEX"));
        void *view = MapViewOfFile(mapping.get(), FILE_MAP_WRITE, 0, 0, 0);
        std::strcpy(static_cast<char *>(view), kContent);
        expect(memory->copy(block) == MemoryState::Copied && block.size() >= 10000 &&
                   std::strcmp(reinterpret_cast<const char *>(block.data()), kContent) == 0,
               "the block is read");
        WaitForSingleObject(mutex.get(), INFINITE);
        std::async(std::launch::async, [&] {
            expect(memory->copy(block) == MemoryState::Busy, "a block that is being written is left alone");
        }).get();
        ReleaseMutex(mutex.get());
        expect(memory->copy(block) == MemoryState::Copied, "and read again");
        UnmapViewOfFile(view);
    }
    memory->close();
    expect(memory->copy(block) == MemoryState::Missing, "the block is gone with its owner");
}

void checkSound() {
    std::promise<AudioState> told;
    auto capture = AudioCapture::start({[](std::span<const float>) {},
                                        [&, first = true](AudioState state) mutable {
                                            if (std::exchange(first, false)) {
                                                told.set_value(state);
                                            }
                                        }});
    expect(told.get_future().wait_for(std::chrono::seconds(20)) == std::future_status::ready,
           "sound is there or not");
    const auto begin = std::chrono::steady_clock::now();
    capture.reset();
    expect(std::chrono::steady_clock::now() - begin < std::chrono::seconds(2), "the capture ends at once");
}

} // namespace zpsg::selftest
