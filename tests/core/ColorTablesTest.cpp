#include "core/ColorTables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <set>
#include <string>
#include <vector>

#include "core/ChannelText.h"

namespace {

std::string Hex(PackedColor packed) {
    const Color color = Unpack(packed);
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "#%02X%02X%02X", static_cast<unsigned>(color.red),
                  static_cast<unsigned>(color.green), static_cast<unsigned>(color.blue));
    return text.data();
}

std::string NameOf(std::string_view nameHex) { return std::string(nameHex.substr(0, nameHex.find(' '))); }

constexpr Color silver = ColorOf(0xC0, 0xC0, 0xC0);
constexpr Color middleGrey = ColorOf(0x80, 0x80, 0x80);

}  // namespace

TEST(Websafe, BlueRunsFastestThenGreenThenRed) {
    EXPECT_EQ(Hex(colorTables.websafeColor[0]), "#000000");
    EXPECT_EQ(Hex(colorTables.websafeColor[1]), "#000033");
    EXPECT_EQ(Hex(colorTables.websafeColor[5]), "#0000FF");
    EXPECT_EQ(Hex(colorTables.websafeColor[6]), "#003300");
    EXPECT_EQ(Hex(colorTables.websafeColor[36]), "#330000");
    EXPECT_EQ(Hex(colorTables.websafeColor[43]), "#333333");
    EXPECT_EQ(Hex(colorTables.websafeColor[215]), "#FFFFFF");
}

TEST(Websafe, EntriesAreAllCombinationsOfTheSixSteps) {
    const std::vector<int> steps = {0x00, 0x33, 0x66, 0x99, 0xCC, 0xFF};
    std::set<PackedColor> expected;
    for (const int red : steps) {
        for (const int green : steps) {
            for (const int blue : steps) expected.insert(Pack(ColorOf(red, green, blue)));
        }
    }
    const auto& table = colorTables.websafeColor;
    EXPECT_EQ(std::set(table.begin(), table.end()), expected);
    EXPECT_EQ(expected.size(), table.size());
}

TEST(Websafe, RecordAndPackedColorAreTheSame) {
    for (int i = 0; i < 216; ++i)
        EXPECT_EQ(Pack(colorTables.websafeChannels[i]), colorTables.websafeColor[i]);
}

TEST(Failsafe, HexAndPackedColorAreTheSame) {
    for (int i = 0; i < 16; ++i) EXPECT_EQ(Hex(colorTables.failsafeColor[i]), colorTables.failsafeHex[i]);
}

TEST(Failsafe, PurpleIsEntry1AndNavyIsEntry2AndRedIsEntry13) {
    EXPECT_EQ(colorTables.failsafeColor[1], 0x800080);
    EXPECT_EQ(colorTables.failsafeColor[2], 0x800000);
    EXPECT_EQ(colorTables.failsafeColor[13], 255);
}

TEST(JavaScriptTables, AlphabeticalOrderIsAlphabetical) {
    EXPECT_TRUE(std::ranges::is_sorted(colorTables.jsName));
    EXPECT_EQ(colorTables.jsName.front(), "aliceblue");
    EXPECT_EQ(colorTables.jsName.back(), "yellowgreen");
}

TEST(JavaScriptTables, NameColorAndNameHexOfAnIndexAreOneColor) {
    for (int i = 0; i < 140; ++i) {
        EXPECT_EQ(std::string(colorTables.jsName[i]) + " " + Hex(colorTables.jsColor[i]),
                  colorTables.jsNameHex[i]);
        const std::string_view dotNet = colorTables.jsDotNetNameHex[i];
        EXPECT_EQ(NameOf(dotNet) + " " + Hex(colorTables.jsDotNetColor[i]), dotNet);
    }
}

TEST(JavaScriptTables, TwoPairsOfEqualColors) {
    EXPECT_EQ(colorTables.jsNameHex[2], "aqua #00FFFF");
    EXPECT_EQ(colorTables.jsNameHex[20], "cyan #00FFFF");
    EXPECT_EQ(colorTables.jsNameHex[45], "fuchsia #FF00FF");
    EXPECT_EQ(colorTables.jsNameHex[79], "magenta #FF00FF");
    const auto& table = colorTables.jsColor;
    EXPECT_EQ(std::set(table.begin(), table.end()).size(), 138U);
}

