// How do JavaScript names get to the clipboard in place of the notation?
#include "tests/driver/UiTest.h"

namespace {

class JavaScriptNames : public UiTest {};

}  // namespace

TEST_F(JavaScriptNames, AreCopiedInsteadOfTheNotationWhichComesBack) {
    const Huevox huevox;
    huevox.chooseNotation(6);
    ASSERT_BECOMES(huevox.text(IDC_lblClipboard), "255");
    CheckNames(huevox, true);
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), "red");
    EXPECT_BECOMES(huevox.listIndex(), -1);
    EXPECT_BECOMES(ClipboardText(), "red");
    CheckNames(huevox, false);
    EXPECT_BECOMES(huevox.listIndex(), 6);
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), "255");
    EXPECT_BECOMES(ClipboardText(), "255");
}

TEST_F(JavaScriptNames, OfEqualColorsAreCyanAndMagenta) {
    const Huevox huevox;
    CheckNames(huevox, true);
    huevox.selectMark(3);
    EXPECT_BECOMES(ClipboardText(), "cyan");
    huevox.selectMark(5);
    EXPECT_BECOMES(ClipboardText(), "magenta");
}

TEST_F(JavaScriptNames, SpellBlanchedalmondRight) {
    const Huevox huevox;
    CheckNames(huevox, true);
    SetColor(huevox, ColorOf(0xFF, 0xEB, 0xCD));
    EXPECT_BECOMES(ClipboardText(), "blanchedalmond");
}

TEST_F(JavaScriptNames, AreEmptyForAColorWithoutOne) {
    const Huevox huevox;
    CheckNames(huevox, true);
    ASSERT_BECOMES(ClipboardText(), "red");
    SetColor(huevox, ColorOf(0x12, 0x34, 0x56));
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), "");
    EXPECT_BECOMES(ClipboardText(), "");
}
