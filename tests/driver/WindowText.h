// How does a test read what is written on a window?
#pragma once

#include <array>
#include <string>

#include "toolkit/platform/Platform.h"
#include "toolkit/platform/Text.h"

inline std::string ClassOf(HWND window) {
    std::array<char, 64> name{};
    ::GetClassNameA(window, name.data(), name.size());
    return name.data();
}

/// What a window of any process answers; 0 when it is gone. Only a program that hangs reaches the limit.
inline LRESULT AnswerOf(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    constexpr UINT limit = 300'000;
    DWORD_PTR result = 0;
    ::SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, limit, &result);
    return static_cast<LRESULT>(result);
}

/// The text of any window, of another process as well.
inline std::string TextOf(HWND window) {
    std::wstring text(AnswerOf(window, WM_GETTEXTLENGTH) + 1, L'\0');
    text.resize(AnswerOf(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data())));
    return Utf8(text);
}

/// The text of a message box.
inline std::string MessageOf(HWND box) {
    constexpr int messageText = 0xFFFF;
    return TextOf(::GetDlgItem(box, messageText));
}
