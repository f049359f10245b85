// How much of the platform does the program hold?
#pragma once

#include <algorithm>
#include <optional>

#include "toolkit/Platform.h"

struct Usage {
    long long bytes = 0;  ///< of memory of its own
    int gdi = 0;
    int windows = 0;
    int handles = 0;
};

Usage UsageOf(HANDLE process, HWND window);

/// The first and the last of a program's figures, of the program in which memory has grown most.
struct Growth {
    Usage first = {};
    Usage last = {};
    int steps = 0;          ///< between the two
    int pickMovements = 0;  ///< each may cost a context of the screen, up to 1,000
};
