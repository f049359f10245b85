// What are the marks called in the contrast window, and what is said of a pair?
#include "pickers/ContrastText.h"

#include <gtest/gtest.h>

namespace {

constexpr Color navy = ColorOf(0, 0, 128);
constexpr Color paper = ColorOf(255, 255, 255);

std::string LabelOf(const char* name, const Color& color = navy) {
    Palette palette;
    palette.names[2] = name;
    palette.colors[2] = color;
    return LabelledMarks(palette)[2].label;
}

}  // namespace

TEST(ContrastLabels, AreTheNamesAsTheMarksBearThem) {
    EXPECT_EQ(LabelOf("navy"), "navy");
    EXPECT_EQ(LabelOf("  Navy & co "), "  Navy & co ");
    EXPECT_EQ(LabelOf("type a colour name"), "type a colour name");
}

TEST(ContrastLabels, OfMarksWithoutANameAreTheirColors) {
    for (const char* none : {"", "   ", "Type a colour name", "Not JavaScript colour"})
        EXPECT_EQ(LabelOf(none), "#000080") << none;
    EXPECT_EQ(LabelOf("", ColorOf(1, 171, 255)), "#01ABFF");
}

TEST(ContrastTexts, OfAPairNameTheTextFirstThenRatioAndGrade) {
    EXPECT_EQ(PairText({"navy", navy}, {"white", paper}), "navy on white: 16.00:1, AAA");
    EXPECT_EQ(PairText({"white", paper}, {"navy", navy}), "white on navy: 16.00:1, AAA");
    EXPECT_EQ(PairText({"#777777", ColorOf(0x77, 0x77, 0x77)}, {"white", paper}),
              "#777777 on white: 4.47:1, AA 18 pt");
    EXPECT_EQ(PairText({"white", paper}, {"white", paper}), "white on white: 1.00:1, -");
}

TEST(ContrastTexts, OfOneMarkAreItsNameAndColor) {
    EXPECT_EQ(MarkText({"navy", navy}), "navy #000080");
    EXPECT_EQ(MarkText({"#000080", navy}), "#000080");
}
