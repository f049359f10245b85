// What does Find JavaScript Names make of the six names?
#include <array>
#include <string>

#include "tests/driver/Palettes.h"

namespace {

class FindJavaScriptNames : public PaletteTest {};

constexpr const char* none = "Type a colour name";
constexpr const char* notJavaScript = "Not JavaScript colour";

void ExpectNames(const Huevox& huevox, const MarkNames& names) {
    for (int mark = 0; mark < markCount; ++mark) EXPECT_BECOMES(huevox.text(Name(mark)), names[mark]);
}

/// Names the marks and waits for the last one.
void FindNames(const Huevox& huevox, std::string_view last = "magenta") {
    Press(VK_F5);
    ASSERT_BECOMES(huevox.text(Name(5)), last);
}

/// Highlights a name: changes the colour and changes it back.
void ChangeAndBack(const Huevox& huevox, int mark, int slider) {
    huevox.selectMark(mark);
    huevox.focusSlider(slider);
    const Color before = huevox.sliders();
    Press(VK_LEFT);
    ASSERT_BECOMES(huevox.backColor(Name(mark)), highlight);
    Press(VK_RIGHT);
    ASSERT_BECOMES(huevox.sliders(), before);
    EXPECT_BECOMES(huevox.backColor(Name(mark)), highlight);
}

/// Two marks that have no JavaScript name, the second of them selected; the others are named.
void NameAllButTwo(const Huevox& huevox) {
    ChangeColor(huevox);
    huevox.selectMark(4);
    ChangeColor(huevox);
    FindNames(huevox);
    ExpectNames(huevox, {notJavaScript, "yellow", "lime", "cyan", notJavaScript, "magenta"});
}

}  // namespace

TEST_F(FindJavaScriptNames, ByShortcutNamesAllSixMarks) {
    const Huevox huevox;
    Press(VK_F5);
    ExpectNames(huevox, {"red", "yellow", "lime", "cyan", "blue", "magenta"});
}

TEST_F(FindJavaScriptNames, ByMenuNamesAllSixMarks) {
    const Huevox huevox;
    Press('E', {VK_MENU});
    Press('F');
    ExpectNames(huevox, {"red", "yellow", "lime", "cyan", "blue", "magenta"});
}

TEST_F(FindJavaScriptNames, ByToolBarNamesAllSixMarks) {
    const Huevox huevox;
    Click(huevox.toolButton(IDM_mnuEditFind));
    ExpectNames(huevox, {"red", "yellow", "lime", "cyan", "blue", "magenta"});
}

TEST_F(FindJavaScriptNames, PutsTheCaretAfterANameButNotAfterThePlaceholder) {
    const Huevox huevox;
    ChangeColor(huevox);
    FindNames(huevox);
    EXPECT_BECOMES(huevox.selection(Name(0)), (std::pair<int, int>{0, 0}));
    EXPECT_BECOMES(huevox.selection(Name(1)), (std::pair<int, int>{6, 6}));
    EXPECT_BECOMES(huevox.selection(Name(5)), (std::pair<int, int>{7, 7}));
}

TEST_F(FindJavaScriptNames, DoesNotKnowAliceblue) {
    const Huevox huevox;
    SetColor(huevox, ColorOf(0xF0, 0xF8, 0xFF));
    huevox.retype(Name(0), "aliceblue");
    FindNames(huevox);
    EXPECT_BECOMES(huevox.text(Name(0)), notJavaScript);
}

TEST_F(FindJavaScriptNames, CallsMarksCyanAndMagentaWhateverTheTwinsAreCalled) {
    const Huevox huevox;
    huevox.retype(Name(3), "aqua");
    huevox.retype(Name(5), "fuchsia");
    FindNames(huevox);
    EXPECT_BECOMES(huevox.text(Name(3)), "cyan");
}

TEST_F(FindJavaScriptNames, CorrectsTheCaseOfAName) {
    const Huevox huevox;
    huevox.retype(Name(0), "Red");
    FindNames(huevox);
    EXPECT_BECOMES(huevox.text(Name(0)), "red");
}

