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
#include "tests/core/LeadBytes.h"

inline std::string FileText(const std::string& name) {
    std::ifstream file(std::string(HUEVOX_TEST_FILES) + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline std::vector<std::string> LinesOf(std::string_view text, std::size_t most = linesLookedAt) {
    FirstLines lines(most, most);
    lines.take(text);
    const std::vector kept = lines.kept();
    return {kept.begin(), kept.end()};
}

inline std::optional<Palette> Parsed(std::string_view text, LeadByteTest isLeadByte = NoLeadByte) {
    FirstLines lines(linesLookedAt, linesLookedAt);
    lines.take(text);
    return ParsePaletteLines(lines.kept(), isLeadByte);
}

inline Palette SavedPalette() {
    return {.names = {"Sea", "Type a colour name", "a, b] and [c", "caf\xE9", "", "lightgoldenrodyellow!"},
            .colors = {ColorOf(0, 128, 255), ColorOf(255, 0, 128), ColorOf(0, 0, 0), ColorOf(255, 255, 255),
                       ColorOf(1, 20, 255), ColorOf(250, 250, 210)}};
}
