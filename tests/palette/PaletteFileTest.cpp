#include "palette/PaletteFile.h"

#include <gtest/gtest.h>

#include "tests/palette/PaletteTexts.h"

namespace {

std::string Joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    return text;
}

/// The lines that a reader of the current generation looks at.
std::vector<std::string> CurrentLines() {
    return {"THIS FILE WAS MADE IN HUEVOX. DO NOT EDIT.",
            "Do not use versions prior to Huevox 8.0 when you open this file.",
            "",
            "[Huevox data]",
            "one",
            "1,2,3",
            "two",
            "4,5,6",
            "three",
            "7,8,9",
            "four",
            "10,11,12",
            "five",
            "13,14,15",
            "six",
            "16,17,18"};
}

/// An older file with another colour line for mark 2.
std::string OlderWith(const std::string& colorLine, const std::string& nameLine = "[name]") {
    std::vector<std::string> lines = {"This is a Huevox Palette File. Do not edit.", ""};
    for (int mark = 0; mark < 6; ++mark) {
        lines.push_back(mark == 2 ? nameLine : "[name]");
        lines.insert(lines.end(), {"", "", mark == 2 ? colorLine : "12345678901234255, 0, 128)", ""});
    }
    return Joined(lines);
}

std::optional<Palette> CurrentWith(std::size_t line, const std::string& text) {
    std::vector<std::string> lines = CurrentLines();
    lines[line] = text;
    return Parsed(Joined(lines));
}

Palette OlderPalette() {
    return {.names = {"Brick", "Night", "x, y]", "", "white", "Type a colour name"},
            .colors = {ColorOf(178, 34, 34), ColorOf(0, 0, 128), ColorOf(255, 255, 0), ColorOf(0, 0, 0),
                       ColorOf(255, 255, 255), ColorOf(7, 70, 207)}};
}

}  // namespace

TEST(ParsePaletteLines, ReadsTheCurrentGeneration) {
    EXPECT_EQ(Parsed(FileText("saved.txt")), SavedPalette());
}

TEST(ParsePaletteLines, ReadsTheThreeOlderGenerations) {
    EXPECT_EQ(Parsed(FileText("generation1.txt")), OlderPalette());
    EXPECT_EQ(Parsed(FileText("generation2.txt")), OlderPalette());
    EXPECT_EQ(Parsed(FileText("generation3.txt")), OlderPalette());
}

TEST(ParsePaletteLines, ANameWithACommaOrABracketIsAWholeLine) {
    const std::optional<Palette> read = CurrentWith(6, "a,b]c[");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->names[1], "a,b]c[");
}

TEST(ParsePaletteLines, NothingFromLine16OnHasAnEffect) {
    const std::optional<Palette> short16 = Parsed(Joined(CurrentLines()));
    ASSERT_TRUE(short16);
    std::vector<std::string> lines = CurrentLines();
    lines.insert(lines.end(), {"16,17", "", std::string(5000, 'x')});
    EXPECT_EQ(Parsed(Joined(lines)), short16);
}

TEST(ParsePaletteLines, NeitherDoLines1To3) {
    const std::optional<Palette> read = Parsed(Joined(CurrentLines()));
    ASSERT_TRUE(read);
    EXPECT_EQ(CurrentWith(1, "other"), read);
    EXPECT_EQ(CurrentWith(2, "other"), read);
    EXPECT_EQ(CurrentWith(3, ""), read);
}

TEST(ParsePaletteLines, AFirstLineWithATrailingBlankOrInOtherLetterCaseIsRejected) {
    for (const char* file : {"saved.txt", "generation1.txt", "generation2.txt", "generation3.txt"}) {
        const std::string text = FileText(file);
        ASSERT_TRUE(Parsed(text)) << file;
        std::string blank = text;
        blank.insert(text.find("\r\n"), " ");
        EXPECT_FALSE(Parsed(blank)) << file;
        std::string otherCase = text;
        otherCase[1] ^= 0x20;
        EXPECT_FALSE(Parsed(otherCase)) << file;
    }
}

TEST(ParsePaletteLines, AFileThatEndsBeforeTheLastColorIsRejected) {
    std::vector<std::string> lines = CurrentLines();
    lines.pop_back();
    EXPECT_FALSE(Parsed(Joined(lines)));
    for (const auto& [file, linesNeeded] :
         {std::pair{"generation1.txt", 46U}, std::pair{"generation2.txt", 41U},
          std::pair{"generation3.txt", 31U}}) {
        const std::string text = FileText(file);
        std::vector first = LinesOf(text, linesNeeded);
        EXPECT_TRUE(Parsed(Joined(first))) << file;
        first.pop_back();
        EXPECT_FALSE(Parsed(Joined(first))) << file;
    }
}

