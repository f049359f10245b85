// What do typed values do that wait to be applied?
#include <string>

#include "tests/driver/UiTest.h"
#include "tests/ui/mainwindow/panels/Refusal.h"

namespace {

class WaitingValues : public UiTest {};

}  // namespace

TEST_F(WaitingValues, EnableSetAndLockTheMode) {
    const Huevox huevox;
    huevox.retype(IDC_txtSetRed, "12");
    EXPECT_BECOMES(huevox.isEnabled(IDC_cmdSetColor), true);
    EXPECT_BECOMES(huevox.isEnabled(IDC_optSetDec), false);
    EXPECT_BECOMES(huevox.isEnabled(IDC_optSetHex), false);
    Click(huevox.control(IDC_optSetHex));
    Press(VK_RETURN);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(12, 0, 0));
    EXPECT_TRUE(huevox.isChecked(IDC_optSetDec));
    EXPECT_BECOMES(huevox.isEnabled(IDC_optSetHex), true);
}

TEST_F(WaitingValues, AreNotThoseThatASliderShows) {
    const Huevox huevox;
    huevox.focusSlider(IDC_hsbGreen);
    Press(VK_RIGHT);
    ASSERT_BECOMES(huevox.text(IDC_lblClipboard), "#FF0100");
    EXPECT_FALSE(huevox.isEnabled(IDC_cmdSetColor));
    EXPECT_TRUE(huevox.isEnabled(IDC_optSetDec));
    EXPECT_TRUE(huevox.isEnabled(IDC_optSetHex));
}

TEST_F(WaitingValues, AreDiscardedBySwitchingTheModeAfterARefusal) {
    const Huevox huevox;
    huevox.retype(IDC_txtSetRed, "999");
    Press(VK_RETURN);
    ExpectRefusal(huevox, decimalRefusal, IDC_txtSetRed);
    Click(huevox.control(IDC_optSetHex));
    EXPECT_BECOMES(huevox.text(IDC_txtSetRed), "FF");
}

TEST_F(WaitingValues, KeepTheModeLockedWhateverElseChangesTheColor) {
    const Huevox huevox;
    huevox.retype(IDC_txtSetRed, "12");
    huevox.focusSlider(IDC_hsbGreen);
    Press(VK_RIGHT);
    EXPECT_BECOMES(huevox.isEnabled(IDC_cmdSetColor), false);
    // The program answers only once it has done with the change.
    EXPECT_EQ(huevox.text(IDC_txtSetRed), "255");
    EXPECT_FALSE(huevox.isEnabled(IDC_optSetDec));
    EXPECT_FALSE(huevox.isEnabled(IDC_optSetHex));
    huevox.focusByClick(IDC_txtSetRed);
    Press(VK_RETURN);
    EXPECT_BECOMES(huevox.isEnabled(IDC_optSetDec), true);
}

TEST_F(WaitingValues, TakeAtMostThreeTypedCharacters) {
    const Huevox huevox;
    huevox.focusByClick(IDC_txtSetRed);
    Press(VK_END);
    Press(VK_HOME, {VK_SHIFT});
    Type("1234");
    EXPECT_BECOMES(huevox.text(IDC_txtSetRed), "123");
}

TEST_F(WaitingValues, SurviveAVisitToAnotherProgram) {
    const Huevox huevox;
    huevox.retype(IDC_txtSetRed, "12");
    VisitAnotherProgram(huevox.window());
    ASSERT_BECOMES(huevox.focused(), IDC_txtSetRed);
    EXPECT_BECOMES(ClipboardText(), "#FF0000");
    EXPECT_EQ(huevox.text(IDC_txtSetRed), "12");
    EXPECT_TRUE(huevox.isEnabled(IDC_cmdSetColor));
    Press(VK_RETURN);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(12, 0, 0));
}

TEST_F(WaitingValues, TheTabKeySelectsABoxAndTheMouseDoesNot) {
    const Huevox huevox;
    huevox.focusByClick(IDC_txtSetRed);
    EXPECT_EQ(huevox.selection(IDC_txtSetRed).first, huevox.selection(IDC_txtSetRed).second);
    huevox.focusSlider(IDC_hsbBlue);
    Press(VK_TAB);
    ASSERT_BECOMES(huevox.focused(), IDC_txtSetRed);
    EXPECT_BECOMES(huevox.selection(IDC_txtSetRed), (std::pair<int, int>{0, 3}));
}
