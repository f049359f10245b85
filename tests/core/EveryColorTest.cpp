// The reference tables against a list that others keep, and against every colour that there is.
#include <gtest/gtest.h>

#include <string>

#include "core/ColorTables.h"
#include "tests/core/NamedColors.h"

TEST(JavaScriptTables, AreTodaysColorsWithoutTheLaterNames) {
    NamedColors actual;
    for (int i = 0; i < 140; ++i) actual[std::string(colorTables.jsName[i])] = colorTables.jsColor[i];
    EXPECT_EQ(actual.size(), 140U);
    EXPECT_EQ(actual, ReadJavaScriptColors());
}

TEST(Membership, OfAllColorsExactlyThoseOfTheTables) {
    constexpr int allColors = 1 << 24;
    int websafe = 0;
    int failsafe = 0;
    int javaScript = 0;
    for (PackedColor packed = 0; packed < allColors; ++packed) {
        const Color color = Unpack(packed);
        websafe += IsWebsafe(color);
        failsafe += IsFailsafe(color);
        javaScript += IsJavaScriptColor(color);
    }
    EXPECT_EQ(websafe, 216);
    EXPECT_EQ(failsafe, 16);
    EXPECT_EQ(javaScript, 138);  // two pairs of names share a colour
}
