// What do many measurements come to, and how are they reported?
#pragma once

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "toolkit/platform/Platform.h"

/// How much of the work is done: all of it, or a part for a quick look.
struct Effort {
    int divisor = 1;
    int of(int whole) const { return std::max(1, whole / divisor); }
};

inline double NowInMilliseconds() {
    LARGE_INTEGER frequency{};
    LARGE_INTEGER count{};
    ::QueryPerformanceFrequency(&frequency);
    ::QueryPerformanceCounter(&count);
    return 1000.0 * static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

inline double Median(std::vector<double> values) {
    std::ranges::nth_element(values, values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2));
    return values[values.size() / 2];
}

/// One line for the report: a name of words joined by dots, and the value.
inline void Tell(const std::string& name, double value) { std::printf("%s %.9g\n", name.c_str(), value); }
