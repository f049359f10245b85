// What do keys do while a colour is picked with the mouse?
#include "tests/driver/Picking.h"

namespace {

class PickKeys : public UiTest {};

POINT PointerPlace() {
    POINT place{};
    ::GetCursorPos(&place);
    return place;
}

bool IsAt(POINT place) {
    const POINT pointer = PointerPlace();
    return pointer.x == place.x && pointer.y == place.y;
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
        ExpectPickEnd(huevox);
        EXPECT_BECOMES(huevox.sample(0), ColorOf(0, 0, 255));
        // Still held: another change stays, although the option button has taken the mouse for a moment.
        Press(VK_F5);
        huevox.send(IDC_optColor + 1, BM_CLICK);
        const RECT yellow = AreaOf(huevox.control(IDC_picSample + 1));
        const POINT edge = {yellow.right - 1, yellow.top + 5};
        EXPECT_BECOMES(Pixel(edge) == ColorOf(255, 255, 0), false);
        MoveMouse(edge);
        ReleaseButton(edge);
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
    ExpectPickEnd(huevox);
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
    ExpectPickEnd(huevox);
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
    ExpectPickEnd(huevox);
    KeyUp(VK_RETURN);
    ReleaseButton(Sample(huevox, 3));
    EXPECT_BECOMES(huevox.sliders(), ColorOf(0, 255, 255));
    EXPECT_FALSE(huevox.form("frmWebsafe"));
    Press(VK_RETURN);
    EXPECT_BECOMES(huevox.form("frmWebsafe") != nullptr, true);
}
