// Any text may be a path: its parts consist of whole characters, and put together they are the path again.
#include "core/PathText.h"
#include "fuzz/FuzzInput.h"

namespace {

/// Looks for the delimiter at one character after another; the last place counts.
std::size_t ExpectedPlace(std::string_view delimiter, std::string_view text, LeadByteTest isLeadByte) {
    std::size_t last = std::string::npos;
    if (delimiter.empty()) return last;
    std::size_t at = 0;
    for (const std::string_view character : CharactersOf(text, isLeadByte)) {
        if (text.compare(at, delimiter.size(), delimiter) == 0) last = at;
        at += character.size();
    }
    return last;
}

void TryPlaces(const std::string& text, const std::string& delimiter, LeadByteTest isLeadByte) {
    const std::size_t place = ExpectedPlace(delimiter, text, isLeadByte);
    Require(LastPlaceOf(delimiter, text, isLeadByte) == place);
    const std::string name = place == std::string::npos ? text : text.substr(place + delimiter.size());
    Require(GetFileNamePart(text, delimiter, isLeadByte) == name);
    if (!delimiter.empty()) Require(LastPlaceOf(delimiter, text, NoLeadByte) == text.rfind(delimiter));
}

void TryPath(const std::string& path, LeadByteTest isLeadByte) {
    const std::string folder(FolderPart(path, isLeadByte));
    const std::string name(GetFileNamePart(path, "\\", isLeadByte));
    Require(folder + name == path);
    const std::vector<std::string_view> ofFolder = CharactersOf(folder, isLeadByte);
    Require(ofFolder.empty() || ofFolder.back() == "\\");
    bool hasDot = false;
    for (const std::string_view character : CharactersOf(name, isLeadByte)) {
        Require(character != "\\");
        hasDot = hasDot || character == ".";
    }
    Require(WithExtension(path, isLeadByte) == (hasDot ? path : path + ".txt"));
}

void TryCharacters(const std::string& text, std::size_t count, LeadByteTest isLeadByte) {
    const std::vector<std::string_view> characters = CharactersOf(text, isLeadByte);
    Require(CharacterCount(text, isLeadByte) == characters.size());
    Require(FirstCharacters(text, count, isLeadByte) == Joined(characters, 0, count));
    Require(LastCharacter(text, isLeadByte) == (characters.empty() ? "" : characters.back()));
    std::size_t at = 0;
    for (const std::string_view character : characters) {
        Require(CharacterLength(text, at, isLeadByte) == character.size());
        at += character.size();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const int count = input.takeByte();
    const std::string delimiter(input.takeLine());
    const std::string text(input.takeRest());
    for (const LeadByteTest isLeadByte : {NoLeadByte, HighLeadByte}) {
        TryPlaces(text, delimiter, isLeadByte);
        TryPath(text, isLeadByte);
        TryCharacters(text, count, isLeadByte);
    }
    return 0;
}
