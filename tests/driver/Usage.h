// How many of the system's resources does the program hold?
#pragma once

#include <string>

#include "toolkit/platform/Platform.h"

struct Usage {
    long long bytes = 0;  ///< of memory of its own
    int gdi = 0;
    int windows = 0;
    int handles = 0;
};

Usage UsageOf(HANDLE process, HWND window);

/// The word length of a program.
int BitsOf(HANDLE process);

/// The first and the last figures of one program.
struct Growth {
    Usage first = {};
    Usage last = {};
    int steps = 0;          ///< between the two
    int pickMovements = 0;  ///< each may cost a context of the screen, up to 1,000
    int drops = 0;          ///< of files, each by a thread that is made in the program
};

/// What has grown by more than it may, or "".
std::string Grown(const Growth& growth);
