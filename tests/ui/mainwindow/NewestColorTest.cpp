// Does the window ever go on showing an older colour?
#include <algorithm>
#include <cstddef>
#include <random>
#include <vector>

#include "tests/driver/Pixel.h"
#include "tests/driver/Undoing.h"

namespace {

/// How many pixels differ, no more than the corners of three thumbs: their edge shows what was below.
int DifferencesOf(const std::vector<Color>& one, const std::vector<Color>& other) {
    constexpr int corners = 12;
    int differences = 0;
    for (std::size_t i = 0; i < one.size(); ++i) differences += one[i] == other[i] ? 0 : 1;
    return differences <= corners ? 0 : differences;
}

enum class Compared { everything, allButSliders };

std::vector<Color> PixelsOfWindow(const Huevox& huevox, Compared compared) {
    const RECT area = AreaOf(huevox.window());
    std::vector<Color> pixels = PixelsOf(area);
    if (compared == Compared::everything) return pixels;
    const std::ptrdiff_t width = area.right - area.left;
    for (int channel = 0; channel < 3; ++channel) {
        const RECT slider = AreaOf(huevox.control(IDC_hsbRed + channel));
        for (LONG y = slider.top; y < slider.bottom; ++y) {
            const auto row = pixels.begin() + (y - area.top) * width;
            std::fill(row + (slider.left - area.left), row + (slider.right - area.left), Color{});
        }
    }
    return pixels;
}

class NewestColor : public UiTest {
protected:
    /// What is on the screen is what the controls paint when they are asked for everything once more. Only
    /// the caret may blink in between.
    static void expectNothingOlder(const Huevox& huevox, Compared compared) {
        // The letters of the marks follow together with the clipboard.
        ASSERT_BECOMES(ClipboardText() == huevox.text(IDC_lblClipboard), true);
        PaintedPixel(huevox.window(), CenterOf(huevox.window()));
        const std::vector<Color> shown = PixelsOfWindow(huevox, compared);
        ::RedrawWindow(huevox.window(), nullptr, nullptr,
                       RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
        PaintedPixel(huevox.window(), CenterOf(huevox.window()));
        EXPECT_BECOMES(DifferencesOf(shown, PixelsOfWindow(huevox, compared)), 0);
    }

    int upTo(int last) { return std::uniform_int_distribution<>(0, last)(chance); }

private:
    std::minstd_rand chance{17};  // the same jumps in every run
};

}  // namespace

TEST_F(NewestColor, IsShownAfterJumps) {
    const Huevox huevox;
    for (int jump = 0; jump < 6; ++jump) {
        Click(huevox.barStepPlace(upTo(255)));
        SetColor(huevox, ColorOf(upTo(255), upTo(255), upTo(255)));
        MoveMouse(huevox.barStepPlace(0));  // off the box, whose tool tip would be in the picture
        ASSERT_BECOMES(huevox.toolTip(), "");
        expectNothingOlder(huevox, Compared::everything);
    }
}

// Sliders show that they have the focus, or the mouse, which Wine notices later.
TEST_F(NewestColor, IsShownAfterKeysADragAndUndoing) {
    const Huevox huevox;
    huevox.focusSlider(IDC_hsbGreen);
    for (int step = 0; step < 30; ++step) Press(VK_RIGHT);
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 30, 0));
    expectNothingOlder(huevox, Compared::allButSliders);
    PressButton(huevox.thumb(IDC_hsbBlue, 0));
    for (int value = 10; value <= 250; value += 10) MoveMouse(huevox.thumb(IDC_hsbBlue, value));
    ASSERT_TRUE(Eventually([&] { return huevox.sliders().blue > 240; }));
    expectNothingOlder(huevox, Compared::allButSliders);
    ReleaseButton(huevox.thumb(IDC_hsbBlue, 250));
    PressUndo();
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 30, 0));
    PressUndo();
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 0, 0));
    expectNothingOlder(huevox, Compared::allButSliders);
}
