// How long may the custom notation become?
#include "tests/driver/FormatDialog.h"

namespace {

class FormatLimit : public UiTest {};

/// In pixels from the left of the box.
int LeftOf(const FormatDialog& dialog, int character) {
    return LOWORD(::SendMessageA(dialog.control(IDC_txtFormat), EM_POSFROMCHAR, character, 0));
}

int WidthOf(HWND window) {
    RECT area{};
    ::GetClientRect(window, &area);
    return static_cast<int>(area.right);
}

}  // namespace

TEST_F(FormatLimit, A250thCharacterIsTypedAndA251stIsNot) {
    StoreText("CustomFormat", std::string(249, 'x'));
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    Type("yz");
    EXPECT_BECOMES(dialog.text(), std::string(249, 'x') + "y");
    dialog.click(IDC_cmdOK);
    EXPECT_EQ(StoredText("CustomFormat"), std::string(249, 'x') + "y");
}

TEST_F(FormatLimit, APastedTextIsCut) {
    const Huevox huevox;
    ASSERT_BECOMES(ClipboardText(), "#FF0000");
    const FormatDialog dialog(huevox);
    CopyElsewhere(std::string(251, 'x'));
    Press('V', {VK_CONTROL});
    EXPECT_BECOMES(dialog.text(), std::string(250, 'x'));
    dialog.click(IDC_cmdOK);
    const FormatDialog again(huevox);
    EXPECT_EQ(again.text(), std::string(250, 'x'));
    EXPECT_EQ(huevox.dialogCount(), 0);
}

TEST_F(FormatLimit, ALineBreakIsNotPasted) {
    const Huevox huevox;
    ASSERT_BECOMES(ClipboardText(), "#FF0000");
    const FormatDialog dialog(huevox);
    CopyElsewhere("first\r\nsecond");
    Press('V', {VK_CONTROL});
    EXPECT_BECOMES(dialog.text(), "first");
}

TEST_F(FormatLimit, APlaceholderFillsTheTemplateTo250Characters) {
    const std::string text(246, 'x');
    StoreText("CustomFormat", text);
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    dialog.insert(IDC_cmdUB, text + "%UB%");
    dialog.expectCaret(250);
}

TEST_F(FormatLimit, APlaceholderThatWouldPass250CharactersChangesNothing) {
    const std::string text(247, 'x');
    StoreText("CustomFormat", text);
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    dialog.select(2, 0);
    Click(dialog.control(IDC_cmdUB));
    Type("y");  // arrives behind the click
    EXPECT_BECOMES(dialog.text(), "xxy" + std::string(245, 'x'));
}

TEST_F(FormatLimit, APlaceholderThatDoesNotFitLeavesTheSelection) {
    StoreText("CustomFormat", std::string(250, 'x'));
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    dialog.select(1, 3);
    Click(dialog.control(IDC_cmdLD));
    Type("y");
    EXPECT_BECOMES(dialog.text(), "xy" + std::string(246, 'x'));
}

TEST_F(FormatLimit, TheCaretAtTheEndOfALongTemplateIsInView) {
    StoreText("CustomFormat", std::string(246, 'x'));
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    const int width = WidthOf(dialog.control(IDC_txtFormat));
    EXPECT_LT(LeftOf(dialog, 245), width);
    EXPECT_GT(LeftOf(dialog, 245), width / 2);
    dialog.insert(IDC_cmdUB, std::string(246, 'x') + "%UB%");
    EXPECT_LT(LeftOf(dialog, 249), width);
    EXPECT_GT(LeftOf(dialog, 249), width / 2);
}
