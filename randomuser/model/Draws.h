// What falls to the random user by chance?
#pragma once

#include <random>
#include <string>

/// The same seed gives the same numbers everywhere.
class Draws {
public:
    explicit Draws(unsigned seed) : random(seed) {}

    /// 0 to limit - 1.
    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
    template <class Texts>
    std::string oneOf(const Texts& texts) {
        return texts.at(static_cast<std::size_t>(below(static_cast<int>(texts.size()))));
    }

private:
    std::mt19937 random;
};
