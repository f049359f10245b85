// Can a colour be picked by keys, with the mouse and without?
#include "tests/driver/ColoredWindow.h"
#include "tests/driver/Picking.h"

namespace {

class PickKeys : public UiTest {};
class PickByKeyboard : public UiTest {};

POINT PointerPlace() {
    POINT place{};
    ::GetCursorPos(&place);
    return place;
}

bool IsAt(POINT place) {
    const POINT pointer = PointerPlace();
    return pointer.x == place.x && pointer.y == place.y;
}

/// Begins a pick without the mouse where the pointer is, and waits until its colour is shown.
void BeginAt(const Huevox& huevox, POINT place, const Color& color) {
    MoveMouse(place);
    Press(VK_F6);
    ASSERT_BECOMES(IsShown(huevox, IDC_picPick), true);
    ASSERT_BECOMES(Preview(huevox), color);
}

void ExpectEnd(const Huevox& huevox) {
    EXPECT_BECOMES(IsShown(huevox, IDC_picPick), false);
    EXPECT_BECOMES(IsShown(huevox, IDC_hsbRed), true);
    EXPECT_BECOMES(LoupeOf(huevox) == nullptr, true);
}

}  // namespace

TEST_F(PickKeys, ArrowsMoveThePointerByOnePixelAndWithShiftByTen) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    Hold(huevox, Sample(huevox, 0));
    const POINT begin = Sample(huevox, 3);
    DragTo(huevox, begin, ColorOf(0, 255, 255));
    Press(VK_RIGHT);
    EXPECT_BECOMES(IsAt({begin.x + 1, begin.y}), true);
    Press(VK_DOWN);
    EXPECT_BECOMES(IsAt({begin.x + 1, begin.y + 1}), true);
    Press(VK_LEFT, {VK_SHIFT});
    EXPECT_BECOMES(IsAt({begin.x - 9, begin.y + 1}), true);
    Press(VK_UP, {VK_SHIFT});
    EXPECT_BECOMES(IsAt({begin.x - 9, begin.y - 9}), true);
    ReleaseButton(PointerPlace());
    EXPECT_BECOMES(huevox.sliders(), ColorOf(0, 255, 255));
}

TEST_F(PickKeys, AnArrowReadsTheColorOfItsPixel) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    const RECT yellow = AreaOf(huevox.control(IDC_picSample + 1));
    Hold(huevox, Sample(huevox, 0));
    DragTo(huevox, {yellow.right - 2, yellow.top + 5}, ColorOf(255, 255, 0));
    const Color edge = Pixel({yellow.right - 1, yellow.top + 5});
    Press(VK_RIGHT);
    EXPECT_BECOMES(Preview(huevox), edge);
    ReleaseButton(PointerPlace());
    EXPECT_BECOMES(huevox.sliders(), edge);
}

TEST_F(PickKeys, AnArrowStaysOnTheDesktop) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    Hold(huevox, Sample(huevox, 0));
    MoveMouse({0, 0});
    ASSERT_BECOMES(LoupeOf(huevox) != nullptr, true);
    Press(VK_UP);
    Press(VK_LEFT, {VK_SHIFT});
    Press(VK_RIGHT);
    EXPECT_BECOMES(IsAt({1, 0}), true);
    ReleaseButton({1, 0});
}

TEST_F(PickKeys, EnterAndSpaceTakeTheColorAndTheReleaseNothingMore) {
    for (const WORD key : {VK_RETURN, VK_SPACE}) {
        const Huevox huevox;
        TurnPickModeOn(huevox);
        Hold(huevox, Sample(huevox, 0));
        DragTo(huevox, Sample(huevox, 4), ColorOf(0, 0, 255));
        Press(key);
        ExpectEnd(huevox);
        EXPECT_BECOMES(huevox.sample(0), ColorOf(0, 0, 255));
        // Still held: another change stays.
        Press(VK_F5);
        huevox.send(IDC_optColor + 1, BM_CLICK);
        MoveMouse(Sample(huevox, 1));
        ReleaseButton(Sample(huevox, 1));
        huevox.focusByClick(Name(0));
        EXPECT_EQ(huevox.sliders(), ColorOf(255, 255, 0));
        EXPECT_BECOMES(huevox.sample(0), ColorOf(0, 0, 255));
    }
}

