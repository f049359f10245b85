// How is a colour taken from anywhere on the screen?
#include "tests/driver/ColoredWindow.h"
#include "tests/driver/Picking.h"
#include "tests/driver/Tips.h"
#include "tests/driver/UiTest.h"

namespace {

class ScreenPicking : public UiTest {};

/// A place in a sample whose neighbour on the left, by which the pointer comes, has another colour.
POINT BesideTheEdge(const Huevox& huevox, int mark) {
    const Color color = huevox.sample(mark);
    POINT place = {AreaOf(huevox.control(IDC_picSample + mark)).left, Sample(huevox, mark).y};
    while (Pixel(place) != color && place.x < Sample(huevox, mark).x) ++place.x;
    EXPECT_NE(Pixel({place.x - 1, place.y}), color);
    return place;
}

}  // namespace

TEST_F(ScreenPicking, TakesTheColorOfAnyPixelInsideTheWindow) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    Hold(huevox, Sample(huevox, 0));
    for (int mark = 1; mark < 6; ++mark) {
        DragTo(huevox, Sample(huevox, mark), huevox.sample(mark));
    }
    ReleaseButton(Sample(huevox, 5));
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 0, 255));
    EXPECT_BECOMES(huevox.sample(0), ColorOf(255, 0, 255));
    EXPECT_BECOMES(ClipboardText(), "#FF00FF");
}

TEST_F(ScreenPicking, TakesTheColorOfAnotherProgramsPixels) {
    const Huevox huevox;
    const ColoredWindow first({4, 4}, RGB(0x12, 0x34, 0x56));
    const ColoredWindow last({::GetSystemMetrics(SM_CXSCREEN) - 40, ::GetSystemMetrics(SM_CYSCREEN) - 40},
                             RGB(0xFE, 0x01, 0x80));
    TurnPickModeOn(huevox);
    huevox.selectMark(2);
    Hold(huevox, Sample(huevox, 2));
    DragTo(huevox, {::GetSystemMetrics(SM_CXSCREEN) - 2, ::GetSystemMetrics(SM_CYSCREEN) - 2},
           ColorOf(0xFE, 0x01, 0x80));
    DragTo(huevox, {5, 5}, ColorOf(0x12, 0x34, 0x56));
    ReleaseButton({5, 5});
    EXPECT_BECOMES(huevox.sample(2), ColorOf(0x12, 0x34, 0x56));
    EXPECT_BECOMES(ClipboardText(), "#123456");
}

TEST_F(ScreenPicking, TakesThePixelUnderThePointerToTheVeryEdge) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    const RECT yellow = AreaOf(huevox.control(IDC_picSample + 1));
    Hold(huevox, Sample(huevox, 0));
    const Color outside = Pixel({yellow.right, yellow.top + 5});
    ASSERT_NE(outside, ColorOf(255, 255, 0));
    const Color edge = Pixel({yellow.right - 1, yellow.top + 5});
    ASSERT_NE(edge, ColorOf(255, 255, 0));
    DragTo(huevox, {yellow.right, yellow.top + 5}, outside);
    DragTo(huevox, {yellow.right - 1, yellow.top + 5}, edge);
    DragTo(huevox, {yellow.right - 2, yellow.top + 5}, ColorOf(255, 255, 0));
    ReleaseButton({yellow.right - 2, yellow.top + 5});
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 255, 0));
}

TEST_F(ScreenPicking, ChangesTheMarkAtTheEndOnly) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    ASSERT_BECOMES(ClipboardText(), "#FF0000");
    Hold(huevox, Sample(huevox, 0));
    EXPECT_FALSE(IsShown(huevox, IDC_hsbRed));
    EXPECT_FALSE(IsShown(huevox, IDC_hsbGreen));
    EXPECT_FALSE(IsShown(huevox, IDC_hsbBlue));
    DragTo(huevox, Sample(huevox, 2), ColorOf(0, 255, 0));
    EXPECT_BECOMES(huevox.sample(0), ColorOf(255, 0, 0));
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
    EXPECT_EQ(huevox.text(IDC_lblClipboard), "#FF0000");
    ReleaseButton(Sample(huevox, 2));
    EXPECT_BECOMES(huevox.sample(0), ColorOf(0, 255, 0));
    EXPECT_BECOMES(IsShown(huevox, IDC_hsbRed), true);
    EXPECT_FALSE(IsShown(huevox, IDC_picPick));
}

