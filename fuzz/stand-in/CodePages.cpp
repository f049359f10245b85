#include <algorithm>
#include <string>
#include <string_view>

#include "fuzz/FuzzInput.h"
#include "fuzz/stand-in/windows.h"

namespace {

constexpr wchar_t replacement = 0xFFFD;
UINT chosenPage = 1252;

/// How many bytes a character of UTF-8 has that begins like this; 0 when none does.
int LengthAt(std::string_view text) {
    const auto first = static_cast<unsigned char>(text.front());
    const int length = first < 0x80   ? 1
                       : first < 0xC2 ? 0
                       : first < 0xE0 ? 2
                       : first < 0xF0 ? 3
                       : first < 0xF5 ? 4
                                      : 0;
    if (length > static_cast<int>(text.size())) return 0;
    for (int at = 1; at < length; ++at) {
        if ((static_cast<unsigned char>(text[at]) & 0xC0) != 0x80) return 0;
    }
    return length;
}

/// The number of a character; that of the replacement when there is no such character.
char32_t NumberOf(std::string_view character) {
    constexpr std::string_view bits = "\x7F\x1F\x0F\x07";
    char32_t number = static_cast<unsigned char>(character.front()) & bits[character.size() - 1];
    for (const char byte : character.substr(1)) number = number << 6 | (byte & 0x3F);
    const bool isLonger =
        (character.size() == 3 && number < 0x800) || (character.size() == 4 && number < 0x10000);
    const bool isHalf = number >= 0xD800 && number <= 0xDFFF;
    return isLonger || isHalf || number > 0x10FFFF ? replacement : number;
}

std::wstring WideOfUtf8(std::string_view text) {
    std::wstring wide;
    while (!text.empty()) {
        const int length = LengthAt(text);
        const char32_t number = length == 0 ? replacement : NumberOf(text.substr(0, length));
        text.remove_prefix(std::max(1, length));
        if (number < 0x10000) {
            wide += static_cast<wchar_t>(number);
            continue;
        }
        wide += static_cast<wchar_t>(0xD800 + ((number - 0x10000) >> 10));
        wide += static_cast<wchar_t>(0xDC00 + (number & 0x3FF));
    }
    return wide;
}

std::string Utf8OfNumber(char32_t number) {
    const auto follower = [number](int shift) {
        return static_cast<char>(0x80 | ((number >> shift) & 0x3F));
    };
    if (number < 0x80) return {static_cast<char>(number)};
    if (number < 0x800) return {static_cast<char>(0xC0 | number >> 6), follower(0)};
    if (number < 0x10000) return {static_cast<char>(0xE0 | number >> 12), follower(6), follower(0)};
    return {static_cast<char>(0xF0 | number >> 18), follower(12), follower(6), follower(0)};
}

std::string Utf8OfWide(std::wstring_view text) {
    std::string narrow;
    for (std::size_t at = 0; at < text.size(); ++at) {
        char32_t number = text[at];
        if (at + 1 < text.size() && IS_SURROGATE_PAIR(text[at], text[at + 1])) {
            number = 0x10000 + ((text[at] & 0x3FF) << 10 | (text[at + 1] & 0x3FF));
            ++at;
        } else if (number >= 0xD800 && number <= 0xDFFF) {
            number = replacement;
        }
        narrow += Utf8OfNumber(number);
    }
    return narrow;
}

/// Similar letters for some characters, and a question mark for each unit of all others.
std::string LatinOf(wchar_t unit) {
    if (unit == 0x20AC) return "\x80";
    if (unit != 0x80 && unit <= 0xFF) return {static_cast<char>(unit)};
    return unit <= 0x17F && unit != 0x80 ? "A" : "?";
}

wchar_t OfLatin(char byte) { return byte == '\x80' ? 0x20AC : static_cast<unsigned char>(byte); }

std::string JapaneseOf(wchar_t unit) {
    if (unit < 0x80) return {static_cast<char>(unit)};
    if (unit >= 0x3040 && unit <= 0x30BF) return {'\x82', static_cast<char>(0x40 + (unit - 0x3040))};
    if (unit == 0x30FB) return "\x81\x45";
    return unit >= 0xFF01 && unit <= 0xFF5E ? "A" : "?";
}

/// Half a character is U+30FB.
std::wstring WideOfJapanese(std::string_view text) {
    std::wstring wide;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto first = static_cast<unsigned char>(text[at]);
        const auto second = static_cast<unsigned char>(at + 1 < text.size() ? text[at + 1] : 0);
        if (first < 0x80) {
            wide += static_cast<wchar_t>(first);
        } else if (first == 0x82 && second >= 0x40 && second <= 0xBF) {
            wide += static_cast<wchar_t>(0x3040 + (second - 0x40));
            ++at;
        } else {
            wide += L'\u30FB';
            if (first == 0x81 && second == 0x45) ++at;
        }
    }
    return wide;
}

std::wstring Widened(UINT codePage, std::string_view text) {
    if (codePage == CP_UTF8) return WideOfUtf8(text);
    if (codePage == 932) return WideOfJapanese(text);
    std::wstring wide;
    for (const char byte : text) wide += OfLatin(byte);
    return wide;
}

std::string Narrowed(UINT codePage, std::wstring_view text) {
    if (codePage == CP_UTF8) return Utf8OfWide(text);
    std::string narrow;
    for (const wchar_t unit : text) narrow += codePage == 932 ? JapaneseOf(unit) : LatinOf(unit);
    return narrow;
}

/// As both routines answer: the size that is needed when there is no room, else all that was asked for.
template <class Text, class Unit>
int Answer(const Text& converted, Unit* room, int size) {
    const int needed = static_cast<int>(converted.size());
    if (size == 0) return needed;
    Require(needed <= size);
    std::ranges::copy(converted, room);
    return needed;
}

}  // namespace

void ChooseCodePage(UINT codePage) { chosenPage = codePage; }

UINT GetACP() { return chosenPage; }

int MultiByteToWideChar(UINT codePage, DWORD /*flags*/, const char* text, int size, wchar_t* wide, int room) {
    return Answer(Widened(codePage, {text, static_cast<std::size_t>(size)}), wide, room);
}

int WideCharToMultiByte(UINT codePage, DWORD /*flags*/, const wchar_t* text, int length, char* narrow,
                        int room, const char* /*substitute*/, const bool* /*wasUsed*/) {
    return Answer(Narrowed(codePage, {text, static_cast<std::size_t>(length)}), narrow, room);
}
