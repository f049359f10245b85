// Which palettes do the tests of palette files write and read?
#pragma once

#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "palette/FirstLines.h"
#include "palette/PaletteFile.h"

/// As the program holds it. The letters with accents in these files are those of Latin-1.
inline std::string FileText(const std::string& name) {
    std::ifstream file(std::string(HUEVOX_TEST_FILES) + name, std::ios::binary);
    std::string text;
    for (auto byte = std::istreambuf_iterator<char>(file); byte != std::istreambuf_iterator<char>(); ++byte) {
        const auto value = static_cast<unsigned char>(*byte);
        if (value >= 0x80) text += static_cast<char>(0xC0 | value >> 6);
        text += static_cast<char>(value >= 0x80 ? 0x80 | (value & 0x3F) : value);
    }
    return text;
}

inline std::vector<std::string> LinesOf(std::string_view text, std::size_t most = linesLookedAt) {
    FirstLines lines(most, most);
    lines.take(text);
    const std::vector kept = lines.kept();
    return {kept.begin(), kept.end()};
}

inline std::optional<Palette> Parsed(std::string_view text) {
    FirstLines lines(linesLookedAt, linesLookedAt);
    lines.take(text);
    return ParsePaletteLines(lines.kept());
}

inline Palette SavedPalette() {
    return {.names = {"Sea", "Type a colour name", "a, b] and [c", "café", "", "lightgoldenrodyellow!"},
            .colors = {ColorOf(0, 128, 255), ColorOf(255, 0, 128), ColorOf(0, 0, 0), ColorOf(255, 255, 255),
                       ColorOf(1, 20, 255), ColorOf(250, 250, 210)}};
}
