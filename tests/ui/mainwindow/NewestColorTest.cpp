// Does the window ever go on showing an older colour?
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

class NewestColor : public UiTest {
protected:
    /// What is on the screen is what the controls paint when they are asked for everything once more. Only
    /// the caret may blink in between.
    static void expectNothingOlder(const Huevox& huevox) {
        // The letters of the marks follow together with the clipboard.
        ASSERT_BECOMES(ClipboardText() == huevox.text(IDC_lblClipboard), true);
        const RECT area = AreaOf(huevox.window());
        PaintedPixel(huevox.window(), CenterOf(huevox.window()));
        const std::vector<Color> shown = PixelsOf(area);
        ::RedrawWindow(huevox.window(), nullptr, nullptr,
                       RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
        PaintedPixel(huevox.window(), CenterOf(huevox.window()));
        EXPECT_BECOMES(DifferencesOf(shown, PixelsOf(area)), 0);
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
        expectNothingOlder(huevox);
    }
}

TEST_F(NewestColor, IsShownAfterKeysADragAndUndoing) {
    const Huevox huevox;
    // At 192 DPI Wine paints the edge of a thumb at its end over the arrow beside it, or the other way round.
    SetColor(huevox, ColorOf(100, 0, 0));
    expectNothingOlder(huevox);
    // Sliders show that they have the focus or the mouse, and other controls their tool tips.
    const auto leaveSliders = [&] {
        huevox.focusByClick(IDC_txtSetRed);
        const RECT area = AreaOf(huevox.window());
        MoveMouse({area.left, area.top});
    };
    huevox.focusSlider(IDC_hsbGreen);
    for (int step = 0; step < 30; ++step) Press(VK_RIGHT);
    ASSERT_BECOMES(huevox.sliders(), ColorOf(100, 30, 0));
    leaveSliders();
    expectNothingOlder(huevox);
    PressButton(huevox.thumb(IDC_hsbBlue, 0));
    for (int value = 10; value <= 250; value += 10) MoveMouse(huevox.thumb(IDC_hsbBlue, value));
    ReleaseButton(huevox.thumb(IDC_hsbBlue, 250));
    ASSERT_TRUE(Eventually([&] { return huevox.sliders().blue > 240; }));
    leaveSliders();
    expectNothingOlder(huevox);
    PressUndo();
    ASSERT_BECOMES(huevox.sliders(), ColorOf(100, 30, 0));
    PressUndo();
    ASSERT_BECOMES(huevox.sliders(), ColorOf(100, 0, 0));
    expectNothingOlder(huevox);
}
