// What is the user told of the selected colour, and what does each answer do?
#include <string>
#include <vector>

#include "tests/driver/Palettes.h"

namespace {

class ColorProperties : public UiTest {};

/// A report on a colour that is websafe, failsafe and a JavaScript colour.
std::string ReportOn(const std::string& name) {
    return "The selected colour is a websafe colour.\r\n\r\n"
           "The selected colour will look good in failsafe mode.\r\n\r\n"
           "The selected colour is a JavaScript colour.\r\n\r\n"
           "In JavaScript, the name of the selected colour is " +
           name + ".";
}

std::string Offer(const std::string& name) {
    return "\r\n\r\nDo you want to change the name of the selected colour to " + name + "?";
}

std::vector<int> Buttons(HWND box) {
    std::vector<int> buttons;
    for (int id = IDOK; id <= IDNO; ++id) {
        if (::GetDlgItem(box, id)) buttons.push_back(id);
    }
    return buttons;
}

/// Waits for the report, expects the question in it if there is one, and gives the answer.
void ExpectReport(const Huevox& huevox, const std::string& text, const std::vector<int>& buttons,
                  int answer) {
    const HWND box = huevox.waitForDialog();
    ASSERT_TRUE(box);
    EXPECT_EQ(TextOf(box), "Colour Properties");
    EXPECT_EQ(MessageOf(box), text);
    EXPECT_EQ(Buttons(box), buttons);
    Answer(box, answer);
}

void ExpectOffer(const Huevox& huevox, const std::string& report, const std::string& name, int answer) {
    ExpectReport(huevox, report + Offer(name), {IDYES, IDNO}, answer);
}

void ExpectNoOffer(const Huevox& huevox, const std::string& report) {
    ExpectReport(huevox, report, {IDOK}, IDOK);
}

/// Types a mark's name, and takes the one that is offered in its place.
void TakeOffered(const Huevox& huevox, int mark, std::string_view typed, const std::string& report,
                 const std::string& offered) {
    huevox.retype(Name(mark), typed);
    Press(VK_F4);
    ExpectOffer(huevox, report, offered, IDYES);
    ASSERT_BECOMES(huevox.text(Name(mark)), offered);
}

}  // namespace

TEST_F(ColorProperties, AreShownByShortcut) {
    const Huevox huevox;
    Press(VK_F4);
    ExpectOffer(huevox, ReportOn("red"), "red", IDNO);
}

TEST_F(ColorProperties, AreShownByMenu) {
    const Huevox huevox;
    Press('H', {VK_MENU});
    Press('C');
    ExpectOffer(huevox, ReportOn("red"), "red", IDNO);
}

TEST_F(ColorProperties, AreShownByToolBar) {
    const Huevox huevox;
    Click(huevox.toolButton(IDM_mnuHelpColorProperties));
    ExpectOffer(huevox, ReportOn("red"), "red", IDNO);
}

TEST_F(ColorProperties, AreAnInformationWithOrWithoutAnOffer) {
    const Huevox huevox;
    for (const int button : {IDYES, IDOK}) {
        Press(VK_F4);
        const HWND box = huevox.waitForDialog();
        ASSERT_TRUE(box);
        EXPECT_TRUE(Eventually([&] { return ShowsIcon(box, IDI_INFORMATION); }));
        Answer(box, button);
    }
    EXPECT_EQ(huevox.text(Name(0)), "red");
}

TEST_F(ColorProperties, AreThoseOfTheSelectedMark) {
    const Huevox huevox;
    huevox.selectMark(4);
    Press(VK_F4);
    ExpectOffer(huevox, ReportOn("blue"), "blue", IDYES);
    EXPECT_BECOMES(huevox.text(Name(4)), "blue");
    EXPECT_EQ(huevox.text(Name(0)), "Type a colour name");
}

TEST_F(ColorProperties, YesGivesTheNameWithTheCaretAtItsEndAndTakesTheHighlightAway) {
    const Huevox huevox;
    huevox.retype(Name(0), "snowy");
    SetColor(huevox, white);
    ASSERT_BECOMES(huevox.backColor(Name(0)), highlight);
    Press(VK_F4);
    ExpectOffer(huevox, ReportOn("white"), "white", IDYES);
    EXPECT_BECOMES(huevox.text(Name(0)), "white");
    EXPECT_BECOMES(huevox.selection(Name(0)), (std::pair<int, int>{5, 5}));
    EXPECT_BECOMES(huevox.backColor(Name(0)), white);
}

