// What does this process hold?
#pragma once

#include <vector>

#include "toolkit/Platform.h"
// What follows needs the platform's own types.
#include <psapi.h>

/// Graphics objects that the platform would still give: it does not count those that it has given.
inline int FreeGraphicsObjects() {
    std::vector<HBRUSH> brushes;
    while (HBRUSH brush = ::CreateSolidBrush(0)) brushes.push_back(brush);
    for (const HBRUSH brush : brushes) ::DeleteObject(brush);
    return static_cast<int>(brushes.size());
}

/// Memory of the process's own, in kilobytes.
inline double PrivateKilobytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    counters.cb = sizeof counters;
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<double>(counters.PagefileUsage) / 1024;
}
