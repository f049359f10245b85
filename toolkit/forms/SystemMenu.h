// What is in a window's own menu besides what Windows puts there?
#pragma once

#include <string_view>

#include "toolkit/platform/Platform.h"
#include "toolkit/platform/Text.h"

/// Commands below this are a program's own; Windows uses the lower four bits of each.
inline constexpr int firstOfWindows = 0xF000;

/// Adds a group with one item at the end. The command is a multiple of 16 below firstOfWindows.
inline void AddToSystemMenu(HWND window, int command, std::string_view text) {
    const HMENU menu = ::GetSystemMenu(window, FALSE);
    ::AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    ::AppendMenuW(menu, MF_STRING, command, Wide(text).c_str());
}

inline void CheckInSystemMenu(HWND window, int command, bool isChecked) {
    ::CheckMenuItem(::GetSystemMenu(window, FALSE), command, isChecked ? MF_CHECKED : MF_UNCHECKED);
}
