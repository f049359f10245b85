#include "core/ColorCode.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>

namespace {

const Color amber = ColorOf(255, 204, 0);
const Color black = ColorOf(0, 0, 0);

std::string Code(int index, const Color& color) { return ColorCode(index, color, "").value(); }

}  // namespace

TEST(Notations, StandInTheOrderOfTheirFormatIndex) {
    const std::array<std::string_view, 12> expected = {
        "HTML Hex", "Lower Case HTML Hex", "VB Hex",   "VB",         "C++ Hex", "Delphi Hex",
        "Access",   ".NET HTML",           ".NET OLE", ".NET Win32", "Java",    "Custom"};
    EXPECT_TRUE(std::ranges::equal(notations, expected, {}, &Notation::caption));
}

TEST(ColorCode, RendersAmberInEveryNotation) {
    EXPECT_EQ(Code(0, amber), "#FFCC00");
    EXPECT_EQ(Code(1, amber), "#ffcc00");
    EXPECT_EQ(Code(2, amber), "&H0000CCFF&");
    EXPECT_EQ(Code(3, amber), "RGB(255, 204, 0)");
    EXPECT_EQ(Code(4, amber), "0x0000ccff");
    EXPECT_EQ(Code(5, amber), "$0000CCFF");
    EXPECT_EQ(Code(6, amber), "52479");
    EXPECT_EQ(Code(7, amber), "ColorTranslator.FromHtml(\"#FFCC00\")");
    EXPECT_EQ(Code(8, amber), "ColorTranslator.FromOle(52479)");
    EXPECT_EQ(Code(9, amber), "ColorTranslator.FromWin32(52479)");
    EXPECT_EQ(Code(10, amber), "Color(255,204,0)");
}

TEST(ColorCode, RendersBlack) {
    EXPECT_EQ(Code(0, black), "#000000");
    EXPECT_EQ(Code(2, black), "&H00000000&");
    EXPECT_EQ(Code(3, black), "RGB(0, 0, 0)");
    EXPECT_EQ(Code(4, black), "0x00000000");
    EXPECT_EQ(Code(5, black), "$00000000");
    EXPECT_EQ(Code(6, black), "0");
    EXPECT_EQ(Code(8, black), "ColorTranslator.FromOle(0)");
    EXPECT_EQ(Code(10, black), "Color(0,0,0)");
}

TEST(ColorCode, WhiteIs16777215) { EXPECT_EQ(Code(6, ColorOf(255, 255, 255)), "16777215"); }

TEST(ColorCode, BlueStandsFirstInVbHexAndLastInHtmlHex) {
    const Color blue = ColorOf(0, 0, 255);
    EXPECT_EQ(Code(2, blue), "&H00FF0000&");
    EXPECT_EQ(Code(0, blue), "#0000FF");
}

TEST(ColorCode, AnIndexOutside0To11RendersNothing) {
    EXPECT_EQ(ColorCode(-1, amber, "x"), std::nullopt);
    EXPECT_EQ(ColorCode(12, amber, "x"), std::nullopt);
    EXPECT_TRUE(ColorCode(0, amber, "x").has_value());
    EXPECT_EQ(ColorCode(11, amber, "x"), "x");
}

TEST(ColorCode, AnEmptyTemplateRendersAnEmptyText) { EXPECT_EQ(Code(customNotation, amber), ""); }

TEST(CustomFormat, PlaceholdersAreMatchedCaseSensitively) {
    EXPECT_EQ(ExpandCustomFormat("%UR%-%ur%", amber), "FF-%ur%");
}

TEST(CustomFormat, APlaceholderFormedByAnEarlierPassIsExpandedByALaterOne) {
    EXPECT_EQ(ExpandCustomFormat("%%UR%%", ColorOf(219, 1, 77)), "77");
}

TEST(CustomFormat, APlaceholderFormedByALaterPassStays) {
    EXPECT_EQ(ExpandCustomFormat("%U%DB%%", ColorOf(1, 2, 3)), "%U3%");
    EXPECT_EQ(ExpandCustomFormat("%%LR%%", ColorOf(0xDB, 0, 0)), "%db%");
}

TEST(CustomFormat, ReproducesOtherNotations) {
    const Color color = ColorOf(1, 171, 205);
    EXPECT_EQ(ExpandCustomFormat("#%UR%%UG%%UB%", color), Code(0, color));
    EXPECT_EQ(ExpandCustomFormat("&H00%UB%%UG%%UR%&", color), Code(2, color));
    EXPECT_EQ(ExpandCustomFormat("%LD%", color), Code(6, color));
    EXPECT_EQ(ExpandCustomFormat("#%LR%%LG%%LB%", color), Code(1, color));
    EXPECT_EQ(ExpandCustomFormat("Color(%DR%,%DG%,%DB%)", color), Code(10, color));
}

TEST(CustomFormat, EveryOccurrenceIsReplaced) {
    EXPECT_EQ(ExpandCustomFormat("%DR%%DR% %DR%", ColorOf(7, 0, 0)), "77 7");
}

TEST(CustomFormat, OtherPercentSignsAreCopied) {
    EXPECT_EQ(ExpandCustomFormat("100% %XX% %UR %", amber), "100% %XX% %UR %");
    EXPECT_EQ(ExpandCustomFormat("%", amber), "%");
}

TEST(CustomFormat, AReplacementIsNotSearchedAgainByItsOwnPass) {
    // "%D" + "LD" + "%": the last pass leaves no placeholder behind, whatever it has formed.
    EXPECT_EQ(ExpandCustomFormat("%LD%LD%", ColorOf(1, 0, 0)), "1LD%");
}
