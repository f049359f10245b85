// Which windows of a program are on the screen?
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "tests/driver/WindowText.h"

/// All windows that are not in others, from the top to the bottom, as they are at one moment. Going from one
/// to the next instead meets windows that are just being destroyed: from those, Wine 10's server goes on
/// without end.
inline std::vector<HWND> WindowsFromTheTop() {
    std::vector<HWND> windows;
    const auto add = [](HWND window, LPARAM parameter) -> BOOL {
        reinterpret_cast<std::vector<HWND>*>(parameter)->push_back(window);
        return TRUE;
    };
    ::EnumWindows(add, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

/// Whether the window lies over the other one wherever both are.
inline bool IsAbove(HWND window, HWND other) {
    const std::vector<HWND> windows = WindowsFromTheTop();
    const auto place = std::ranges::find(windows, window);
    return std::find(place, windows.end(), other) != windows.end();
}

/// The visible windows of a class that are not in others: the first of them, or nullptr, and how many.
struct VisibleWindows {
    HWND first = nullptr;
    int count = 0;
};

inline VisibleWindows FindVisible(DWORD process, const std::string& className) {
    VisibleWindows found;
    for (const HWND window : WindowsFromTheTop()) {
        DWORD owner = 0;
        ::GetWindowThreadProcessId(window, &owner);
        if (owner != process || !::IsWindowVisible(window) || ClassOf(window) != className) continue;
        if (!found.first) found.first = window;
        ++found.count;
    }
    return found;
}
