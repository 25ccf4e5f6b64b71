// What a full disk does to a writer, for root as well: no file can grow beyond a number of bytes.
#pragma once

#ifdef _WIN32

#include <cstdint>

// There is no such limit there, so tests that need it are left out by name; this only lets them compile.
using rlim_t = std::uint64_t;
inline constexpr rlim_t RLIM_INFINITY = UINT64_MAX;

namespace zpsg::test {

class FullDisk {
public:
    explicit FullDisk(rlim_t /*bytes*/) {}
    ~FullDisk() {}
};

} // namespace zpsg::test

#else

#include <csignal>
#include <sys/resource.h>

namespace zpsg::test {

/// The limit holds while it lives.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : previousHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &previous_);
        const rlimit limit{bytes, previous_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &previous_);
        std::signal(SIGXFSZ, previousHandler_);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    rlimit previous_{};
    void (*previousHandler_)(int);
};

} // namespace zpsg::test

#endif
