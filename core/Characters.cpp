#include "core/Characters.h"

#include <algorithm>

namespace {

/// Whether the byte goes on with a character that an earlier one has begun.
bool IsFollower(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

/// Of the character that begins with that byte: those of four bytes take a pair.
std::size_t UnitCount(char first) { return static_cast<unsigned char>(first) >= 0xF0 ? 2 : 1; }

/// In bytes, of the character at that place.
std::size_t LengthAt(std::string_view text, std::size_t at) {
    constexpr std::size_t longest = 4;
    const std::string_view character = text.substr(at, longest);
    return std::find_if_not(character.begin() + 1, character.end(), IsFollower) - character.begin();
}

}  // namespace

std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); at += LengthAt(text, at)) count += UnitCount(text[at]);
    return count;
}

std::string_view FirstCharacters(std::string_view text, std::size_t count) {
    std::size_t end = 0;
    while (end < text.size() && UnitCount(text[end]) <= count) {
        count -= UnitCount(text[end]);
        end += LengthAt(text, end);
    }
    return text.substr(0, end);
}

std::string_view LastCharacter(std::string_view text) {
    std::size_t last = 0;
    for (std::size_t at = 0; at < text.size(); at += LengthAt(text, at)) last = at;
    return text.substr(last);
}

std::string_view TrimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}
