// What do all fuzz targets share?
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

inline void Require(bool condition) {
    if (!condition) std::abort();
}

/// The characters of a text, one after another. A byte of 10xxxxxx goes on with one, to four bytes in all.
inline std::vector<std::string_view> CharactersOf(std::string_view text) {
    std::vector<std::string_view> characters;
    std::size_t start = 0;
    for (std::size_t at = 1; at <= text.size(); ++at) {
        const bool goesOn = at < text.size() && text[at] < '\xC0' && at - start < 4;
        if (goesOn) continue;
        characters.push_back(text.substr(start, at - start));
        start = at;
    }
    return characters;
}

/// How many a box counts: a character of four bytes, whose first is 1111xxxx, takes two of its units.
inline std::size_t UnitsOf(std::string_view character) {
    return (static_cast<unsigned char>(character.front()) >> 4) == 0xF ? 2 : 1;
}

inline std::size_t CountUnits(std::string_view text) {
    std::size_t count = 0;
    for (const std::string_view character : CharactersOf(text)) count += UnitsOf(character);
    return count;
}

/// Takes an input apart, from its front.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t* data, std::size_t size) : left(reinterpret_cast<const char*>(data), size) {}

    /// 0 when nothing is left.
    int takeByte() {
        if (left.empty()) return 0;
        const auto byte = static_cast<unsigned char>(left.front());
        left.remove_prefix(1);
        return byte;
    }
    /// The text before the next line feed, or all that is left.
    std::string_view takeLine() {
        const std::string_view line = left.substr(0, left.find('\n'));
        left.remove_prefix(std::min(line.size() + 1, left.size()));
        return line;
    }
    std::string_view takeRest() { return left; }

private:
    std::string_view left;
};
