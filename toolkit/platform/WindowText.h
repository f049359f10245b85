// What is written on a window?
#pragma once

#include <string>

#include "toolkit/platform/Platform.h"
#include "toolkit/platform/Text.h"

/// The caption or the contents of a window of this program, in Windows' own units; "" for no window.
inline std::wstring WideWindowText(HWND window) {
    std::wstring text(::GetWindowTextLengthW(window), L'\0');
    text.resize(::GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1));
    return text;
}

inline std::string WindowText(HWND window) { return Utf8(WideWindowText(window)); }

inline void SetTextOf(HWND window, std::string_view text) { ::SetWindowTextW(window, Wide(text).c_str()); }
