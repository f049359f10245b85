#include "support/Marks.h"

#include <gtest/gtest.h>

namespace {

struct ShownPalette {
    Marks marks;
    MarkNames names;
};

ShownPalette NewPalette() {
    ShownPalette palette;
    LoadDefaultMarks(palette.marks);
    palette.marks.markColor = palette.marks.savedMarkColor = palette.marks.defaultMarkColor;
    palette.names = palette.marks.savedMarkName = palette.marks.defaultMarkName;
    return palette;
}

}  // namespace

TEST(LoadDefaultMarks, AreRedYellowGreenCyanBlueAndMagentaWithoutNames) {
    Marks marks;
    LoadDefaultMarks(marks);
    EXPECT_EQ(marks.defaultMarkColor[0], ColorOf(255, 0, 0));
    EXPECT_EQ(marks.defaultMarkColor[1], ColorOf(255, 255, 0));
    EXPECT_EQ(marks.defaultMarkColor[2], ColorOf(0, 255, 0));
    EXPECT_EQ(marks.defaultMarkColor[3], ColorOf(0, 255, 255));
    EXPECT_EQ(marks.defaultMarkColor[4], ColorOf(0, 0, 255));
    EXPECT_EQ(marks.defaultMarkColor[5], ColorOf(255, 0, 255));
    for (const std::string& name : marks.defaultMarkName) EXPECT_EQ(name, "Type a colour name");
}

TEST(IsPaletteChanged, ANewPaletteIsUnchanged) {
    const ShownPalette palette = NewPalette();
    EXPECT_FALSE(IsPaletteChanged(palette.marks, palette.names));
}

TEST(IsPaletteChanged, AnyChannelOfAnyMarkCounts) {
    for (int mark = 0; mark < markCount; ++mark) {
        for (int channel = 0; channel < 3; ++channel) {
            ShownPalette palette = NewPalette();
            Color& color = palette.marks.markColor[mark];
            int& value = channel == 0 ? color.red : channel == 1 ? color.green : color.blue;
            value ^= 1;
            EXPECT_TRUE(IsPaletteChanged(palette.marks, palette.names)) << mark << ' ' << channel;
        }
    }
}

TEST(IsPaletteChanged, AnyNameCounts) {
    for (int mark = 0; mark < markCount; ++mark) {
        ShownPalette palette = NewPalette();
        palette.names[mark] = "navy";
        EXPECT_TRUE(IsPaletteChanged(palette.marks, palette.names)) << mark;
    }
}

TEST(IsPaletteChanged, ThePlaceholdersAreEqualInEitherOrder) {
    ShownPalette palette = NewPalette();
    palette.names[3] = "Not JavaScript colour";
    EXPECT_FALSE(IsPaletteChanged(palette.marks, palette.names));
    palette.marks.savedMarkName[3] = "Not JavaScript colour";
    palette.names[3] = "Type a colour name";
    EXPECT_FALSE(IsPaletteChanged(palette.marks, palette.names));
}

TEST(IsPaletteChanged, APlaceholderAndANameDiffer) {
    ShownPalette palette = NewPalette();
    palette.marks.savedMarkName[0] = "navy";
    EXPECT_TRUE(IsPaletteChanged(palette.marks, palette.names));
    palette.names[0] = "Not JavaScript colour";
    EXPECT_TRUE(IsPaletteChanged(palette.marks, palette.names));
}

TEST(IsPaletteChanged, NavyRetypedAsNavyWithACapitalIsAChange) {
    ShownPalette palette = NewPalette();
    palette.marks.savedMarkName[0] = "navy";
    palette.names[0] = "Navy";
    EXPECT_TRUE(IsPaletteChanged(palette.marks, palette.names));
    palette.names[0] = "navy";
    EXPECT_FALSE(IsPaletteChanged(palette.marks, palette.names));
}
