// Do pictures keep their see-through edges on the way from the icons to an image list?
#include "toolkit/controls/IconPixels.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <stdexcept>
#include <vector>

#include "resources/resource.h"

namespace {

constexpr std::array<int, 2> icons = {IDI_Save, IDI_Help};
constexpr int help = 1;

/// The colours of a picture's rows that it shows on a background.
std::vector<COLORREF> Drawn(const OwnedImages& images, int picture, int size, COLORREF background) {
    const HDC screen = ::GetDC(nullptr);
    const HDC memory = ::CreateCompatibleDC(screen);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, size, size);
    ::SelectObject(memory, bitmap);
    for (int at = 0; at < size * size; ++at) ::SetPixelV(memory, at % size, at / size, background);
    ::ImageList_Draw(images.get(), picture, memory, 0, 0, ILD_NORMAL);
    std::vector<COLORREF> colors;
    colors.reserve(static_cast<std::size_t>(size) * size);
    for (int at = 0; at < size * size; ++at) colors.push_back(::GetPixel(memory, at % size, at / size));
    ::DeleteDC(memory);
    ::DeleteObject(bitmap);
    ::ReleaseDC(nullptr, screen);
    return colors;
}

class IconPixels : public testing::TestWithParam<int> {};

}  // namespace

TEST_P(IconPixels, TakesTheDrawingOfTheWantedSize) {
    int width = 0;
    int height = 0;
    ::ImageList_GetIconSize(ImagesFromIcons(icons, GetParam(), GetParam()).get(), &width, &height);
    EXPECT_EQ(width, GetParam());
    EXPECT_EQ(height, GetParam());
}

TEST_P(IconPixels, CornersAreSeenThroughEdgesPartlyAndTheMiddleNotAtAll) {
    constexpr COLORREF white = RGB(255, 255, 255);
    constexpr COLORREF black = RGB(0, 0, 0);
    const OwnedImages images = ImagesFromIcons(icons, GetParam(), GetParam());
    const auto onWhite = Drawn(images, help, GetParam(), white);
    const auto onBlack = Drawn(images, help, GetParam(), black);
    EXPECT_EQ(onWhite.front(), white);
    EXPECT_EQ(onBlack.back(), black);
    int partly = 0;
    int opaque = 0;
    for (std::size_t at = 0; at < onWhite.size(); ++at) {
        if (onWhite[at] == onBlack[at])
            ++opaque;
        else if (onWhite[at] != white && onBlack[at] != black)
            ++partly;
    }
    EXPECT_GT(partly, GetParam());
    EXPECT_GT(opaque, GetParam() * GetParam() / 4);
    EXPECT_GT(std::set<COLORREF>(onWhite.begin(), onWhite.end()).size(), 10u);
}

TEST_P(IconPixels, PutsTheDrawingIntoTheMiddleOfALargerImage) {
    constexpr COLORREF white = RGB(255, 255, 255);
    constexpr int room = 5;
    const int imageSize = GetParam() + 2 * room;
    const auto drawing = Drawn(ImagesFromIcons(icons, GetParam(), GetParam()), help, GetParam(), white);
    const auto image = Drawn(ImagesFromIcons(icons, GetParam(), imageSize), help, imageSize, white);
    for (int at = 0; at < imageSize * imageSize; ++at) {
        const int column = at % imageSize - room;
        const int row = at / imageSize - room;
        const bool isInside = column >= 0 && row >= 0 && column < GetParam() && row < GetParam();
        ASSERT_EQ(image[at], isInside ? drawing[row * GetParam() + column] : white) << at;
    }
}

TEST(IconPixelsOfNoToolBar, AreRefused) {
    constexpr std::array<int, 1> programIcon = {IDI_huevox};
    EXPECT_THROW(ImagesFromIcons(programIcon, 16, 16), std::runtime_error);
    constexpr std::array<int, 1> missing = {9999};
    EXPECT_THROW(ImagesFromIcons(missing, 16, 16), std::runtime_error);
}

INSTANTIATE_TEST_SUITE_P(Sizes, IconPixels, testing::Values(16, 20, 24, 32));
