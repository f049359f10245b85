// The reference tables against a list that others keep, and against every colour that there is.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <map>
#include <set>
#include <string>

#include "core/ColorTables.h"

namespace {

using NamedColors = std::map<std::string, PackedColor>;

/// The colours of today's style sheets: lines such as "tan": [210, 180, 140].
NamedColors ColorsOfToday() {
    std::ifstream file(HUEVOX_COLOR_NAMES);
    NamedColors colors;
    for (std::string line; std::getline(file, line);) {
        std::array<char, 32> name{};
        int red = 0;
        int green = 0;
        int blue = 0;
        const int parts =
            std::sscanf(line.c_str(), R"( "%31[a-z]": [%d, %d, %d)", name.data(), &red, &green, &blue);
        if (parts == 4) colors[name.data()] = Pack(ColorOf(red, green, blue));
    }
    return colors;
}

/// Names that came into use after JavaScript's own.
const std::set<std::string> laterNames = {"darkgrey",  "darkslategrey",  "dimgrey",   "grey",
                                          "lightgray", "lightslategrey", "slategrey", "rebeccapurple"};

}  // namespace

TEST(JavaScriptTables, AreTodaysColorsWithoutTheLaterNames) {
    NamedColors expected = ColorsOfToday();
    for (const std::string& name : laterNames) EXPECT_EQ(expected.erase(name), 1U) << name;
    NamedColors actual;
    for (int i = 0; i < 140; ++i) actual[std::string(colorTables.jsName[i])] = colorTables.jsColor[i];
    EXPECT_EQ(actual.size(), 140U);
    EXPECT_EQ(actual, expected);
}

TEST(Membership, OfAllColorsExactlyThoseOfTheTables) {
    constexpr int allColors = 1 << 24;
    int websafe = 0;
    int failsafe = 0;
    int javaScript = 0;
    for (PackedColor color = 0; color < allColors; ++color) {
        websafe += IsWebsafe(color);
        failsafe += IsFailsafe(color);
        javaScript += IsJavaScriptColor(color);
    }
    EXPECT_EQ(websafe, 216);
    EXPECT_EQ(failsafe, 16);
    EXPECT_EQ(javaScript, 138);  // two pairs of names share a colour
}
