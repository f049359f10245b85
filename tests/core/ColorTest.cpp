#include "core/Color.h"

#include <gtest/gtest.h>

#include <cstddef>

TEST(Color, RecordHoldsRedThenBlueThenGreen) {
    EXPECT_EQ(offsetof(Color, red), 0U);
    EXPECT_EQ(offsetof(Color, blue), 4U);
    EXPECT_EQ(offsetof(Color, green), 8U);
}

TEST(Color, ArgumentsAreRedGreenBlue) {
    const Color color = ColorOf(1, 2, 3);
    EXPECT_EQ(color.red, 1);
    EXPECT_EQ(color.green, 2);
    EXPECT_EQ(color.blue, 3);
}

TEST(Color, Packing255204And0Gives52479) { EXPECT_EQ(Pack(ColorOf(255, 204, 0)), 52479); }

TEST(Color, Unpacking52479Gives255204And0) { EXPECT_EQ(Unpack(52479), ColorOf(255, 204, 0)); }

TEST(Color, RedIsTheLowByteAndBlueTheThird) {
    EXPECT_EQ(Pack(ColorOf(255, 0, 0)), 0x0000FF);
    EXPECT_EQ(Pack(ColorOf(0, 255, 0)), 0x00FF00);
    EXPECT_EQ(Pack(ColorOf(0, 0, 255)), 0xFF0000);
}

TEST(Color, UnpackingIsTheInverseOfPacking) {
    for (int red = 0; red < 256; red += 5) {
        for (int green = 0; green < 256; green += 5) {
            for (int blue = 0; blue < 256; blue += 5) {
                ASSERT_EQ(Unpack(Pack(ColorOf(red, green, blue))), ColorOf(red, green, blue));
            }
        }
    }
}

TEST(Color, NegativeValuesDivideTowardZero) {
    EXPECT_EQ(Unpack(-1), ColorOf(255, 0, 0));
    EXPECT_EQ(Unpack(-257), ColorOf(255, 255, 0));
}
