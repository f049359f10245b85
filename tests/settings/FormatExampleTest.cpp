#include "settings/FormatExample.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "core/ColorCode.h"

namespace {

std::string Example(int index) { return FormatExample(index, "template"); }
std::string Custom(std::string_view customFormat) { return FormatExample(customNotation, customFormat); }

}  // namespace

TEST(FormatExample, ShowsAmberInEachNotation) {
    EXPECT_EQ(Example(0), "FFCC00");
    EXPECT_EQ(Example(1), "ffcc00");
    EXPECT_EQ(Example(2), "&H0000CCFF&");
    EXPECT_EQ(Example(3), "RGB(255, 204, 0)");
    EXPECT_EQ(Example(4), "0x0000ccff");
    EXPECT_EQ(Example(5), "$0000CCFF");
    EXPECT_EQ(Example(6), "52479");
    EXPECT_EQ(Example(7), "ColorTranslator.FromHtml(\"#FFCC00\")");
    EXPECT_EQ(Example(8), "ColorTranslator.FromOle(52479)");
    EXPECT_EQ(Example(9), "ColorTranslator.FromWin32(52479)");
    EXPECT_EQ(Example(10), "Color(255,204,0)");
    EXPECT_EQ(Example(11), "template");
}

TEST(FormatExample, IsWhatTheNotationRendersButForTheSignOfHtml) {
    for (int index = 0; index < notationCount; ++index) {
        const std::string sign = index < 2 ? "#" : "";
        EXPECT_EQ(sign + FormatExample(index, "<%LD%>"),
                  ColorCode(index, ColorOf(255, 204, 0), "<%LD%>").value())
            << notations[index].caption;
    }
    EXPECT_EQ(Example(notationCount), "");
}

TEST(FormatExample, IsEmptyForAnIndexOutside0To11) {
    for (const int index : {-1, 12, INT_MIN, INT_MAX}) EXPECT_EQ(Example(index), "") << index;
}

TEST(FormatExample, OfATemplateKeepsItsFirstSign) { EXPECT_EQ(Custom("#%UR%"), "#FF"); }

TEST(FormatExample, IsEmptyForAnEmptyTemplate) { EXPECT_EQ(Custom(""), ""); }

TEST(FormatExample, FillsInAllTenPlaceholders) {
    EXPECT_EQ(Custom("%UR% %UG% %UB%"), "FF CC 00");
    EXPECT_EQ(Custom("%LR% %LG% %LB%"), "ff cc 00");
    EXPECT_EQ(Custom("%DR% %DG% %DB%"), "255 204 0");
    EXPECT_EQ(Custom("%LD%"), "52479");
}

TEST(FormatExample, FillsInEveryOccurrenceAndNothingElse) {
    EXPECT_EQ(Custom("%LD%, %DG%, %LD%%DG%"), "52479, 204, 52479204");
    EXPECT_EQ(Custom("100% %ur% %XX% & %"), "100% %ur% %XX% & %");
}

TEST(FormatExample, APlaceholderIsNotMadeOfWhatStandsAroundAnother) {
    EXPECT_EQ(Custom("%%UR%UG%"), "%FFUG%");
    EXPECT_EQ(Custom("%UR%UG%"), "FFUG%");
}

TEST(DoubledAmpersands, DoublesEachAndNothingElse) {
    EXPECT_EQ(DoubledAmpersands(""), "");
    EXPECT_EQ(DoubledAmpersands("RGB(255, 204, 0)"), "RGB(255, 204, 0)");
    EXPECT_EQ(DoubledAmpersands("&H0000CCFF&"), "&&H0000CCFF&&");
    EXPECT_EQ(DoubledAmpersands("a&&b"), "a&&&&b");
}
