#include "mainwindow/panels/ColorReport.h"

#include <gtest/gtest.h>

#include <string>

namespace {

const std::string gap = "\r\n\r\n";
const std::string websafe = "The selected colour is a websafe colour.";
const std::string notWebsafe = "The selected colour is not a websafe colour.";
const std::string failsafe = "The selected colour will look good in failsafe mode.";
const std::string notFailsafe = "The selected colour will not look good in failsafe mode.";
const std::string notJavaScriptColor = "The selected colour is not a JavaScript colour.";

std::string JavaScript(const std::string& name) {
    return "The selected colour is a JavaScript colour.\r\n\r\n"
           "In JavaScript, the name of the selected colour is " +
           name + ".";
}

std::string Question(const std::string& name) {
    return "Do you want to change the name of the selected colour to " + name + "?";
}

ColorReport Report(int red, int green, int blue, std::string_view name) {
    return ReportColor(ColorOf(red, green, blue), name);
}

std::string_view Found(int red, int green, int blue) { return FindJavaScriptName(ColorOf(red, green, blue)); }

/// Of a colour with two names, the report tells both and offers the first only.
void ExpectTwins(ColorReport (*report)(std::string_view name), const std::string& first,
                 const std::string& second) {
    const std::string names = JavaScript(first + " (also known as " + second + ")");
    const std::string text = websafe + gap + failsafe + gap + names;
    const ColorReport named = report(first);
    EXPECT_EQ(named.text, text);
    EXPECT_EQ(named.offeredName, "");
    const ColorReport twin = report(second);
    EXPECT_EQ(twin.text, text + gap + Question(first));
    EXPECT_EQ(twin.offeredName, first);
}

}  // namespace

TEST(ColorReport, OfAWebsafeFailsafeJavaScriptColorWithAnotherNameHasFiveParagraphs) {
    const ColorReport report = Report(0xFF, 0xFF, 0xFF, "snowy");
    EXPECT_EQ(report.text, websafe + gap + failsafe + gap + JavaScript("white") + gap + Question("white"));
    EXPECT_EQ(report.offeredName, "white");
}

TEST(ColorReport, OfAColorInNoTableIsThreeTimesNegative) {
    const ColorReport report = Report(0x12, 0x34, 0x56, "Type a colour name");
    EXPECT_EQ(report.text, notWebsafe + gap + notFailsafe + gap + notJavaScriptColor);
    EXPECT_EQ(report.offeredName, "");
}

TEST(ColorReport, TellsAWebsafeColorThatIsNothingElse) {
    EXPECT_EQ(Report(0x33, 0x33, 0x33, "").text, websafe + gap + notFailsafe + gap + notJavaScriptColor);
}

TEST(ColorReport, TellsAFailsafeJavaScriptColorThatIsNotWebsafe) {
    EXPECT_EQ(Report(0xC0, 0xC0, 0xC0, "silver").text,
              notWebsafe + gap + failsafe + gap + JavaScript("silver"));
}

TEST(ColorReport, TellsAJavaScriptColorThatIsNothingElse) {
    EXPECT_EQ(Report(0xFF, 0xEB, 0xCD, "blanchedalmond").text,
              notWebsafe + gap + notFailsafe + gap + JavaScript("blanchedalmond"));
}

TEST(ColorReport, OffersNothingToAMarkThatBearsItsName) {
    const ColorReport report = Report(0xFF, 0x00, 0x00, "red");
    EXPECT_EQ(report.text, websafe + gap + failsafe + gap + JavaScript("red"));
    EXPECT_EQ(report.offeredName, "");
}

TEST(ColorReport, OffersTheNameToOneThatDiffersInTheSlightest) {
    for (const std::string_view name : {"White", "WHITE", "white ", " white", "whit", ""}) {
        EXPECT_EQ(Report(0xFF, 0xFF, 0xFF, name).offeredName, "white") << name;
    }
}

TEST(ColorReport, OfCyanNamesItsTwinAndOffersCyanOnly) {
    ExpectTwins([](auto name) { return Report(0x00, 0xFF, 0xFF, name); }, "cyan", "aqua");
}

TEST(ColorReport, OfMagentaNamesItsTwinAndOffersMagentaOnly) {
    ExpectTwins([](auto name) { return Report(0xFF, 0x00, 0xFF, name); }, "magenta", "fuchsia");
}

TEST(ColorReport, KnowsTheFirstAndTheLastName) {
    EXPECT_EQ(Report(0xF0, 0xF8, 0xFF, "").offeredName, "aliceblue");
    EXPECT_EQ(Report(0x9A, 0xCD, 0x32, "").offeredName, "yellowgreen");
}

TEST(ColorReport, NoChannelMayBeOff) {
    const std::string negative = notWebsafe + gap + notFailsafe + gap + notJavaScriptColor;
    for (const Color& color : {ColorOf(254, 255, 255), ColorOf(255, 254, 255), ColorOf(255, 255, 254)}) {
        EXPECT_EQ(ReportColor(color, "").text, negative);
    }
}

TEST(FindJavaScriptName, DoesNotSearchTheFirstNameButTheSecond) {
    EXPECT_EQ(Found(0xF0, 0xF8, 0xFF), "Not JavaScript colour");
    EXPECT_EQ(Found(0xFA, 0xEB, 0xD7), "antiquewhite");
}

TEST(FindJavaScriptName, SearchesTheLastName) { EXPECT_EQ(Found(0x9A, 0xCD, 0x32), "yellowgreen"); }

TEST(FindJavaScriptName, OfEqualColorsIsCyanAndMagenta) {
    EXPECT_EQ(Found(0x00, 0xFF, 0xFF), "cyan");
    EXPECT_EQ(Found(0xFF, 0x00, 0xFF), "magenta");
}

TEST(FindJavaScriptName, OfAnyOtherColorIsThePlaceholder) {
    EXPECT_EQ(Found(0x12, 0x34, 0x56), "Not JavaScript colour");
    EXPECT_EQ(Found(0x33, 0x33, 0x33), "Not JavaScript colour");
    EXPECT_EQ(Found(0xFE, 0x00, 0x00), "Not JavaScript colour");
}