TEST_F(PickKeys, EscapeLeavesMarkAndPickedColorAsTheyWere) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    Pick(huevox, 0, Sample(huevox, 4), ColorOf(0, 0, 255));
    ASSERT_BECOMES(huevox.sample(0), ColorOf(0, 0, 255));
    huevox.selectMark(1);
    Hold(huevox, Sample(huevox, 1));
    DragTo(huevox, Sample(huevox, 3), ColorOf(0, 255, 255));
    Press(VK_ESCAPE);
    ExpectEnd(huevox);
    // Over the selected sample, where a release takes what was picked last.
    MoveMouse(Sample(huevox, 1));
    ReleaseButton(Sample(huevox, 1));
    huevox.focusByClick(Name(0));
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 255, 0));
    RightClick(Sample(huevox, 1));
    EXPECT_BECOMES(huevox.sliders(), ColorOf(0, 0, 255));
}

TEST_F(PickKeys, APickAfterEscapeIsLikeAnyOther) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    Hold(huevox, Sample(huevox, 0));
    DragTo(huevox, Sample(huevox, 3), ColorOf(0, 255, 255));
    Press(VK_ESCAPE);
    ExpectEnd(huevox);
    ReleaseButton({1, 1});
    Pick(huevox, 0, Sample(huevox, 2), ColorOf(0, 255, 0));
    EXPECT_BECOMES(huevox.sample(0), ColorOf(0, 255, 0));
}

TEST_F(PickKeys, NoOtherKeyActs) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    huevox.focusByClick(Name(2));
    Hold(huevox, Sample(huevox, 0));
    DragTo(huevox, Sample(huevox, 3), ColorOf(0, 255, 255));
    Press(VK_TAB);
    Press('X');
    Press(VK_DELETE);
    Press(VK_F5);
    Press(VK_F8);
    Press(VK_F6);
    Press('N', {VK_CONTROL});
    Press('F', {VK_MENU});
    Press(VK_F10);
    Press(VK_MENU);
    Press(VK_F4, {VK_MENU});
    ReleaseButton(Sample(huevox, 3));
    EXPECT_BECOMES(huevox.sample(0), ColorOf(0, 255, 255));
    EXPECT_EQ(huevox.focused(), Name(2));
    EXPECT_EQ(huevox.text(Name(1)), "Type a colour name");
    EXPECT_EQ(huevox.text(Name(2)), "Type a colour name");
    EXPECT_EQ(huevox.dialogCount(), 0);
    // Keys act again, in the box whose text has been selected as a whole.
    Press('Y');
    EXPECT_BECOMES(huevox.text(Name(2)), "y");
}

TEST_F(PickKeys, AnEndingKeyThatIsHeldPressesNoButton) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    const HWND button = huevox.control(IDC_cmdWebsafe);
    ::PostMessageA(huevox.window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(button), TRUE);
    ASSERT_BECOMES(huevox.focused(), IDC_cmdWebsafe);
    Hold(huevox, Sample(huevox, 0));
    DragTo(huevox, Sample(huevox, 3), ColorOf(0, 255, 255));
    for (int time = 0; time < 3; ++time) KeyDown(VK_RETURN);
    ExpectEnd(huevox);
    KeyUp(VK_RETURN);
    ReleaseButton(Sample(huevox, 3));
    EXPECT_BECOMES(huevox.sliders(), ColorOf(0, 255, 255));
    EXPECT_FALSE(huevox.form("frmWebsafe"));
    Press(VK_RETURN);
    EXPECT_BECOMES(huevox.form("frmWebsafe") != nullptr, true);
}

TEST_F(PickByKeyboard, TakesThePixelUnderThePointer) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    BeginAt(huevox, Sample(huevox, 4), ColorOf(0, 0, 255));
    EXPECT_BECOMES(LoupeOf(huevox) != nullptr, true);
    Press(VK_RETURN);
    ExpectEnd(huevox);
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
    const Color color = Pixel(box);
    ASSERT_BECOMES(Preview(huevox), color);
    PressButton(box);
    ReleaseButton(box);
    ExpectEnd(huevox);
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
    ExpectEnd(huevox);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 255, 0));
    EXPECT_EQ(::GetForegroundWindow(), huevox.window());
}

TEST_F(PickByKeyboard, OtherButtonsDoNothing) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    BeginAt(huevox, Sample(huevox, 4), ColorOf(0, 0, 255));
    RightClick(Sample(huevox, 4));
    Press(VK_ESCAPE);
    ExpectEnd(huevox);
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
}

TEST_F(PickByKeyboard, EscapeLeavesEverythingAsItWas) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    BeginAt(huevox, Sample(huevox, 4), ColorOf(0, 0, 255));
    Press(VK_ESCAPE);
    ExpectEnd(huevox);
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
    ExpectEnd(huevox);
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
    ExpectEnd(huevox);
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
}