TEST(JavaScriptTables, BothOrdersHoldTheSameEntriesButForOneSpelling) {
    std::set<std::string_view> alphabetical(colorTables.jsNameHex.begin(), colorTables.jsNameHex.end());
    std::set<std::string_view> dotNet(colorTables.jsDotNetNameHex.begin(), colorTables.jsDotNetNameHex.end());
    EXPECT_EQ(alphabetical.size(), 140U);
    EXPECT_EQ(dotNet.size(), 140U);
    std::vector<std::string_view> onlyOne;
    std::ranges::set_symmetric_difference(alphabetical, dotNet, std::back_inserter(onlyOne));
    EXPECT_EQ(onlyOne, (std::vector<std::string_view>{"blancedalmond #FFEBCD", "blanchedalmond #FFEBCD"}));
}

TEST(JavaScriptTables, DotNetOrderRunsFromGreysToPinks) {
    const auto& order = colorTables.jsDotNetNameHex;
    EXPECT_EQ(order[0], "black #000000");
    EXPECT_EQ(order[8], "white #FFFFFF");
    EXPECT_EQ(order[16], "red #FF0000");
    EXPECT_EQ(order[39], "blancedalmond #FFEBCD");
    EXPECT_EQ(order[89], "aqua #00FFFF");
    EXPECT_EQ(order[90], "cyan #00FFFF");
    EXPECT_EQ(order[129], "magenta #FF00FF");
    EXPECT_EQ(order[130], "fuchsia #FF00FF");
    EXPECT_EQ(order[139], "lightpink #FFB6C1");
}

TEST(Membership, DarkGrey333333IsWebsafe) { EXPECT_TRUE(IsWebsafe(ColorOf(0x33, 0x33, 0x33))); }

TEST(Membership, Grey808080IsFailsafeButNotWebsafe) {
    EXPECT_EQ(colorTables.failsafeColor[7], Pack(middleGrey));
    EXPECT_TRUE(IsFailsafe(middleGrey));
    EXPECT_FALSE(IsWebsafe(middleGrey));
}

TEST(Membership, SilverIsFailsafeAndJavaScriptButNotWebsafe) {
    EXPECT_EQ(colorTables.failsafeColor[14], Pack(silver));
    EXPECT_TRUE(IsFailsafe(silver));
    EXPECT_TRUE(IsJavaScriptColor(silver));
    EXPECT_EQ(JavaScriptName(silver), "silver");
    EXPECT_FALSE(IsWebsafe(silver));
}

TEST(Membership, Cyan00FFFFIsInAllThreeTables) {
    const Color cyan = ColorOf(0, 255, 255);
    EXPECT_EQ(colorTables.failsafeColor[10], Pack(cyan));
    EXPECT_EQ(ColorPropertyLetters(cyan), "WFJ");
    EXPECT_EQ(JavaScriptName(cyan), "cyan");
}

TEST(Membership, AlmostBlack010101IsInNoTable) {
    EXPECT_EQ(ColorPropertyLetters(ColorOf(1, 1, 1)), "");
    EXPECT_EQ(JavaScriptName(ColorOf(1, 1, 1)), "");
}

TEST(ColorPropertyLetters, StandInTheOrderWFJ) {
    EXPECT_EQ(ColorPropertyLetters(ColorOf(0x33, 0x33, 0x33)), "W");
    EXPECT_EQ(ColorPropertyLetters(middleGrey), "FJ");
    EXPECT_EQ(ColorPropertyLetters(ColorOf(0xFA, 0xFA, 0xD2)), "J");
    EXPECT_EQ(ColorPropertyLetters(ColorOf(255, 0, 0)), "WFJ");
}

TEST(JavaScriptName, IsTheSecondOfEachPairOfEqualColors) {
    EXPECT_EQ(JavaScriptName(ColorOf(0, 255, 255)), "cyan");
    EXPECT_EQ(JavaScriptName(ColorOf(255, 0, 255)), "magenta");
}

TEST(JavaScriptName, SpellsBlanchedalmondAsTheAlphabeticalListDoes) {
    EXPECT_EQ(JavaScriptName(ColorOf(0xFF, 0xEB, 0xCD)), "blanchedalmond");
}

TEST(JavaScriptName, FindsTheFirstAndTheLastEntryAndNothingElse) {
    EXPECT_EQ(JavaScriptName(ColorOf(0xF0, 0xF8, 0xFF)), "aliceblue");
    EXPECT_EQ(JavaScriptName(ColorOf(0x9A, 0xCD, 0x32)), "yellowgreen");
    EXPECT_EQ(JavaScriptName(ColorOf(0x12, 0x34, 0x56)), "");
}
