// How do the sliders change the colour?
#include <string>

#include "tests/ui/UiTest.h"

namespace {

class Sliders : public UiTest {};

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
    int last = 0;
    for (const int target : {60, 120, 180, 240}) {
        MoveMouse(huevox.thumb(IDC_hsbGreen, target));
        ASSERT_TRUE(Eventually([&] { return huevox.sliders().green > last; }));
        const int green = huevox.sliders().green;
        EXPECT_NEAR(green, target, 6);
        EXPECT_BECOMES(huevox.sample(0), ColorOf(255, green, 0));
        EXPECT_BECOMES(huevox.text(IDC_txtSetGreen), std::to_string(green));
        EXPECT_BECOMES(huevox.barStep(0), ColorOf(255, green, 0));
        last = green;
    }
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
