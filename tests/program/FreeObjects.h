// How many graphics objects can the process still get?
#pragma once

#include <vector>

#include "toolkit/platform/Platform.h"

/// Takes all there are, and gives them back.
inline int FreeObjects() {
    std::vector<HBRUSH> brushes;
    while (const HBRUSH brush = ::CreateSolidBrush(0)) brushes.push_back(brush);
    for (const HBRUSH brush : brushes) ::DeleteObject(brush);
    return static_cast<int>(brushes.size());
}
