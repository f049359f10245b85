#include "randomuser/model/CodePage.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

/// The characters of the bytes from 0x80 to 0x9F; U+0000 where there is none that anybody types.
constexpr std::array<char32_t, 32> ownCharacters = {
    U'€', 0,    U'‚', U'ƒ', U'„', U'…', U'†', U'‡', U'ˆ', U'‰', U'Š', U'‹', U'Œ', 0, U'Ž', 0,
    0,    U'‘', U'’', U'“', U'”', U'•', U'–', U'—', U'˜', U'™', U'š', U'›', U'œ', 0, U'ž', U'Ÿ'};

/// Takes the first character away from text, which is UTF-8.
char32_t Next(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text.front());
    const int followers = first < 0x80 ? 0 : first < 0xE0 ? 1 : first < 0xF0 ? 2 : 3;
    char32_t character = followers == 0 ? first : first & (0x3F >> followers);
    for (int place = 1; place <= followers; ++place)
        character = character << 6 | (static_cast<unsigned char>(text.at(place)) & 0x3F);
    text.remove_prefix(1 + followers);
    return character;
}

std::optional<char> ByteOf(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
    const auto* const own = std::ranges::find(ownCharacters, character);
    if (own == ownCharacters.end()) return std::nullopt;
    return static_cast<char>(0x80 + (own - ownCharacters.begin()));
}

}  // namespace

std::string ShownInBox(std::string_view text) {
    std::string shown;
    while (!text.empty()) {
        const std::string_view before = text;
        const bool isHeld = ByteOf(Next(text)).has_value();
        shown += isHeld ? before.substr(0, before.size() - text.size()) : "?";
    }
    return shown;
}

std::string BytesInFile(std::string_view text) {
    std::string bytes;
    while (!text.empty()) bytes += ByteOf(Next(text)).value_or('?');
    return bytes;
}
