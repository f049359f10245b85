// What is written on a window?
#pragma once

#include <string>

#include "toolkit/platform/Platform.h"

/// The caption or the contents of a window of this program; "" for no window.
inline std::string WindowText(HWND window) {
    std::string text(::GetWindowTextLengthA(window), '\0');
    text.resize(::GetWindowTextA(window, text.data(), static_cast<int>(text.size()) + 1));
    return text;
}
