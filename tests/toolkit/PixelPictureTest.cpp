// Does a picture of many areas show each in its own colour, to the pixel?
#include "toolkit/PixelPicture.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr COLORREF untouched = RGB(9, 9, 9);

/// A bitmap of 6 by 4 pixels to show pictures on.
class PixelPictureTest : public testing::Test {
protected:
    void SetUp() override {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        memory = ::CreateCompatibleDC(nullptr);
        void* bits = nullptr;
        bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        previous = ::SelectObject(memory, bitmap);
        for (int at = 0; at < width * height; ++at) ::SetPixelV(memory, at % width, at / width, untouched);
    }
    void TearDown() override {
        ::SelectObject(memory, previous);
        ::DeleteObject(bitmap);
        ::DeleteDC(memory);
    }

    /// A row's pixels, a letter each.
    std::string row(int y) const {
        std::string letters;
        for (int x = 0; x < width; ++x) {
            switch (::GetPixel(memory, x, y)) {
                case orange: letters += 'o'; break;
                case blue: letters += 'b'; break;
                case RGB(0, 0, 0): letters += '-'; break;
                case untouched: letters += '.'; break;
                default: letters += '?'; break;
            }
        }
        return letters;
    }

    static constexpr int width = 6;
    static constexpr int height = 4;
    static constexpr COLORREF orange = RGB(255, 128, 1);
    static constexpr COLORREF blue = RGB(2, 3, 254);
    HDC memory = nullptr;

private:
    HBITMAP bitmap = nullptr;
    HGDIOBJ previous = nullptr;
};

}  // namespace

TEST_F(PixelPictureTest, ShowsEachAreaInItsColorAndTheLaterOnTop) {
    PixelPicture picture(4, 3);
    picture.fill({0, 0, 3, 2}, orange);
    picture.fill({2, 1, 4, 3}, blue);
    picture.show(memory);
    EXPECT_EQ(row(0), "ooo-..");
    EXPECT_EQ(row(1), "oobb..");
    EXPECT_EQ(row(2), "--bb..");
    EXPECT_EQ(row(3), "......");
}

TEST_F(PixelPictureTest, LeavesAwayWhatLiesOutside) {
    PixelPicture picture(3, 3);
    picture.fill({-2, -2, 1, 1}, orange);
    picture.fill({2, 2, 9, 9}, blue);
    picture.fill({3, 0, 5, 3}, orange);
    picture.fill({-5, 0, 0, 3}, orange);
    picture.fill({0, 3, 3, 5}, orange);
    picture.fill({2, 0, 1, 3}, orange);
    picture.show(memory);
    EXPECT_EQ(row(0), "o--...");
    EXPECT_EQ(row(1), "---...");
    EXPECT_EQ(row(2), "--b...");
    EXPECT_EQ(row(3), "......");
}

TEST_F(PixelPictureTest, OfNoPixelsShowsNothing) {
    PixelPicture picture(0, 0);
    picture.fill({0, 0, 2, 2}, orange);
    picture.show(memory);
    EXPECT_EQ(row(0), "......");
}
