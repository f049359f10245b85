#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "tests/palette/PaletteTexts.h"

namespace {

/// Of the first mark.
std::string CustomLine(const Palette& palette, std::string_view customFormat) {
    const std::vector lines = LinesOf(WritePaletteFile(palette, customFormat));
    const auto isCustom = [](const std::string& line) { return line.starts_with("Custom:"); };
    return *std::ranges::find_if(lines, isCustom);
}

}  // namespace

TEST(WritePaletteFile, WritesThe100LinesByteForByte) {
    EXPECT_EQ(WritePaletteFile(SavedPalette(), "rgb %UR%/%LG%/%DB% (%LD%) %ur%"), FileText("saved.txt"));
}

TEST(WritePaletteFile, AnEmptyTemplateGivesCustomWithNothingAfterIt) {
    EXPECT_EQ(CustomLine(SavedPalette(), ""), "Custom:");
}

TEST(WritePaletteFile, ATemplateOfABlankIsNotEmpty) {
    EXPECT_EQ(CustomLine(SavedPalette(), " "), "Custom:  ");
}

TEST(WritePaletteFile, TokensAreMatchedCaseSensitively) {
    Palette palette = SavedPalette();
    palette.colors[0] = ColorOf(255, 0, 0);
    EXPECT_EQ(CustomLine(palette, "%UR%%ur%"), "Custom: FF%ur%");
}

TEST(AsSaved, NotJavaScriptColourIsSavedAsTypeAColourName) {
    Palette palette = SavedPalette();
    palette.names[4] = "Not JavaScript colour";
    palette.names[5] = "not JavaScript colour";
    const std::optional<Palette> read = Parsed(WritePaletteFile(AsSaved(palette), ""));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->names[4], "Type a colour name");
    EXPECT_EQ(read->names[5], "not JavaScript colour");
    EXPECT_EQ(read->names[0], "Sea");
}

TEST(PaletteFile, WrittenAndReadBackIsTheSame) {
    const std::optional<Palette> read = Parsed(WritePaletteFile(SavedPalette(), "%UR%"));
    EXPECT_EQ(read, SavedPalette());
}

TEST(PaletteFile, AnyNamesAndColorsComeBack) {
    std::mt19937 random(20041);
    const auto upTo = [&](int most) { return std::uniform_int_distribution(0, most)(random); };
    const auto anyCharacter = [&]() -> std::string {
        const auto character = static_cast<char>(1 + upTo(126));
        const std::array<std::string, 4> choices = {"é", "Ж", "表", {character}};
        return character == '\n' ? "" : choices[upTo(3)];
    };
    for (int round = 0; round < 5000; ++round) {
        Palette palette;
        for (int mark = 0; mark < markCount; ++mark) {
            for (int left = upTo(longestName); left > 0; --left) palette.names[mark] += anyCharacter();
            palette.colors[mark] = ColorOf(upTo(255), upTo(255), upTo(255));
        }
        ASSERT_EQ(Parsed(WritePaletteFile(palette, "%LD%")), palette) << round;
    }
}
