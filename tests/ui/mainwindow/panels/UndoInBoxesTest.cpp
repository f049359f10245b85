// Whose is Ctrl+Z, the box's or the window's, and when is it nobody's?
#include <string>
#include <utility>

#include "core/ChannelText.h"
#include "tests/driver/Picking.h"
#include "tests/driver/Undoing.h"

namespace {

class UndoInBoxes : public UiTest {};
class UndoMeanwhile : public UiTest {};

}  // namespace

TEST_F(UndoInBoxes, TheBoxTakesItsTypingBackFirstThenTheWholeStepGoes) {
    const Huevox huevox;
    ChangeAndRest(huevox, ColorOf(255, 1, 0));
    huevox.focusByClick(Name(3));
    Type("ab");
    Press(VK_LEFT);
    Type("x");
    ASSERT_BECOMES(huevox.text(Name(3)), "axb");
    PressUndo();
    ASSERT_BECOMES(huevox.text(Name(3)), "ab");
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 1, 0));
    PressUndo();
    ASSERT_BECOMES(huevox.text(Name(3)), noName);
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 1, 0));
    PressUndo();
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 0, 0));
    PressRedo();
    PressRedo();
    EXPECT_BECOMES(huevox.text(Name(3)), "ab");
}

TEST_F(UndoInBoxes, ANameThatTheBoxTookBackCanBeDoneAgain) {
    const Huevox huevox;
    huevox.focusByClick(Name(3));
    Type("navy");
    ASSERT_BECOMES(huevox.text(Name(3)), "navy");
    PressUndo();
    ASSERT_BECOMES(huevox.text(Name(3)), noName);
    PressUndo();  // there is nothing left
    PressRedo();
    EXPECT_BECOMES(huevox.text(Name(3)), "navy");
    EXPECT_BECOMES(huevox.selection(Name(3)), (std::pair{4, 4}));
}

TEST_F(UndoInBoxes, ABoxThatWasLeftLeavesItsTypingToTheWindow) {
    const Huevox huevox;
    huevox.retype(Name(3), "first");
    huevox.focusByClick(Name(4));
    Type("second");
    ASSERT_BECOMES(huevox.text(Name(4)), "second");
    huevox.focusSlider(IDC_hsbRed);
    Press(VK_LEFT);
    ASSERT_BECOMES(huevox.sliders(), ColorOf(254, 0, 0));
    huevox.focusByClick(Name(3));
    PressUndo();
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 0, 0));
    EXPECT_EQ(huevox.text(Name(3)), "first");
    PressUndo();
    ASSERT_BECOMES(huevox.text(Name(4)), noName);
    EXPECT_EQ(huevox.text(Name(3)), "first");
    PressUndo();
    EXPECT_BECOMES(huevox.text(Name(3)), noName);
}

TEST_F(UndoInBoxes, ABoxThatWasLeftBeginsAStepWhenItIsEnteredAgain) {
    const Huevox huevox;
    huevox.retype(Name(3), "first");
    huevox.focusSlider(IDC_hsbRed);
    huevox.focusByClick(Name(3));
    Press(VK_END);
    Type("er");
    ASSERT_BECOMES(huevox.text(Name(3)), "firster");
    huevox.focusSlider(IDC_hsbRed);
    PressUndo();
    EXPECT_BECOMES(huevox.text(Name(3)), "first");
    PressUndo();
    EXPECT_BECOMES(huevox.text(Name(3)), noName);
}

TEST_F(UndoInBoxes, AValueThatWaitsIsTheBoxsThenComesTheColor) {
    const Huevox huevox;
    ChangeAndRest(huevox, ColorOf(255, 1, 0));
    huevox.focusByClick(IDC_txtSetBlue);
    Press(VK_END);
    Type("7");
    ASSERT_BECOMES(huevox.text(IDC_txtSetBlue), "07");
    PressUndo();
    ASSERT_BECOMES(huevox.text(IDC_txtSetBlue), "0");
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 1, 0));
    PressUndo();
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 0, 0));
}

TEST_F(UndoMeanwhile, IsIgnoredWhileASliderIsDragged) {
    const Huevox huevox;
    ChangeAndRest(huevox, ColorOf(255, 1, 0));
    PressButton(huevox.thumb(IDC_hsbBlue, 0));
    MoveMouse(huevox.thumb(IDC_hsbBlue, 100));
    ASSERT_TRUE(Eventually([&] { return huevox.sliders().blue > 90; }));
    // Until its colour has gone all its way, a change ignores undoing anyway.
    ASSERT_BECOMES(huevox.text(IDC_lblClipboard) == HexText(huevox.sliders()), true);
    // As automation does it: no key reaches the window now.
    ::SendMessageA(huevox.window(), WM_COMMAND, IDM_mnuEditUndo, 0);
    EXPECT_GT(huevox.sliders().blue, 90);
    MoveMouse(huevox.thumb(IDC_hsbBlue, 200));
    ASSERT_TRUE(Eventually([&] { return huevox.sliders().blue > 190; }));
    ReleaseButton(huevox.thumb(IDC_hsbBlue, 200));
    PressUndo();
    EXPECT_BECOMES(huevox.sliders().blue, 0);
}

TEST_F(UndoMeanwhile, IsIgnoredDuringAPick) {
    const Huevox huevox;
    ChangeAndRest(huevox, ColorOf(255, 1, 0));
    TurnPickModeOn(huevox);
    Hold(huevox, Sample(huevox, 0));
    DragTo(huevox, Sample(huevox, 3), ColorOf(0, 255, 255));
    PressUndo();
    ::SendMessageA(huevox.window(), WM_COMMAND, IDM_mnuEditUndo, 0);
    EXPECT_EQ(huevox.sample(0), ColorOf(255, 1, 0));
    DragTo(huevox, Sample(huevox, 4), ColorOf(0, 0, 255));
    EXPECT_EQ(huevox.sample(0), ColorOf(255, 1, 0));
    ReleaseButton(Sample(huevox, 4));
    ASSERT_BECOMES(huevox.sliders(), ColorOf(0, 0, 255));
    PressUndo();
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 1, 0));
}

TEST_F(UndoMeanwhile, IsIgnoredBehindADialog) {
    const Huevox huevox;
    ChangeAndRest(huevox, ColorOf(255, 1, 0));
    Press(VK_F4);
    const HWND box = huevox.waitForDialog();
    ASSERT_TRUE(box);
    PressUndo();
    ::SendMessageA(huevox.window(), WM_COMMAND, IDM_mnuEditUndo, 0);
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 1, 0));
    Answer(box, IDOK);
    PressUndo();
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 0, 0));
}
