// What the tests' own library of NVIDIA's answers and has been asked.
#pragma once

#include <array>

namespace zpsg::sensors {

struct FakeNvml {
    struct Card {
        const char *name;
        unsigned celsius;
        unsigned milliwatts;
    };
    int initResult = 0;   // 0 is success, as everywhere
    int answerResult = 0; // of the values
    int milliseconds = 0; // that each value takes
    unsigned count = 0;
    std::array<Card, 2> cards{};
    int inits = 0;
    int shutdowns = 0;
    int asked = 0;
};

/// In the library: zpsgFakeNvml().
using FakeNvmlFunction = FakeNvml *();

} // namespace zpsg::sensors
