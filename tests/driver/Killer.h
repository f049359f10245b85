// How does a test end the program at a random moment?
#pragma once

#include <cstdlib>
#include <random>

#include "tests/driver/Figures.h"
#include "tests/driver/Huevox.h"

using Milliseconds = double;

/// As often as HUEVOX_KILLS says, or a share that every run of the tests can afford.
inline int CountKills(int share) {
    const char* wanted = std::getenv("HUEVOX_KILLS");
    return wanted ? std::atoi(wanted) : share;
}

/// Ends the program at a random moment within a span from now on.
class Killer {
public:
    void kill(const Huevox& huevox, Milliseconds span) {
        const Milliseconds end = NowInMilliseconds() + span * std::uniform_real_distribution<>(0, 1)(random);
        while (NowInMilliseconds() < end) continue;
        huevox.kill();
    }

private:
    std::mt19937 random{20261121};
};
