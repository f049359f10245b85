// Where do the keys go after a colour has been taken from the screen?
#include "tests/driver/Picking.h"
#include "tests/driver/UiTest.h"

namespace {

class PickFocus : public UiTest {};

}  // namespace

TEST_F(PickFocus, IsWhereItWas) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    huevox.focusSlider(IDC_hsbGreen);
    Pick(huevox, 0, Sample(huevox, 4), ColorOf(0, 0, 255));
    EXPECT_BECOMES(huevox.focused(), IDC_hsbGreen);
    Press(VK_RIGHT);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(0, 1, 255));
}

TEST_F(PickFocus, IsWithTheNextControlMeanwhile) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    huevox.focusSlider(IDC_hsbGreen);
    Hold(huevox, Sample(huevox, 0));
    EXPECT_BECOMES(huevox.focused(), IDC_txtSetRed);
    ReleaseButton(Sample(huevox, 0));
}

TEST_F(PickFocus, OfAnEarlierPickDoesNotComeBack) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    huevox.focusSlider(IDC_hsbGreen);
    Pick(huevox, 0, Sample(huevox, 4), ColorOf(0, 0, 255));
    ASSERT_BECOMES(huevox.focused(), IDC_hsbGreen);
    huevox.focusByClick(Name(2));
    Pick(huevox, 0, Sample(huevox, 3), ColorOf(0, 255, 255));
    ASSERT_BECOMES(IsShown(huevox, IDC_hsbBlue), true);
    Type("x");
    EXPECT_BECOMES(huevox.text(Name(2)), "x");
}

TEST_F(PickFocus, StaysWithAnotherProgramThatTookTheMouse) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    huevox.focusSlider(IDC_hsbGreen);
    Hold(huevox, Sample(huevox, 0));
    const Huevox other;
    ASSERT_BECOMES(::GetForegroundWindow(), other.window());
    Press(VK_LEFT);
    ASSERT_BECOMES(ClipboardText(), "#FE0000");
    ::PostMessageA(huevox.control(IDC_picSample), WM_CANCELMODE, 0, 0);
    ASSERT_BECOMES(IsShown(huevox, IDC_hsbBlue), true);
    // A window that took the focus would copy its colour again.
    EXPECT_TRUE(Throughout(1'000, [] { return ClipboardText() == "#FE0000"; }));
    ReleaseButton({1, 1});
    Press(VK_LEFT);
    EXPECT_BECOMES(other.sliders(), ColorOf(253, 0, 0));
}
