#include "randomuser/model/Facts.h"

#include <gtest/gtest.h>

#include "tests/core/NamedColors.h"

namespace {

const Facts& TheFacts() {
    static const Facts facts(ReadJavaScriptColors());
    return facts;
}

}  // namespace

TEST(SoakFacts, TellTheNamesOfTwins) {
    EXPECT_EQ(TheFacts().nameOf(ColorOf(0, 255, 255)), "cyan");
    EXPECT_EQ(TheFacts().nameOf(ColorOf(255, 0, 255)), "magenta");
    EXPECT_EQ(TheFacts().nameOf(ColorOf(18, 52, 86)), "");
}

TEST(SoakFacts, TellTheLetters) {
    EXPECT_EQ(TheFacts().lettersOf(ColorOf(255, 0, 0)), "WFJ");
    EXPECT_EQ(TheFacts().lettersOf(ColorOf(51, 51, 51)), "W");
    EXPECT_EQ(TheFacts().lettersOf(ColorOf(192, 192, 192)), "FJ");
    EXPECT_EQ(TheFacts().lettersOf(ColorOf(1, 1, 1)), "");
}

TEST(SoakFacts, ASearchDoesNotKnowAliceblueAndAReportDoes) {
    const Color aliceblue = ColorOf(0xF0, 0xF8, 0xFF);
    EXPECT_EQ(TheFacts().foundName(aliceblue), notJavaScript);
    EXPECT_EQ(TheFacts().offeredName(aliceblue, "x"), "aliceblue");
    EXPECT_EQ(TheFacts().offeredName(aliceblue, "aliceblue"), "");
}

TEST(SoakFacts, AReportHasFiveParagraphsAtMost) {
    EXPECT_EQ(TheFacts().report(ColorOf(0, 255, 255), "aqua"),
              "The selected colour is a websafe colour.\r\n\r\n"
              "The selected colour will look good in failsafe mode.\r\n\r\n"
              "The selected colour is a JavaScript colour.\r\n\r\n"
              "In JavaScript, the name of the selected colour is cyan (also known as aqua).\r\n\r\n"
              "Do you want to change the name of the selected colour to cyan?");
    EXPECT_EQ(TheFacts().report(ColorOf(1, 1, 1), ""),
              "The selected colour is not a websafe colour.\r\n\r\n"
              "The selected colour will not look good in failsafe mode.\r\n\r\n"
              "The selected colour is not a JavaScript colour.");
}

TEST(SoakFacts, TellEveryNotation) {
    const Color color = ColorOf(255, 204, 0);
    EXPECT_EQ(CodeOf(0, color, ""), "#FFCC00");
    EXPECT_EQ(CodeOf(1, color, ""), "#ffcc00");
    EXPECT_EQ(CodeOf(2, color, ""), "&H0000CCFF&");
    EXPECT_EQ(CodeOf(3, color, ""), "RGB(255, 204, 0)");
    EXPECT_EQ(CodeOf(4, color, ""), "0x0000ccff");
    EXPECT_EQ(CodeOf(5, color, ""), "$0000CCFF");
    EXPECT_EQ(CodeOf(6, color, ""), "52479");
    EXPECT_EQ(CodeOf(7, color, ""), "ColorTranslator.FromHtml(\"#FFCC00\")");
    EXPECT_EQ(CodeOf(8, color, ""), "ColorTranslator.FromOle(52479)");
    EXPECT_EQ(CodeOf(9, color, ""), "ColorTranslator.FromWin32(52479)");
    EXPECT_EQ(CodeOf(10, color, ""), "Color(255,204,0)");
    EXPECT_EQ(CodeOf(11, ColorOf(219, 1, 7), "%%UR%%-%ur%"), "7-%ur%");
}

TEST(SoakFacts, TellTheBar) {
    EXPECT_EQ(BarColor(ColorOf(100, 150, 200), 0), ColorOf(0, 50, 100));
    EXPECT_EQ(BarColor(ColorOf(100, 150, 200), 200), ColorOf(200, 250, 255));
    EXPECT_EQ(BarColor(ColorOf(255, 0, 0), 255), ColorOf(255, 255, 255));
}

TEST(SoakFacts, TellWhichValuesAreAllowed) {
    EXPECT_EQ(ValueOf(" 007 ", true), 7);
    EXPECT_EQ(ValueOf("255", true), 255);
    EXPECT_EQ(ValueOf("0f", false), 15);
    for (const char* text : {"256", "-1", "1.5", "", " "}) EXPECT_FALSE(ValueOf(text, true)) << text;
    for (const char* text : {"F", "FFF", "G0", ""}) EXPECT_FALSE(ValueOf(text, false)) << text;
}

TEST(SoakFacts, PlaceTheSwatches) {
    EXPECT_EQ(WebsafeColor(0), ColorOf(0, 0, 0));
    EXPECT_EQ(WebsafeColor(43), ColorOf(51, 51, 51));
    EXPECT_EQ(FailsafeColor(10), ColorOf(0, 255, 255));
    EXPECT_EQ(TheFacts().javaScriptColor(0), ColorOf(0xF0, 0xF8, 0xFF));
    EXPECT_EQ(TheFacts().colorByHue(39), ColorOf(0xFF, 0xEB, 0xCD));
}
