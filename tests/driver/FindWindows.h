// Which windows of a program are on the screen?
#pragma once

#include <string>

#include "tests/driver/WindowText.h"

/// The visible windows of a class that are not in others: the first of them, or nullptr, and how many.
struct VisibleWindows {
    HWND first = nullptr;
    int count = 0;
};

inline VisibleWindows FindVisible(DWORD process, const std::string& className) {
    struct Search {
        DWORD process;
        const std::string& className;
        VisibleWindows found = {};
    };
    const auto look = [](HWND window, LPARAM parameter) -> BOOL {
        auto& search = *reinterpret_cast<Search*>(parameter);
        DWORD owner = 0;
        ::GetWindowThreadProcessId(window, &owner);
        if (owner != search.process || !::IsWindowVisible(window) || ClassOf(window) != search.className)
            return TRUE;
        if (!search.found.first) search.found.first = window;
        ++search.found.count;
        return TRUE;
    };
    Search search{process, className};
    ::EnumWindows(look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}
