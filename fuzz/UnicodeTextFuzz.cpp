// Any text, half characters and all, gets from one encoding into another character by character.
#include <array>

#include "core/Characters.h"
#include "fuzz/FuzzInput.h"
#include "fuzz/stand-in/windows.h"
#include "toolkit/platform/Text.h"

namespace {

constexpr UINT western = 1252;
constexpr UINT japanese = 932;
constexpr std::array<UINT, 3> codePages = {western, japanese, CP_UTF8};

bool IsBetween(wchar_t unit, int first, int last) { return unit >= first && unit <= last; }

using Characters = std::vector<std::wstring>;

/// A text of Windows as a list of characters: a pair is one, half a pair is one too.
Characters CharactersIn(const std::wstring& units) {
    Characters characters;
    for (const wchar_t unit : units) {
        const bool mayEndPair = IsBetween(unit, 0xDC00, 0xDFFF) && !characters.empty();
        if (mayEndPair && characters.back().size() == 1 && IsBetween(characters.back()[0], 0xD800, 0xDBFF)) {
            characters.back() += unit;
        } else {
            characters.push_back({unit});
        }
    }
    return characters;
}

bool IsHalf(const std::wstring& character) {
    return character.size() == 1 && IsBetween(character[0], 0xD800, 0xDFFF);
}

/// What the stand-in's code pages hold, told once more.
bool IsHeld(UINT codePage, const std::wstring& character) {
    if (codePage == CP_UTF8) return !IsHalf(character);
    if (character.size() > 1) return false;
    const wchar_t unit = character[0];
    if (unit < 0x80) return true;
    if (codePage == japanese) return IsBetween(unit, 0x3040, 0x30BF) || unit == 0x30FB;
    return IsBetween(unit, 0x81, 0xFF) || unit == 0x20AC;
}

std::wstring Joined(const Characters& characters) {
    std::wstring text;
    for (const std::wstring& character : characters) text += character;
    return text;
}

void TryWithin(UINT codePage, const std::wstring& text, const Characters& characters) {
    const std::vector<CharacterPlace> outside = OutsideAnsi(text);
    std::wstring within;
    std::size_t at = 0;
    std::size_t found = 0;
    for (const std::wstring& character : characters) {
        const bool isHeld = IsHeld(codePage, character);
        within += isHeld ? character : L"?";
        if (!isHeld) {
            Require(found < outside.size() && outside[found].start == at);
            Require(outside[found].length == character.size());
            ++found;
        }
        at += character.size();
    }
    Require(found == outside.size());
    Require(WithinAnsi(text) == within);
}

/// To the program and back, and into a file and back.
void TryWay(const std::string& narrow, Characters characters) {
    for (std::wstring& character : characters) {
        if (IsHalf(character)) character = L"\uFFFD";
    }
    const std::wstring whole = Joined(characters);
    Require(Wide(narrow) == whole);
    Require(FromAnsi(Ansi(narrow)) == Utf8(WithinAnsi(whole)));
}

/// The program counts in its own encoding what a box counts in that of Windows.
void TryCounts(const std::string& narrow, const Characters& characters, std::size_t most) {
    Require(CharacterCount(narrow) == Joined(characters).size());
    Require(LastCharacter(narrow) == (characters.empty() ? "" : Utf8(characters.back())));
    std::wstring first;
    for (const std::wstring& character : characters) {
        if (first.size() + character.size() > most) break;
        first += character;
    }
    Require(FirstCharacters(narrow, most) == Utf8(first));
}

/// Bytes that need not be a text at all: what has come out of them once stays as it is.
void TryBytes(UINT codePage, std::string_view bytes) {
    const std::string text = Utf8(Wide(bytes));
    Require(Utf8(Wide(text)) == text);
    const std::string read = FromAnsi(bytes);
    Require(FromAnsi(Ansi(read)) == read);
    if (codePage == western) Require(Ansi(read) == bytes);
}

wchar_t TakeUnit(FuzzInput& input) {
    constexpr std::array<int, 8> beginnings = {0x0000, 0x0080, 0x0100, 0x2080,
                                               0x3040, 0xD83C, 0xDF80, 0xFF00};
    const int kind = input.takeByte();
    const int byte = input.takeByte();
    return static_cast<wchar_t>(kind < 0x80 ? beginnings[kind % 8] + byte % 0x80
                                            : (kind % 0x80 * 2 << 8) + byte);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const UINT codePage = codePages[input.takeByte() % codePages.size()];
    ChooseCodePage(codePage);
    const int most = input.takeByte() % 32;
    TryBytes(codePage, input.takeRest());
    std::wstring text;
    while (!input.takeRest().empty()) text += TakeUnit(input);
    const Characters characters = CharactersIn(text);
    const std::string narrow = Utf8(text);
    TryWithin(codePage, text, characters);
    TryWay(narrow, characters);
    TryCounts(narrow, characters, most);
    return 0;
}
