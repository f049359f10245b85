// How does a test read what is written on a window?
#pragma once

#include <array>
#include <string>

#include "toolkit/Platform.h"

inline std::string ClassOf(HWND window) {
    std::array<char, 64> name{};
    ::GetClassNameA(window, name.data(), name.size());
    return name.data();
}

/// The text of any window, of another process as well.
inline std::string TextOf(HWND window) {
    constexpr UINT limit = 10'000;
    DWORD_PTR length = 0;
    ::SendMessageTimeoutA(window, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, limit, &length);
    std::string text(length + 1, '\0');
    DWORD_PTR copied = 0;
    ::SendMessageTimeoutA(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                          SMTO_ABORTIFHUNG, limit, &copied);
    text.resize(copied);
    return text;
}
