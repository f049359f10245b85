#include "toolkit/platform/Twips.h"

#include <gtest/gtest.h>

TEST(Twips, FifteenAreAPixelAt96Dpi) {
    EXPECT_EQ(PixelsFromTwips(0, 96), 0);
    EXPECT_EQ(PixelsFromTwips(15, 96), 1);
    EXPECT_EQ(PixelsFromTwips(11'340, 96), 756);
    EXPECT_EQ(PixelsFromTwips(11'340, 192), 1'512);
}

TEST(Twips, AreRoundedToTheNearestPixel) {
    EXPECT_EQ(PixelsFromTwips(7, 96), 0);
    EXPECT_EQ(PixelsFromTwips(8, 96), 1);
    EXPECT_EQ(PixelsFromTwips(22, 96), 1);
    EXPECT_EQ(PixelsFromTwips(23, 96), 2);
    EXPECT_EQ(PixelsFromTwips(4, 144), 0);
    EXPECT_EQ(PixelsFromTwips(5, 144), 1);  // half a pixel
}

TEST(Twips, EdgesThatMeetInTwipsMeetInPixels) {
    for (const int dpi : {96, 120, 144, 192}) {
        for (int size = 1; size < 100; ++size) {
            const Area left = PixelsFromTwips(Area{0, 0, size, 10}, dpi);
            const Area right = PixelsFromTwips(Area{size, 0, 100, 10}, dpi);
            EXPECT_EQ(left.right, right.left);
            EXPECT_EQ(left.width() + right.width(), PixelsFromTwips(100, dpi));
        }
    }
}
