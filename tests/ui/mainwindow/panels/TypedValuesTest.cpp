// How are values typed, applied and refused?
#include <string>

#include "tests/driver/UiTest.h"
#include "tests/ui/mainwindow/panels/Refusal.h"

namespace {

class DecimalValues : public UiTest {};
class HexValues : public UiTest {};

void ChooseHex(const Huevox& huevox) {
    Click(huevox.control(IDC_optSetHex));
    ASSERT_BECOMES(huevox.text(IDC_txtSetRed), "FF");
}

/// Pastes a text over what stands in a box.
void PasteInto(const Huevox& huevox, int box, const char* text) {
    CopyElsewhere(text);
    huevox.focusByClick(box);
    Press(VK_END);
    Press(VK_HOME, {VK_SHIFT});
    Press('V', {VK_CONTROL});
}

/// Types a value into the red box, applies it, and expects that it is refused and nothing has changed.
void ExpectRefused(const char* typed, const char* refusal) {
    const Huevox huevox;
    if (refusal == hexRefusal) ChooseHex(huevox);
    huevox.retype(IDC_txtSetRed, typed);
    Press(VK_RETURN);
    ExpectRefusal(huevox, refusal, IDC_txtSetRed);
    EXPECT_EQ(huevox.text(IDC_txtSetRed), typed);
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
    EXPECT_EQ(huevox.text(IDC_lblClipboard), "#FF0000");
}

}  // namespace

TEST_F(DecimalValues, AreAppliedByEnterWhichSelectsTheBox) {
    const Huevox huevox;
    huevox.retype(IDC_txtSetRed, "12");
    huevox.retype(IDC_txtSetGreen, "34");
    huevox.retype(IDC_txtSetBlue, "56");
    Press(VK_RETURN);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(12, 34, 56));
    EXPECT_BECOMES(huevox.selection(IDC_txtSetBlue), (std::pair<int, int>{0, 2}));
    EXPECT_EQ(huevox.focused(), IDC_txtSetBlue);
    EXPECT_BECOMES(huevox.sample(0), ColorOf(12, 34, 56));
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), "#0C2238");
}

TEST_F(DecimalValues, AreAppliedByTheSetButton) {
    const Huevox huevox;
    huevox.retype(IDC_txtSetGreen, "128");
    ASSERT_BECOMES(huevox.isEnabled(IDC_cmdSetColor), true);
    Click(huevox.control(IDC_cmdSetColor));
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 128, 0));
    EXPECT_BECOMES(huevox.isEnabled(IDC_cmdSetColor), false);
}

TEST_F(DecimalValues, TheSetButtonPassesTheFocusOnWhenItIsDisabled) {
    const Huevox huevox;
    huevox.retype(IDC_txtSetGreen, "128");
    ASSERT_BECOMES(huevox.isEnabled(IDC_cmdSetColor), true);
    Click(huevox.control(IDC_cmdSetColor));
    EXPECT_BECOMES(huevox.focused(), IDC_optSetDec);
}

TEST_F(DecimalValues, BlanksAndLeadingZerosAreAllowed) {
    const Huevox huevox;
    huevox.retype(IDC_txtSetRed, "007");
    huevox.retype(IDC_txtSetGreen, " 9 ");
    huevox.retype(IDC_txtSetBlue, "000");
    Press(VK_RETURN);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(7, 9, 0));
    EXPECT_BECOMES(huevox.text(IDC_txtSetRed), "7");
    EXPECT_BECOMES(huevox.text(IDC_txtSetGreen), "9");
}

TEST_F(DecimalValues, ZeroAnd255AreTheLimits) {
    const Huevox huevox;
    huevox.retype(IDC_txtSetRed, "0");
    huevox.retype(IDC_txtSetGreen, "255");
    Press(VK_RETURN);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(0, 255, 0));
}

TEST_F(DecimalValues, ATextThatIsTheValueAlreadyStaysAsTyped) {
    const Huevox huevox;
    huevox.retype(IDC_txtSetGreen, "000");
    Press(VK_RETURN);
    EXPECT_BECOMES(huevox.selection(IDC_txtSetGreen), (std::pair<int, int>{0, 3}));
    EXPECT_BECOMES(huevox.isEnabled(IDC_optSetHex), true);
    EXPECT_EQ(huevox.text(IDC_txtSetGreen), "000");
}

