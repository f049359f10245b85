// What does Undo take back, and what does Redo do again?
#include <algorithm>
#include <string>

#include "tests/driver/PickerWindow.h"
#include "tests/driver/Picking.h"
#include "tests/driver/Undoing.h"

namespace {

class Undo : public UiTest {};

/// Every view of the selected mark shows the colour.
void ExpectShown(const Huevox& huevox, int mark, const Color& color, const std::string& code) {
    EXPECT_BECOMES(huevox.sliders(), color);
    EXPECT_BECOMES(huevox.isChecked(Option(mark)), true);
    EXPECT_BECOMES(huevox.isEnabled(IDC_picSample + mark), true);
    EXPECT_BECOMES(huevox.sample(mark), color);
    EXPECT_BECOMES(huevox.text(IDC_txtSetRed), std::to_string(color.red));
    EXPECT_BECOMES(huevox.text(IDC_txtSetGreen), std::to_string(color.green));
    EXPECT_BECOMES(huevox.barStep(std::min({color.red, color.green, color.blue})), color);
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), code);
    EXPECT_BECOMES(ClipboardText(), code);
}

/// Undo and Redo of a change of mark 0, which is red at first, between those two colours.
void ExpectOneStep(const Huevox& huevox, const Color& changed) {
    ASSERT_BECOMES(huevox.sample(0), changed);
    PressUndo();
    ASSERT_BECOMES(huevox.sample(0), ColorOf(255, 0, 0));
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 0, 0));
    PressRedo();
    ASSERT_BECOMES(huevox.sample(0), changed);
}

}  // namespace

TEST_F(Undo, TakesADragBackInOneStepAndEverythingFollows) {
    const Huevox huevox;
    PressButton(huevox.thumb(IDC_hsbGreen, 0));
    for (const int target : {60, 120, 200}) MoveMouse(huevox.thumb(IDC_hsbGreen, target));
    ASSERT_TRUE(Eventually([&] { return huevox.sliders().green > 190; }));
    ReleaseButton(huevox.thumb(IDC_hsbGreen, 200));
    ASSERT_BECOMES(huevox.text(Property(0)), "");
    const Color dragged = huevox.sliders();
    const std::string code = ClipboardText();
    PressUndo();
    ExpectShown(huevox, 0, ColorOf(255, 0, 0), "#FF0000");
    EXPECT_BECOMES(huevox.text(Property(0)), "WFJ");
    PressRedo();
    ExpectShown(huevox, 0, dragged, code);
    EXPECT_BECOMES(huevox.text(Property(0)), "");
}

TEST_F(Undo, AndRedoAreInTheMenu) {
    const Huevox huevox;
    ChangeAndRest(huevox, ColorOf(255, 1, 0));
    Press('E', {VK_MENU});
    Press('U');
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 0, 0));
    Press('E', {VK_MENU});
    Press('R');
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 1, 0));
}

TEST_F(Undo, ChangesAreStepsOfTheirOwnOnceTheHandHasRested) {
    const Huevox huevox;
    ChangeAndRest(huevox, ColorOf(255, 1, 0));
    ChangeAndRest(huevox, ColorOf(255, 2, 0));
    PressUndo();
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 1, 0));
    PressUndo();
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 0, 0));
    PressUndo();
    PressRedo();
    PressRedo();
    PressRedo();
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 2, 0));
}

TEST_F(Undo, ATypedColorIsOneStepEvenInItsBox) {
    const Huevox huevox;
    SetColor(huevox, ColorOf(1, 2, 3));
    ASSERT_BECOMES(huevox.focused(), IDC_txtSetBlue);
    ExpectOneStep(huevox, ColorOf(1, 2, 3));
    EXPECT_BECOMES(huevox.text(IDC_txtSetBlue), "3");
}

/// No other value changes, so the box with the focus keeps the text that was typed.
TEST_F(Undo, ATypedValueIsOneStepEvenInItsBox) {
    const Huevox huevox;
    huevox.retype(IDC_txtSetBlue, "3");
    Press(VK_RETURN);
    ASSERT_BECOMES(huevox.isEnabled(IDC_cmdSetColor), false);
    ExpectOneStep(huevox, ColorOf(255, 0, 3));
    EXPECT_BECOMES(huevox.text(IDC_txtSetBlue), "3");
}

TEST_F(Undo, AColorOfTheBarIsOneStep) {
    const Huevox huevox;
    Click(huevox.barStepPlace(128));
    ExpectOneStep(huevox, ColorOf(255, 128, 128));
}

TEST_F(Undo, ASwatchIsOneStep) {
    const Huevox huevox;
    const PickerWindow picker(huevox, javaScriptGrid);
    const Color greenyellow = ColorOf(0xAD, 0xFF, 0x2F);
    ExpectClick(huevox, picker, {3, 7}, greenyellow);
    picker.close();
    ExpectOneStep(huevox, greenyellow);
}

TEST_F(Undo, APastedColorIsOneStep) {
    const Huevox huevox;
    huevox.selectMark(3);
    Press(VK_F2);
    huevox.selectMark(0);
    Press(VK_F3);
    ExpectOneStep(huevox, ColorOf(0, 255, 255));
}

