// How do the sliders change the colour?
#include <cstdlib>
#include <string>

#include "tests/driver/UiTest.h"

namespace {

class Sliders : public UiTest {
protected:
    /// Whether every view shows what the sliders say, of which only green has moved.
    static bool showsSliders(const Huevox& huevox) {
        const int green = huevox.sliders().green;
        const Color color = ColorOf(255, green, 0);
        return huevox.sample(0) == color && huevox.barStep(0) == color &&
               huevox.text(IDC_txtSetGreen) == std::to_string(green);
    }
};

}  // namespace

TEST_F(Sliders, ArrowKeysMoveByOneAndEverythingFollows) {
    const Huevox huevox;
    huevox.focusSlider(IDC_hsbGreen);
    Press(VK_RIGHT);
    Press(VK_RIGHT);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 2, 0));
    EXPECT_BECOMES(huevox.sample(0), ColorOf(255, 2, 0));
    EXPECT_BECOMES(huevox.text(IDC_txtSetGreen), "2");
    EXPECT_BECOMES(huevox.barStep(0), ColorOf(255, 2, 0));
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), "#FF0200");
    EXPECT_BECOMES(ClipboardText(), "#FF0200");
}

TEST_F(Sliders, PageKeysMoveByOneTooAndHomeAndEndGoToTheLimits) {
    const Huevox huevox;
    huevox.focusSlider(IDC_hsbBlue);
    Press(VK_NEXT);
    EXPECT_BECOMES(huevox.sliders().blue, 1);
    Press(VK_PRIOR);
    EXPECT_BECOMES(huevox.sliders().blue, 0);
    Press(VK_END);
    EXPECT_BECOMES(huevox.sliders().blue, 255);
    Press(VK_RIGHT);
    Press(VK_HOME);
    EXPECT_BECOMES(huevox.sliders().blue, 0);
    Press(VK_LEFT);
    Press(VK_RIGHT);
    EXPECT_BECOMES(huevox.sliders().blue, 1);
}

TEST_F(Sliders, DraggingUpdatesSampleBoxesBarAndPreviewOnTheWay) {
    const Huevox huevox;
    PressButton(huevox.thumb(IDC_hsbGreen, 0));
    for (const int target : {60, 120, 180, 240}) {
        MoveMouse(huevox.thumb(IDC_hsbGreen, target));
        EXPECT_TRUE(Eventually([&] {
            return std::abs(huevox.sliders().green - target) <= 6 && showsSliders(huevox);
        })) << target
            << " and " << huevox.sliders().green;
    }
    // Copied: nothing has moved for half a second.
    ASSERT_BECOMES(ClipboardText() == huevox.text(IDC_lblClipboard), true);
    const int last = huevox.sliders().green;
    ReleaseButton(huevox.thumb(IDC_hsbGreen, 240));
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, last, 0));
}

TEST_F(Sliders, AHeldArrowKeyIsNeverBehind) {
    const Huevox huevox;
    huevox.focusSlider(IDC_hsbGreen);
    for (int step = 0; step < 200; ++step) KeyDown(VK_RIGHT);
    KeyUp(VK_RIGHT);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 200, 0));
    EXPECT_BECOMES(huevox.sample(0), ColorOf(255, 200, 0));
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), "#FFC800");
}