TEST_F(FindJavaScriptNames, ReplacesANameThatDoesNotFitAndTakesItsHighlightAway) {
    const Huevox huevox;
    huevox.retype(Name(0), "rose");
    ChangeColor(huevox);
    ASSERT_BECOMES(huevox.backColor(Name(0)), highlight);
    FindNames(huevox);
    EXPECT_BECOMES(huevox.text(Name(0)), notJavaScript);
    EXPECT_BECOMES(huevox.backColor(Name(0)), white);
}

TEST_F(FindJavaScriptNames, OnMarksThatBearThemChangesNoTextAndNoCaretButWhitensAllSixBoxes) {
    constexpr std::array<int, markCount> sliders = {IDC_hsbRed,   IDC_hsbRed,  IDC_hsbGreen,
                                                    IDC_hsbGreen, IDC_hsbBlue, IDC_hsbBlue};
    const Huevox huevox;
    FindNames(huevox);
    for (int mark = 0; mark < markCount; ++mark) ChangeAndBack(huevox, mark, sliders[mark]);
    huevox.focusByClick(Name(2));
    Press(VK_HOME);
    ASSERT_BECOMES(huevox.selection(Name(2)), (std::pair<int, int>{0, 0}));
    Press(VK_F5);
    for (int mark = 0; mark < markCount; ++mark) EXPECT_BECOMES(huevox.backColor(Name(mark)), white);
    ExpectNames(huevox, {"red", "yellow", "lime", "cyan", "blue", "magenta"});
    EXPECT_EQ(huevox.selection(Name(2)), (std::pair<int, int>{0, 0}));
}

TEST_F(FindJavaScriptNames, PlaceholdersStayWhenAMarkIsSelected) {
    const Huevox huevox;
    NameAllButTwo(huevox);
    huevox.selectMark(0);
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 1, 0));
    ExpectNames(huevox, {notJavaScript, "yellow", "lime", "cyan", notJavaScript, "magenta"});
}

TEST_F(FindJavaScriptNames, PlaceholdersAllGoWithAChangeOfTheColorOfOneOfThem) {
    const Huevox huevox;
    NameAllButTwo(huevox);
    ChangeColor(huevox);
    ExpectNames(huevox, {none, "yellow", "lime", "cyan", none, "magenta"});
    EXPECT_BECOMES(huevox.backColor(Name(4)), white);
}

TEST_F(FindJavaScriptNames, PlaceholdersAllGoWithAChangeOfTheColorOfANamedMark) {
    const Huevox huevox;
    NameAllButTwo(huevox);
    huevox.selectMark(5);
    ChangeColor(huevox);
    ExpectNames(huevox, {none, "yellow", "lime", "cyan", none, "magenta"});
    EXPECT_BECOMES(huevox.backColor(Name(5)), highlight);
}

TEST_F(FindJavaScriptNames, APlaceholderThatIsTypedAfterwardsIsTheUsersAgain) {
    const Huevox huevox;
    FindNames(huevox);
    huevox.retype(Name(0), "Not JavaScript colou");
    Type("r");
    EXPECT_BECOMES(huevox.text(Name(0)), none);
}

TEST_F(FindJavaScriptNames, NewNamesAreAChangeOfThePalette) {
    const Huevox huevox;
    FindNames(huevox);
    PressClose(huevox);
    AnswerQuestion(huevox, IDNO);
    EXPECT_EQ(huevox.waitForEnd(), 0);
}

TEST_F(FindJavaScriptNames, PlaceholdersForMarksWithoutNamesAreNone) {
    WriteContent(PathOf("plain.txt"), PaletteOf(none, "1,2,3"));
    const Huevox huevox;
    OpenPalette(huevox, PathOf("plain.txt"));
    FindNames(huevox, notJavaScript);
    PressClose(huevox);
    EXPECT_EQ(huevox.waitForEnd(), 0);
}

TEST_F(FindJavaScriptNames, PlaceholdersAreSavedAsMarksWithoutNames) {
    const Huevox huevox;
    ChangeColor(huevox);
    FindNames(huevox);
    ASSERT_BECOMES(huevox.text(Name(0)), notJavaScript);
    SaveNewPalette(huevox, PathOf("found.txt"));
    EXPECT_NE(ContentOf(PathOf("found.txt")).find("\r\nType a colour name\r\n255,1,0\r\nyellow\r\n"),
              std::string::npos);
    EXPECT_EQ(huevox.text(Name(0)), notJavaScript);
}
