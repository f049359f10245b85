// What do many measurements come to?
#pragma once

#include <algorithm>
#include <vector>

#include "toolkit/Platform.h"

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
