// How are the six colour marks selected, named and highlighted?
#include <string>

#include "tests/driver/UiTest.h"

namespace {

class SelectingMarks : public UiTest {};
class NameBoxes : public UiTest {};
class NameHighlight : public UiTest {};

const std::pair<int, int> nothingAtEnd = {18, 18};
const std::pair<int, int> wholePlaceholder = {0, 18};

/// One step to the left: a change of colour by the user.
void MoveSlider(const Huevox& huevox, int slider = IDC_hsbRed) {
    huevox.focusSlider(slider);
    const LRESULT before = huevox.send(slider, SBM_GETPOS);
    Press(VK_LEFT);
    ASSERT_BECOMES(huevox.send(slider, SBM_GETPOS), before - 1);
}

/// So far from the middle that Windows does not take this click and one there for a double click.
void ClickAside(const Huevox& huevox, int box) { Click(OnScreen(huevox.control(box), {10, 8})); }

}  // namespace

TEST_F(SelectingMarks, ShowsTheMarksColorEverywhere) {
    const Huevox huevox;
    huevox.selectMark(3);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(0, 255, 255));
    EXPECT_BECOMES(huevox.text(IDC_txtSetRed), "0");
    EXPECT_BECOMES(huevox.text(IDC_txtSetGreen), "255");
    EXPECT_BECOMES(huevox.text(IDC_txtSetBlue), "255");
    EXPECT_BECOMES(huevox.barStep(0), ColorOf(0, 255, 255));
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), "#00FFFF");
    EXPECT_BECOMES(ClipboardText(), "#00FFFF");
}

TEST_F(SelectingMarks, TurnsTheOtherOptionsOffAndEnablesItsSampleAlone) {
    const Huevox huevox;
    for (const int selected : {5, 2, 0}) {
        huevox.selectMark(selected);
        for (int mark = 0; mark < 6; ++mark) {
            EXPECT_BECOMES(huevox.isChecked(Option(mark)), mark == selected);
            EXPECT_BECOMES(huevox.isEnabled(IDC_picSample + mark), mark == selected);
        }
    }
}

TEST_F(SelectingMarks, ByArrowKeysGoesRoundTheGroup) {
    const Huevox huevox;
    huevox.selectMark(4);
    ASSERT_BECOMES(huevox.focused(), Option(4));
    Press(VK_RIGHT);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 0, 255));
    Press(VK_RIGHT);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 0, 0));
    EXPECT_BECOMES(huevox.isChecked(Option(0)), true);
    Press(VK_LEFT);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 0, 255));
}

TEST_F(SelectingMarks, KeepsEachMarksColor) {
    const Huevox huevox;
    MoveSlider(huevox);
    huevox.selectMark(1);
    MoveSlider(huevox, IDC_hsbGreen);
    huevox.selectMark(0);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(254, 0, 0));
    EXPECT_BECOMES(huevox.sample(0), ColorOf(254, 0, 0));
    EXPECT_BECOMES(huevox.sample(1), ColorOf(255, 254, 0));
    EXPECT_BECOMES(huevox.sample(2), ColorOf(0, 255, 0));
}

TEST_F(SelectingMarks, NeverHighlightsAName) {
    const Huevox huevox;
    huevox.retype(Name(1), "navy");
    huevox.selectMark(1);
    huevox.selectMark(0);
    huevox.selectMark(1);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 255, 0));
    EXPECT_BECOMES(huevox.backColor(Name(1)), white);
}

TEST_F(NameBoxes, TheFirstClickSelectsTheWholeNameAndFurtherClicksPlaceTheCaret) {
    const Huevox huevox;
    huevox.focusByClick(Name(2));
    EXPECT_BECOMES(huevox.selection(Name(2)), wholePlaceholder);
    const std::string name = huevox.text(Name(2));
    ClickAside(huevox, Name(2));
    // A selection comes with the release, and would be replaced.
    Type("x");
    EXPECT_BECOMES(huevox.text(Name(2)).size(), name.size() + 1);
}

TEST_F(NameBoxes, AClickAfterTheFocusWasElsewhereSelectsAgain) {
    const Huevox huevox;
    huevox.focusByClick(Name(2));
    huevox.focusByClick(IDC_txtSetRed);
    huevox.focusByClick(Name(3));
    EXPECT_BECOMES(huevox.selection(Name(3)), wholePlaceholder);
}

TEST_F(NameBoxes, APressThatIsLetGoOfElsewhereSelectsNothing) {
    const Huevox huevox;
    const POINT pressed = CenterOf(huevox.control(Name(2)));
    MoveMouse(pressed);
    PressButton(pressed);
    ReleaseButton({pressed.x, CenterOf(huevox.control(IDC_picSample + 2)).y});
    ASSERT_BECOMES(huevox.focused(), Name(2));
    Type("x");
    EXPECT_BECOMES(huevox.text(Name(2)).size(), std::string("Type a colour name").size() + 1);
}