TEST_F(ScreenPicking, ReadsThePreviewBoxLikeAnyOtherPixel) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    Hold(huevox, Sample(huevox, 0));
    DragTo(huevox, Sample(huevox, 3), ColorOf(0, 255, 255));
    const POINT preview = CenterOf(huevox.control(IDC_picPick));
    MoveMouse(preview);
    ReleaseButton(preview);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(0, 255, 255));
}

TEST_F(ScreenPicking, AReleaseOfTheRightButtonAppliesBlackAndLaterTheLastPick) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    RightClick(Sample(huevox, 0));
    EXPECT_BECOMES(huevox.sliders(), ColorOf(0, 0, 0));
    Pick(huevox, 0, Sample(huevox, 4), ColorOf(0, 0, 255));
    ASSERT_BECOMES(huevox.sliders(), ColorOf(0, 0, 255));
    huevox.selectMark(1);
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 255, 0));
    RightClick(Sample(huevox, 1));
    EXPECT_BECOMES(huevox.sliders(), ColorOf(0, 0, 255));
}

TEST_F(ScreenPicking, APressAndReleaseWithoutMovingAppliesTheLastPick) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    MoveMouse(Sample(huevox, 0));
    Hold(huevox, Sample(huevox, 0));
    // As Windows sends one when a window comes or goes under a resting pointer.
    ::SendMessageA(huevox.control(IDC_picSample), WM_MOUSEMOVE, MK_LBUTTON, 0);
    ReleaseButton(Sample(huevox, 0));
    EXPECT_BECOMES(huevox.sliders(), ColorOf(0, 0, 0));
}

TEST_F(ScreenPicking, ReadsThePressedPlaceWhenThePointerComesBack) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    const POINT pressed = BesideTheEdge(huevox, 0);
    Hold(huevox, pressed);
    DragTo(huevox, Sample(huevox, 3), ColorOf(0, 255, 255));
    DragTo(huevox, pressed, ColorOf(255, 0, 0));
    ReleaseButton(pressed);
    EXPECT_BECOMES(IsShown(huevox, IDC_picPick), false);
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
}

TEST_F(ScreenPicking, ADragFromElsewhereReadsWhereAnEarlierPickWasPressed) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    // The pointer comes from outside: no movement before is the sample's.
    const POINT pressed = {AreaOf(huevox.control(IDC_picSample)).left, Sample(huevox, 0).y};
    Hold(huevox, pressed);
    ReleaseButton(pressed);
    ASSERT_BECOMES(huevox.sliders(), ColorOf(0, 0, 0));
    huevox.focusSlider(IDC_hsbGreen);
    Press(VK_RIGHT);
    ASSERT_BECOMES(huevox.sample(0), ColorOf(0, 1, 0));
    const Color edge = Pixel(pressed);
    ASSERT_NE(edge, ColorOf(0, 0, 0));
    PressButton(CenterOf(huevox.control(IDC_frmSet)));
    MoveMouse(pressed);
    ReleaseButton(pressed);
    // The input behind the release, with the pointer where it is.
    Press('R', {VK_MENU});
    EXPECT_BECOMES(huevox.focus() == huevox.control(IDC_hsbRed), true);
    EXPECT_EQ(huevox.sliders(), edge);
}

TEST_F(ScreenPicking, OnlyTheLeftButtonStartsAPick) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    PressRightButton(Sample(huevox, 0));
    MoveMouse(Sample(huevox, 3));
    // Released where nothing listens: there was no capture.
    ReleaseRightButton(CenterOf(huevox.control(IDC_frmSet)));
    huevox.focusByClick(Name(0));
    EXPECT_FALSE(IsShown(huevox, IDC_picPick));
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
}

