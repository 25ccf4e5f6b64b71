// The management library of NVIDIA's driver, loaded only where that driver is. What is declared here follows
// its documented C interface.
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace zpsg::platform {

class NvmlLibrary {
public:
    using Device = void *; ///< nvmlDevice_t; valid as long as the library

    /// Null when it isn't installed, is too old, or finds no driver.
    static std::unique_ptr<NvmlLibrary> load(const std::string &path);
    ~NvmlLibrary();
    NvmlLibrary(const NvmlLibrary &) = delete;
    NvmlLibrary &operator=(const NvmlLibrary &) = delete;

    [[nodiscard]] unsigned count() const;
    [[nodiscard]] Device device(unsigned index) const; ///< null when it can't be had
    [[nodiscard]] std::string name(Device device) const;
    [[nodiscard]] std::optional<double> celsius(Device device) const;
    [[nodiscard]] std::optional<double> watts(Device device) const;

private:
    struct CloseLibrary {
        void operator()(void *library) const;
    };
    struct Functions {
        int (*init)();
        int (*shutdown)();
        int (*count)(unsigned *count);
        int (*handle)(unsigned index, Device *device);
        int (*name)(Device device, char *text, unsigned length);
        int (*temperature)(Device device, unsigned sensor, unsigned *celsius);
        int (*power)(Device device, unsigned *milliwatts);
    };
    using Library = std::unique_ptr<void, CloseLibrary>;

    NvmlLibrary(Library library, const Functions &functions)
        : library_(std::move(library)), functions_(functions) {}
    static bool find(void *library, Functions &functions);

    Library library_;
    Functions functions_;
};

} // namespace zpsg::platform