TEST(ParsePaletteLines, TextsThatAreNoPaletteAreRejected) {
    const std::string text = Joined(CurrentLines());
    std::string unixText = text;
    std::erase(unixText, '\r');
    std::string utf16 = "\xFF\xFE";
    for (const char character : text) utf16 += {character, '\0'};
    for (const std::string& other :
         {std::string(), std::string("\r\n"), "\xEF\xBB\xBF" + text, utf16, unixText})
        EXPECT_FALSE(Parsed(other));
}

TEST(ParsePaletteLines, ANumberIsBlanksASignDigitsBlanks) {
    for (const char* line :
         {"7, 8,9 ", "  7  ,+8,009", "7,8,9,", "7,8,9,x,y", "+7,8,9", "007,0000000000008,9"}) {
        const std::optional<Palette> read = CurrentWith(9, line);
        ASSERT_TRUE(read) << line;
        EXPECT_EQ(read->colors[2], ColorOf(7, 8, 9)) << line;
    }
    for (const char* line :
         {"", "7", "7,8", "7,8,", ",8,9", "7,,9", "7,8, ", "7,8,9x", "7,8,x9", "7,8,9 0", "7,8,- 9",
          "7,8,--9", "7,8,+-9", "7,8,-", "7,8,+", "7,8,0x9", "7,8,9.0", "7;8;9", "7,8,\t9"}) {
        EXPECT_FALSE(CurrentWith(9, line)) << line;
    }
}

TEST(ParsePaletteLines, ANumberFits32Bits) {
    EXPECT_TRUE(CurrentWith(9, "7,8,2147483647"));
    EXPECT_FALSE(CurrentWith(9, "7,8,2147483648"));
    EXPECT_TRUE(CurrentWith(9, "7,8,-2147483648"));
    EXPECT_FALSE(CurrentWith(9, "7,8,-2147483649"));
}

TEST(ParsePaletteLines, TheCurrentGenerationLimitsChannelsAndOlderOnesRejectThem) {
    const std::optional<Palette> read = CurrentWith(9, "256,-1,255");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->colors[2], ColorOf(255, 0, 255));
    EXPECT_TRUE(Parsed(OlderWith("12345678901234255, 0, 255)")));
    EXPECT_FALSE(Parsed(OlderWith("12345678901234256, 0, 255)")));
    EXPECT_FALSE(Parsed(OlderWith("12345678901234255, 256, 255)")));
    EXPECT_FALSE(Parsed(OlderWith("12345678901234255, 0, 256)")));
    EXPECT_FALSE(Parsed(OlderWith("12345678901234-1, 0, 255)")));
    EXPECT_FALSE(Parsed(OlderWith("12345678901234255, -1, 255)")));
    EXPECT_FALSE(Parsed(OlderWith("12345678901234255, 0, -1)")));
}

TEST(ParsePaletteLines, WithoutABlankAfterItsCommasAnOlderFileLosesFirstDigits) {
    const std::optional<Palette> read = Parsed(OlderWith("12345678901234112,113,114)"));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->colors[2], ColorOf(112, 13, 14));
}

TEST(ParsePaletteLines, OlderLinesTooShortForWhatIsDroppedAreRejected) {
    EXPECT_TRUE(Parsed(OlderWith("123456789012341, 2, 3)", "[]")));
    EXPECT_FALSE(Parsed(OlderWith("123456789012341, 2, 3)", "[")));
    EXPECT_FALSE(Parsed(OlderWith("123456789012341, 2, 3)", "")));
    for (const char* line : {"", "1234567890123", "12345678901234", "123456789012341,,)",
                             "123456789012341, 2,", "123456789012341, 2, ", "123456789012341, 2,)"}) {
        EXPECT_FALSE(Parsed(OlderWith(line))) << line;
    }
}

TEST(ParsePaletteLines, NamesAreCutTo21Characters) {
    const std::string letters = "abcdefghijklmnopqrstu";
    EXPECT_EQ(CurrentWith(6, letters)->names[1], letters);
    EXPECT_EQ(CurrentWith(6, letters + "v")->names[1], letters);
    EXPECT_EQ(Parsed(OlderWith("123456789012341, 2, 3)", '[' + letters + "v]"))->names[2], letters);
}

TEST(ParsePaletteLines, CountsCharactersNotBytes) {
    std::string letters;
    for (int count = 0; count < longestName; ++count) letters += "ソ";
    EXPECT_EQ(CurrentWith(6, letters)->names[1], letters);
    EXPECT_EQ(CurrentWith(6, letters + "ソ")->names[1], letters);
    const std::string pairs = letters.substr(3) + "\U0001F3A8";
    EXPECT_EQ(CurrentWith(6, pairs)->names[1], letters.substr(3)) << "half a character is none";
    EXPECT_EQ(CurrentWith(6, pairs.substr(3))->names[1], pairs.substr(3));
    const std::optional<Palette> read = Parsed(OlderWith("1234567890123ソ1,表2, 3色", "【x】"));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->names[2], "x");
    EXPECT_EQ(read->colors[2], ColorOf(1, 2, 3));
}