TEST_F(ScreenPicking, OutsideColorPickModeNothingHappens) {
    const Huevox huevox;
    PressButton(Sample(huevox, 0));
    MoveMouse(Sample(huevox, 3));
    ReleaseButton(Sample(huevox, 3));
    RightClick(Sample(huevox, 0));
    ::PostMessageA(huevox.control(IDC_picSample), WM_LBUTTONUP, 0, 0);
    huevox.focusByClick(Name(0));
    EXPECT_FALSE(IsShown(huevox, IDC_picPick));
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
}

TEST_F(ScreenPicking, OnlyTheSelectedSampleCanBePressed) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    PressButton(Sample(huevox, 1));
    MoveMouse(Sample(huevox, 3));
    ReleaseButton(Sample(huevox, 3));
    ::PostMessageA(huevox.control(IDC_picSample + 1), WM_RBUTTONUP, 0, 0);
    huevox.focusByClick(Name(0));
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
    EXPECT_BECOMES(huevox.sample(1), ColorOf(255, 255, 0));
}

TEST_F(ScreenPicking, LosingTheMouseAppliesNothing) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    Hold(huevox, Sample(huevox, 0));
    DragTo(huevox, Sample(huevox, 3), ColorOf(0, 255, 255));
    // What Windows sends to the window that has captured the mouse when it takes the mouse away.
    ::PostMessageA(huevox.control(IDC_picSample), WM_CANCELMODE, 0, 0);
    EXPECT_BECOMES(IsShown(huevox, IDC_hsbRed), true);
    EXPECT_FALSE(IsShown(huevox, IDC_picPick));
    ReleaseButton(Sample(huevox, 3));
    huevox.focusByClick(Name(0));
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
}

TEST_F(ScreenPicking, LocksOpeningWhileTheModeIsOn) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    EXPECT_BECOMES(huevox.isToolButtonEnabled(IDM_mnuFileOpen), false);
    EXPECT_FALSE(huevox.isToolButtonEnabled(IDM_mnuFileOpenInNotepad));
    EXPECT_TRUE(huevox.isToolButtonEnabled(IDM_mnuFileSave));
    Press('O', {VK_CONTROL});
    Press('I', {VK_CONTROL});
    Click(huevox.toolButton(IDM_mnuFileOpen));
    ::PostMessageA(huevox.window(), WM_COMMAND, IDM_mnuFileOpen, 0);
    huevox.focusByClick(Name(0));
    EXPECT_EQ(huevox.dialogCount(), 0);
    for (const int command : {IDM_mnuFileOpen, IDM_mnuFileOpenInNotepad}) {
        ExpectTip(huevox, huevox.toolButton(command), "Uncheck the check box Colour Pick Mode to enable");
    }
    Click(huevox.control(IDC_chkColorPick));
    ASSERT_BECOMES(huevox.isEnabled(IDC_picSampleContainer), false);
    EXPECT_BECOMES(huevox.isToolButtonEnabled(IDM_mnuFileOpenInNotepad), true);
    ExpectTip(huevox, huevox.toolButton(IDM_mnuFileOpen), "Open Palette In Huevox (Ctrl+O)");
    Press('O', {VK_CONTROL});
    EXPECT_TRUE(huevox.waitForDialog());
}

TEST_F(ScreenPicking, OnlyTheSelectedSampleHasAToolTip) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    huevox.selectMark(2);
    MoveMouse(Sample(huevox, 2));
    EXPECT_BECOMES(huevox.toolTip(), "Drag and drop from here to pick a colour anywhere on the screen");
    MoveMouse(Sample(huevox, 1));
    ASSERT_BECOMES(huevox.toolTip(), "");
    EXPECT_TRUE(Throughout(1000, [&] { return huevox.toolTip().empty(); }));
}
