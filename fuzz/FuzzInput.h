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

/// Code pages: one without two-byte characters, and one in which every high byte begins such a character.
inline bool NoLeadByte(char) { return false; }
inline bool HighLeadByte(char byte) { return (static_cast<unsigned char>(byte) & 0x80) != 0; }

/// The characters of a text, one after another; the last may be cut short.
inline std::vector<std::string_view> CharactersOf(std::string_view text, bool (*isLeadByte)(char)) {
    std::vector<std::string_view> characters;
    characters.reserve(text.size());
    bool isSecondByte = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (isSecondByte) {
            characters.back() = text.substr(at - 1, 2);
        } else {
            characters.push_back(text.substr(at, 1));
        }
        isSecondByte = !isSecondByte && isLeadByte(text[at]);
    }
    return characters;
}

/// At most count characters from first on, as one text again.
inline std::string Joined(const std::vector<std::string_view>& characters, std::size_t first,
                          std::size_t count) {
    std::string text;
    for (std::size_t at = first; at < characters.size() && at - first < count; ++at) text += characters[at];
    return text;
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