TEST_F(DecimalValues, Refuse256) { ExpectRefused("256", decimalRefusal); }
TEST_F(DecimalValues, RefuseANegativeValue) { ExpectRefused("-1", decimalRefusal); }
TEST_F(DecimalValues, RefuseAFraction) { ExpectRefused("1.5", decimalRefusal); }
TEST_F(DecimalValues, RefuseAnExponent) { ExpectRefused("1E2", decimalRefusal); }
TEST_F(DecimalValues, RefuseAnEmptyBox) { ExpectRefused("", decimalRefusal); }

TEST_F(DecimalValues, ReportTheFirstBadBoxOnlyAndApplyNothing) {
    const Huevox huevox;
    huevox.retype(IDC_txtSetRed, "300");
    huevox.retype(IDC_txtSetGreen, "12");
    huevox.retype(IDC_txtSetBlue, "X");
    Press(VK_RETURN);
    ExpectRefusal(huevox, decimalRefusal, IDC_txtSetRed);
    EXPECT_EQ(huevox.dialogCount(), 0);
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
    EXPECT_EQ(huevox.text(IDC_txtSetGreen), "12");
    EXPECT_EQ(huevox.text(IDC_txtSetBlue), "X");
}

TEST_F(DecimalValues, AGoodBoxBeforeABadOneIsNotAppliedEither) {
    const Huevox huevox;
    huevox.retype(IDC_txtSetRed, "1");
    huevox.retype(IDC_txtSetBlue, "Q");
    Press(VK_RETURN);
    ExpectRefusal(huevox, decimalRefusal, IDC_txtSetBlue);
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
    EXPECT_EQ(huevox.text(IDC_txtSetRed), "1");
}

TEST_F(DecimalValues, EnterInARefusedStateRepeatsTheRefusal) {
    const Huevox huevox;
    huevox.retype(IDC_txtSetRed, "300");
    Press(VK_RETURN);
    ExpectRefusal(huevox, decimalRefusal, IDC_txtSetRed);
    Press(VK_RETURN);
    ExpectRefusal(huevox, decimalRefusal, IDC_txtSetRed);
    EXPECT_EQ(huevox.text(IDC_txtSetRed), "300");
}

TEST_F(HexValues, AreShownUpperCaseWhenTyped) {
    const Huevox huevox;
    ChooseHex(huevox);
    huevox.retype(IDC_txtSetGreen, "ab");
    EXPECT_EQ(huevox.text(IDC_txtSetGreen), "AB");
    Press(VK_RETURN);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 171, 0));
}

TEST_F(HexValues, AreAppliedByEnterWhichUnlocksTheMode) {
    const Huevox huevox;
    ChooseHex(huevox);
    huevox.retype(IDC_txtSetGreen, "7F");
    ASSERT_BECOMES(huevox.isEnabled(IDC_optSetDec), false);
    Press(VK_RETURN);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 127, 0));
    EXPECT_BECOMES(huevox.isEnabled(IDC_cmdSetColor), false);
    EXPECT_BECOMES(huevox.isEnabled(IDC_optSetDec), true);
    EXPECT_BECOMES(huevox.isEnabled(IDC_optSetHex), true);
}

TEST_F(HexValues, ArePastedAsTheyStand) {
    const Huevox huevox;
    ChooseHex(huevox);
    PasteInto(huevox, IDC_txtSetGreen, "0f");
    ASSERT_BECOMES(huevox.text(IDC_txtSetGreen), "0f");
    Press(VK_RETURN);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 15, 0));
    EXPECT_BECOMES(huevox.text(IDC_txtSetGreen), "0F");
}

TEST_F(HexValues, RefuseASingleDigit) { ExpectRefused("F", hexRefusal); }
TEST_F(HexValues, RefuseThreeDigits) { ExpectRefused("FFF", hexRefusal); }
TEST_F(HexValues, RefuseAnotherLetterInFront) { ExpectRefused("G0", hexRefusal); }
TEST_F(HexValues, RefuseAnotherLetterBehind) { ExpectRefused("0G", hexRefusal); }
TEST_F(HexValues, RefuseAnEmptyBox) { ExpectRefused("", hexRefusal); }

TEST_F(HexValues, ModeIsLeftByDecRewritingTheBoxes) {
    const Huevox huevox;
    ChooseHex(huevox);
    EXPECT_EQ(huevox.text(IDC_txtSetGreen), "00");
    Click(huevox.control(IDC_optSetDec));
    EXPECT_BECOMES(huevox.text(IDC_txtSetRed), "255");
    EXPECT_BECOMES(huevox.text(IDC_txtSetGreen), "0");
}