TEST_F(NameBoxes, ADoubleClickSelectsTheWholeName) {
    const Huevox huevox;
    huevox.retype(Name(0), "light sea green");
    ClickAside(huevox, Name(0));
    DoubleClick(huevox.control(Name(0)));
    EXPECT_BECOMES(huevox.selection(Name(0)), (std::pair<int, int>{0, 15}));
}

TEST_F(NameBoxes, TheTabKeySelectsTheWholeName) {
    const Huevox huevox;
    huevox.focusByClick(Name(0));
    Press(VK_TAB);
    ASSERT_BECOMES(huevox.focused(), Name(1));
    EXPECT_BECOMES(huevox.selection(Name(1)), wholePlaceholder);
}

TEST_F(NameBoxes, TakeAtMost21TypedCharacters) {
    const Huevox huevox;
    huevox.focusByClick(Name(0));
    ASSERT_BECOMES(huevox.selection(Name(0)), wholePlaceholder);
    Type("abcdefghijklmnopqrstuvwxyz");
    EXPECT_BECOMES(huevox.text(Name(0)), "abcdefghijklmnopqrstu");
}

TEST_F(NameBoxes, TypingTheTemporaryPlaceholderGivesTheOtherWithTheCaretAtItsEnd) {
    const Huevox huevox;
    huevox.focusByClick(Name(0));
    ASSERT_BECOMES(huevox.selection(Name(0)), wholePlaceholder);
    Type("Not JavaScript colour");
    EXPECT_BECOMES(huevox.text(Name(0)), "Type a colour name");
    EXPECT_BECOMES(huevox.selection(Name(0)), nothingAtEnd);
}

TEST_F(NameBoxes, TypingInTheMiddleLeavesTheCaretThere) {
    const Huevox huevox;
    huevox.retype(Name(0), "navy");
    Press(VK_HOME);
    Type("x");
    EXPECT_BECOMES(huevox.text(Name(0)), "xnavy");
    EXPECT_BECOMES(huevox.selection(Name(0)), (std::pair<int, int>{1, 1}));
}

TEST_F(NameHighlight, ShowsThatTheColorHasChangedSinceTheNameWasGiven) {
    const Huevox huevox;
    huevox.retype(Name(0), "navy");
    MoveSlider(huevox);
    EXPECT_BECOMES(huevox.backColor(Name(0)), highlight);
    MoveSlider(huevox);
    EXPECT_BECOMES(huevox.backColor(Name(0)), highlight);
    EXPECT_EQ(huevox.text(Name(0)), "navy");
}

TEST_F(NameHighlight, IsRemovedByTypingInTheBox) {
    const Huevox huevox;
    huevox.retype(Name(0), "navy");
    MoveSlider(huevox);
    ASSERT_BECOMES(huevox.backColor(Name(0)), highlight);
    huevox.focusByClick(Name(0));
    Press(VK_END);
    Type("x");
    EXPECT_BECOMES(huevox.text(Name(0)), "navyx");
    EXPECT_BECOMES(huevox.backColor(Name(0)), white);
}

TEST_F(NameHighlight, NeverTouchesAMarkWithoutAName) {
    const Huevox huevox;
    MoveSlider(huevox);
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), "#FE0000");
    EXPECT_BECOMES(huevox.backColor(Name(0)), white);
}

TEST_F(NameHighlight, TouchesTheSelectedMarkOnly) {
    const Huevox huevox;
    huevox.retype(Name(0), "navy");
    huevox.retype(Name(1), "rose");
    MoveSlider(huevox);
    ASSERT_BECOMES(huevox.backColor(Name(0)), highlight);
    EXPECT_BECOMES(huevox.backColor(Name(1)), white);
}

TEST_F(NameHighlight, SwitchingTheModeCountsAsAChangeOfColor) {
    const Huevox huevox;
    huevox.retype(Name(0), "navy");
    Click(huevox.control(IDC_optSetHex));
    EXPECT_BECOMES(huevox.backColor(Name(0)), highlight);
}

TEST_F(NameHighlight, ChoosingANotationDoesNot) {
    const Huevox huevox;
    huevox.retype(Name(0), "navy");
    huevox.chooseNotation(6);
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), "255");
    EXPECT_BECOMES(huevox.backColor(Name(0)), white);
    MoveSlider(huevox);
    EXPECT_BECOMES(huevox.backColor(Name(0)), highlight);
}
