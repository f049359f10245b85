// Any text may be a path: its parts put together are the path again, and characters are never parted.
#include "core/Characters.h"
#include "core/PathText.h"
#include "fuzz/FuzzInput.h"

namespace {

void TryPlaces(const std::string& text, const std::string& delimiter) {
    const std::string name(GetFileNamePart(text, delimiter));
    Require(text.ends_with(name));
    const std::string before = text.substr(0, text.size() - name.size());
    if (!before.empty()) Require(!delimiter.empty() && before.ends_with(delimiter));
    // The rest of the last delimiter may begin another.
    if (!delimiter.empty()) Require(name.find(delimiter) == std::string::npos);
}

void TryPath(const std::string& path) {
    const std::string folder(FolderPart(path));
    const std::string name(GetFileNamePart(path, "\\"));
    Require(folder + name == path);
    Require(folder.empty() || folder.back() == '\\');
    Require(name.find('\\') == std::string::npos);
    Require(WithExtension(path) == (name.find('.') != std::string::npos ? path : path + ".txt"));
}

void TryCharacters(const std::string& text, std::size_t count) {
    const std::vector<std::string_view> characters = CharactersOf(text);
    Require(CharacterCount(text) == CountUnits(text));
    Require(LastCharacter(text) == (characters.empty() ? "" : characters.back()));
    std::string first;
    for (const std::string_view character : characters) {
        if (CountUnits(first) + UnitsOf(character) > count) break;
        first += character;
    }
    Require(FirstCharacters(text, count) == first);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const int count = input.takeByte();
    const std::string delimiter(input.takeLine());
    const std::string text(input.takeRest());
    TryPlaces(text, delimiter);
    TryPath(text);
    TryCharacters(text, count);
    return 0;
}
