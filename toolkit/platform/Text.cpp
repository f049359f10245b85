#include "toolkit/platform/Text.h"

#include "toolkit/platform/Platform.h"

namespace {

std::wstring Widened(UINT codePage, std::string_view text) {
    const int size = static_cast<int>(text.size());
    std::wstring wide(::MultiByteToWideChar(codePage, 0, text.data(), size, nullptr, 0), L'\0');
    ::MultiByteToWideChar(codePage, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string Narrowed(UINT codePage, std::wstring_view text) {
    // UTF-8 holds every character, and Windows refuses the flag for it.
    const DWORD flags = codePage == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS;
    const char* const replacement = codePage == CP_UTF8 ? nullptr : "?";
    const int length = static_cast<int>(text.size());
    const int size =
        ::WideCharToMultiByte(codePage, flags, text.data(), length, nullptr, 0, replacement, nullptr);
    std::string narrow(size, '\0');
    ::WideCharToMultiByte(codePage, flags, text.data(), length, narrow.data(), size, replacement, nullptr);
    return narrow;
}

}  // namespace

std::wstring Wide(std::string_view text) { return Widened(CP_UTF8, text); }

std::string Utf8(std::wstring_view text) { return Narrowed(CP_UTF8, text); }

std::string Ansi(std::string_view text) { return Narrowed(::GetACP(), Wide(text)); }

std::string FromAnsi(std::string_view bytes) { return Utf8(Widened(::GetACP(), bytes)); }
