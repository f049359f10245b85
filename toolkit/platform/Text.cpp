#include "toolkit/platform/Text.h"

#include <algorithm>

#include "toolkit/platform/Platform.h"

namespace {

std::wstring Widened(UINT codePage, std::string_view text) {
    const int size = static_cast<int>(text.size());
    std::wstring wide(::MultiByteToWideChar(codePage, 0, text.data(), size, nullptr, 0), L'\0');
    ::MultiByteToWideChar(codePage, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string Narrowed(UINT codePage, std::wstring_view text) {
    const int length = static_cast<int>(text.size());
    const int size = ::WideCharToMultiByte(codePage, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string narrow(size, '\0');
    ::WideCharToMultiByte(codePage, 0, text.data(), length, narrow.data(), size, nullptr, nullptr);
    return narrow;
}

/// Of another character Windows would make "?" or a similar one, which do not come back as it was.
bool IsHeld(std::wstring_view text) {
    // Most texts are plain, and every code page holds those.
    const bool isPlain = std::ranges::all_of(text, [](wchar_t unit) { return unit < 0x80; });
    return isPlain || Widened(::GetACP(), Narrowed(::GetACP(), text)) == text;
}

std::size_t LengthAt(std::wstring_view text, std::size_t at) {
    const bool isPair = at + 1 < text.size() && IS_SURROGATE_PAIR(text[at], text[at + 1]);
    return isPair ? 2 : 1;
}

}  // namespace

std::wstring Wide(std::string_view text) { return Widened(CP_UTF8, text); }

std::string Utf8(std::wstring_view text) { return Narrowed(CP_UTF8, text); }

std::string Ansi(std::string_view text) { return Narrowed(::GetACP(), WithinAnsi(Wide(text))); }

std::string FromAnsi(std::string_view bytes) { return Utf8(Widened(::GetACP(), bytes)); }

std::vector<CharacterPlace> OutsideAnsi(std::wstring_view text) {
    std::vector<CharacterPlace> outside;
    if (IsHeld(text)) return outside;
    std::size_t length = 0;
    for (std::size_t at = 0; at < text.size(); at += length) {
        length = LengthAt(text, at);
        if (!IsHeld(text.substr(at, length))) outside.push_back({at, length});
    }
    return outside;
}

std::wstring WithinAnsi(std::wstring_view text) {
    std::wstring within;
    std::size_t done = 0;
    for (const auto& [start, length] : OutsideAnsi(text)) {
        within.append(text.substr(done, start - done)).append(1, L'?');
        done = start + length;
    }
    return within.append(text.substr(done));
}