TEST_F(Undo, AMarkThatComesBackStaysWhenTheWindowDoes) {
    const Huevox huevox;
    huevox.selectMark(2);
    Click(huevox.barStepPlace(128));
    ASSERT_BECOMES(huevox.sliders(), ColorOf(128, 255, 128));
    huevox.selectMark(4);
    Press('Z', {VK_CONTROL});
    ASSERT_BECOMES(huevox.isChecked(Option(2)), true);
    const Huevox other;
    ASSERT_BECOMES(::GetForegroundWindow(), other.window());
    ::SetForegroundWindow(huevox.window());
    // Another mark's button has had the focus.
    ASSERT_BECOMES(huevox.focused(), Option(2));
    Press(VK_F2);
    EXPECT_BECOMES(huevox.isToolButtonEnabled(IDM_mnuEditPasteColor), true);
    EXPECT_TRUE(huevox.isChecked(Option(2)));
    EXPECT_EQ(huevox.sliders(), ColorOf(0, 255, 0));
}

TEST_F(Undo, APickedColorIsOneStep) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    Pick(huevox, 0, Sample(huevox, 5), ColorOf(255, 0, 255));
    ExpectOneStep(huevox, ColorOf(255, 0, 255));
}

TEST_F(Undo, FoundNamesAreOneStep) {
    const Huevox huevox;
    huevox.retype(Name(1), "sun");
    Press(VK_F5);
    ASSERT_BECOMES(huevox.text(Name(5)), "magenta");
    PressUndo();
    EXPECT_BECOMES(huevox.text(Name(1)), "sun");
    for (const int mark : {0, 2, 3, 4, 5}) EXPECT_BECOMES(huevox.text(Name(mark)), noName);
    PressRedo();
    EXPECT_BECOMES(huevox.text(Name(1)), "yellow");
    EXPECT_BECOMES(huevox.text(Name(5)), "magenta");
}

TEST_F(Undo, ANameThatWasOfferedIsAStepBetweenWhatIsTyped) {
    const Huevox huevox;
    huevox.retype(Name(0), "blood");
    Press(VK_F4);
    const HWND box = huevox.waitForDialog();
    ASSERT_TRUE(box);
    Answer(box, IDYES);
    ASSERT_BECOMES(huevox.text(Name(0)), "red");
    ASSERT_BECOMES(huevox.focused(), Name(0));
    Type("x");
    ASSERT_BECOMES(huevox.text(Name(0)), "redx");
    huevox.focusSlider(IDC_hsbRed);
    for (const char* name : {"red", "blood", noName}) {
        PressUndo();
        EXPECT_BECOMES(huevox.text(Name(0)), name);
    }
}

TEST_F(Undo, BringsSelectionAndHighlightBackAndHighlightsNothing) {
    const Huevox huevox;
    huevox.retype(Name(2), "lime");
    huevox.retype(Name(4), "blue");
    huevox.selectMark(2);
    huevox.focusSlider(IDC_hsbBlue);
    Press(VK_RIGHT);
    ASSERT_BECOMES(huevox.backColor(Name(2)), highlight);
    huevox.selectMark(4);
    PressUndo();
    ExpectShown(huevox, 2, ColorOf(0, 255, 0), "#00FF00");
    EXPECT_BECOMES(huevox.backColor(Name(2)), white);
    EXPECT_BECOMES(huevox.backColor(Name(4)), white);
    EXPECT_BECOMES(huevox.isEnabled(IDC_picSample + 4), false);
    PressRedo();
    EXPECT_BECOMES(huevox.sliders(), ColorOf(0, 255, 1));
    EXPECT_BECOMES(huevox.backColor(Name(2)), highlight);
}

TEST_F(Undo, BringsBackTheNameOfAColorWithout) {
    const Huevox huevox;
    ChangeAndRest(huevox, ColorOf(255, 1, 0));
    Press(VK_F5);
    ASSERT_BECOMES(huevox.text(Name(0)), "Not JavaScript colour");
    ChangeAndRest(huevox, ColorOf(255, 2, 0));
    ASSERT_BECOMES(huevox.text(Name(0)), noName);
    PressUndo();
    EXPECT_BECOMES(huevox.text(Name(0)), "Not JavaScript colour");
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 1, 0));
}

TEST_F(Undo, AThousandTimesStopsAtTheFirstStep) {
    const Huevox huevox;
    for (int mark = 1; mark < 6; ++mark) {
        huevox.selectMark(mark);
        Click(huevox.barStepPlace(128));
        ASSERT_BECOMES(huevox.sliders() == huevox.sample(mark), true);
    }
    huevox.focusSlider(IDC_hsbRed);
    for (int times = 0; times < 1000; ++times) PressUndo();
    ExpectShown(huevox, 1, ColorOf(255, 255, 0), "#FFFF00");
    EXPECT_BECOMES(huevox.sample(5), ColorOf(255, 0, 255));
    for (int times = 0; times < 10; ++times) PressRedo();
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 128, 255));
}
