// Can a colour be picked without the mouse?
#include "tests/driver/ColoredWindow.h"
#include "tests/driver/Picking.h"

namespace {

class PickByKeyboard : public UiTest {};

/// Begins a pick without the mouse where the pointer is, and waits until its colour is shown.
void BeginAt(const Huevox& huevox, POINT place, const Color& color) {
    MoveMouse(place);
    Press(VK_F6);
    ASSERT_BECOMES(IsShown(huevox, IDC_picPick), true);
    ASSERT_BECOMES(Preview(huevox), color);
}

}  // namespace

TEST_F(PickByKeyboard, TakesThePixelUnderThePointer) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    BeginAt(huevox, Sample(huevox, 4), ColorOf(0, 0, 255));
    EXPECT_BECOMES(LoupeOf(huevox) != nullptr, true);
    Press(VK_RETURN);
    ExpectPickEnd(huevox);
    EXPECT_BECOMES(huevox.sample(0), ColorOf(0, 0, 255));
    EXPECT_BECOMES(ClipboardText(), "#0000FF");
}

TEST_F(PickByKeyboard, ArrowsReachAnotherProgramsPixels) {
    const Huevox huevox;
    const ColoredWindow other({4, 4}, RGB(0x12, 0x34, 0x56));
    TurnPickModeOn(huevox);
    BeginAt(huevox, {50, 10}, Pixel({50, 10}));
    Press(VK_LEFT, {VK_SHIFT});
    EXPECT_BECOMES(Preview(huevox), ColorOf(0x12, 0x34, 0x56));
    MoveMouse({60, 10});
    EXPECT_BECOMES(Preview(huevox), Pixel({60, 10}));
    MoveMouse({43, 10});
    EXPECT_BECOMES(Preview(huevox), ColorOf(0x12, 0x34, 0x56));
    Press(VK_SPACE);
    EXPECT_BECOMES(huevox.sample(0), ColorOf(0x12, 0x34, 0x56));
}

TEST_F(PickByKeyboard, IsForColorPickModeOnly) {
    const Huevox huevox;
    huevox.focusByClick(Name(0));
    Press(VK_F6);
    ::PostMessageA(huevox.window(), WM_COMMAND, IDM_mnuToolsPick, 0);
    huevox.focusByClick(Name(1));
    EXPECT_FALSE(IsShown(huevox, IDC_picPick));
    TurnPickModeOn(huevox);
    Click(huevox.control(IDC_chkColorPick));
    ASSERT_BECOMES(huevox.isEnabled(IDC_picSampleContainer), false);
    Press(VK_F6);
    huevox.focusByClick(Name(1));
    EXPECT_FALSE(IsShown(huevox, IDC_picPick));
}

TEST_F(PickByKeyboard, IsInTheToolsMenu) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    MoveMouse(Sample(huevox, 2));
    Press('T', {VK_MENU});
    Press('P');
    ASSERT_BECOMES(IsShown(huevox, IDC_picPick), true);
    EXPECT_BECOMES(Preview(huevox), ColorOf(0, 255, 0));
    Press(VK_RETURN);
    EXPECT_BECOMES(huevox.sample(0), ColorOf(0, 255, 0));
}

TEST_F(PickByKeyboard, AClickTakesAndReachesNoWindowBelow) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    BeginAt(huevox, Sample(huevox, 4), ColorOf(0, 0, 255));
    const POINT box = CenterOf(huevox.control(IDC_chkJSNamesOnly));
    MoveMouse(box);
    ASSERT_BECOMES(Preview(huevox) == Pixel(box), true);
    const Color color = Preview(huevox);
    PressButton(box);
    ReleaseButton(box);
    ExpectPickEnd(huevox);
    EXPECT_BECOMES(huevox.sliders(), color);
    EXPECT_FALSE(huevox.isChecked(IDC_chkJSNamesOnly));
}

TEST_F(PickByKeyboard, AClickTakesFromAnotherProgramAndLeavesItBehind) {
    const Huevox other;
    ::SetWindowPos(other.window(), nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    const Huevox huevox;
    ::SetWindowPos(huevox.window(), nullptr, 300, 330, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    TurnPickModeOn(huevox);
    const POINT sample = Sample(other, 1);
    BeginAt(huevox, sample, ColorOf(255, 255, 0));
    PressButton(sample);
    ReleaseButton(sample);
    ExpectPickEnd(huevox);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 255, 0));
    EXPECT_EQ(::GetForegroundWindow(), huevox.window());
}

TEST_F(PickByKeyboard, OtherButtonsDoNothing) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    BeginAt(huevox, Sample(huevox, 4), ColorOf(0, 0, 255));
    RightClick(Sample(huevox, 4));
    Press(VK_ESCAPE);
    ExpectPickEnd(huevox);
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
}

TEST_F(PickByKeyboard, EscapeLeavesEverythingAsItWas) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    BeginAt(huevox, Sample(huevox, 4), ColorOf(0, 0, 255));
    Press(VK_ESCAPE);
    ExpectPickEnd(huevox);
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
    RightClick(Sample(huevox, 0));
    EXPECT_BECOMES(huevox.sliders(), ColorOf(0, 0, 0));
}

TEST_F(PickByKeyboard, AnotherProgramInFrontEndsIt) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    BeginAt(huevox, Sample(huevox, 4), ColorOf(0, 0, 255));
    const Huevox other;
    ASSERT_BECOMES(::GetForegroundWindow(), other.window());
    ExpectPickEnd(huevox);
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
    // The other program has the keys, and the mouse.
    Press(VK_LEFT);
    EXPECT_BECOMES(other.sliders(), ColorOf(254, 0, 0));
}

TEST_F(PickByKeyboard, LeavingTheModeByAnotherProgramEndsIt) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    BeginAt(huevox, Sample(huevox, 4), ColorOf(0, 0, 255));
    huevox.send(IDC_chkColorPick, BM_CLICK);
    ExpectPickEnd(huevox);
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
}