TEST_F(ColorProperties, YesNamesTheMarkThatWasAskedAbout) {
    const Huevox huevox;
    Press(VK_F4);
    const HWND box = huevox.waitForDialog();
    ASSERT_TRUE(box);
    // Another program may select a mark while no user can.
    ::SendMessageA(huevox.control(Option(2)), BM_CLICK, 0, 0);
    ASSERT_BECOMES(huevox.sliders(), ColorOf(0, 255, 0));
    Answer(box, IDYES);
    EXPECT_BECOMES(huevox.text(Name(0)), "red");
    EXPECT_EQ(huevox.text(Name(2)), "Type a colour name");
}

TEST_F(ColorProperties, NoLeavesTheNameAndItsHighlight) {
    const Huevox huevox;
    huevox.retype(Name(0), "snowy");
    SetColor(huevox, white);
    ASSERT_BECOMES(huevox.backColor(Name(0)), highlight);
    Press(VK_F4);
    ExpectOffer(huevox, ReportOn("white"), "white", IDNO);
    // The name has not changed in between either: the same is offered again.
    Press(VK_F4);
    ExpectOffer(huevox, ReportOn("white"), "white", IDNO);
    EXPECT_EQ(huevox.text(Name(0)), "snowy");
    EXPECT_BECOMES(huevox.backColor(Name(0)), highlight);
}

TEST_F(ColorProperties, AreAnsweredByKeys) {
    const Huevox huevox;
    Press(VK_F4);
    const HWND box = huevox.waitForDialog();
    ASSERT_TRUE(box);
    ASSERT_BECOMES(huevox.focused(), IDYES);
    Press(VK_RETURN);
    EXPECT_BECOMES(huevox.text(Name(0)), "red");
    EXPECT_BECOMES(huevox.dialogCount(), 0);
}

TEST_F(ColorProperties, OfAMarkNamedAquaOfferCyanAndThenNothing) {
    const Huevox huevox;
    huevox.selectMark(3);
    TakeOffered(huevox, 3, "aqua", ReportOn("cyan (also known as aqua)"), "cyan");
    Press(VK_F4);
    ExpectNoOffer(huevox, ReportOn("cyan (also known as aqua)"));
    EXPECT_EQ(huevox.text(Name(3)), "cyan");
}

TEST_F(ColorProperties, OfAMarkNamedFuchsiaOfferMagenta) {
    const Huevox huevox;
    huevox.selectMark(5);
    TakeOffered(huevox, 5, "fuchsia", ReportOn("magenta (also known as fuchsia)"), "magenta");
}

TEST_F(ColorProperties, KnowAliceblue) {
    const Huevox huevox;
    SetColor(huevox, ColorOf(0xF0, 0xF8, 0xFF));
    Press(VK_F4);
    ExpectOffer(huevox,
                "The selected colour is not a websafe colour.\r\n\r\n"
                "The selected colour will not look good in failsafe mode.\r\n\r\n"
                "The selected colour is a JavaScript colour.\r\n\r\n"
                "In JavaScript, the name of the selected colour is aliceblue.",
                "aliceblue", IDYES);
    EXPECT_BECOMES(huevox.text(Name(0)), "aliceblue");
}

TEST_F(ColorProperties, OfAMarkNamedWhiteWithACapitalOfferWhite) {
    const Huevox huevox;
    SetColor(huevox, white);
    TakeOffered(huevox, 0, "White", ReportOn("white"), "white");
}

TEST_F(ColorProperties, OfAColorInNoTableAreNegativeAndOfferNothing) {
    const Huevox huevox;
    SetColor(huevox, ColorOf(0x12, 0x34, 0x56));
    Press(VK_F4);
    ExpectNoOffer(huevox,
                  "The selected colour is not a websafe colour.\r\n\r\n"
                  "The selected colour will not look good in failsafe mode.\r\n\r\n"
                  "The selected colour is not a JavaScript colour.");
    EXPECT_EQ(huevox.text(Name(0)), "Type a colour name");
}

TEST_F(ColorProperties, ANameTakenFromThemIsAChangeOfThePalette) {
    const Huevox huevox;
    Press(VK_F4);
    ExpectOffer(huevox, ReportOn("red"), "red", IDYES);
    PressClose(huevox);
    AnswerQuestion(huevox, IDNO);
    EXPECT_EQ(huevox.waitForEnd(), 0);
}

TEST_F(ColorProperties, WithoutANewNameLeaveThePaletteUnchanged) {
    const Huevox huevox;
    Press(VK_F4);
    ExpectOffer(huevox, ReportOn("red"), "red", IDNO);
    PressClose(huevox);
    EXPECT_EQ(huevox.waitForEnd(), 0);
}
