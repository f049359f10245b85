// What of Windows do conversions of text need, where there is no Windows?
#pragma once

#include <cstdint>

// Names, arguments and answers are those of Windows, by its documentation.

using UINT = unsigned;
using DWORD = std::uint32_t;

inline constexpr UINT CP_UTF8 = 65001;

UINT GetACP();
int MultiByteToWideChar(UINT codePage, DWORD flags, const char* text, int size, wchar_t* wide, int room);
int WideCharToMultiByte(UINT codePage, DWORD flags, const wchar_t* text, int length, char* narrow, int room,
                        const char* substitute, const bool* wasUsed);
constexpr bool IS_SURROGATE_PAIR(wchar_t first, wchar_t second) {
    return first >= 0xD800 && first <= 0xDBFF && second >= 0xDC00 && second <= 0xDFFF;
}

/// The code page of the system from now on: UTF-8, or one that is made like 1252 or 932 and holds a few of
/// its characters.
void ChooseCodePage(UINT codePage);
