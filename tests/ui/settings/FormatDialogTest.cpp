// How does the editor of the custom notation behave as a window?
#include <array>
#include <string>
#include <vector>

#include "tests/driver/FormatDialog.h"
#include "tests/driver/PickerWindow.h"

namespace {

class FormatDialogKeys : public UiTest {};
class FormatDialogWindow : public UiTest {};

void ExpectFocusAfter(const FormatDialog& dialog, WORD accessKey, int control) {
    Press(accessKey, {VK_MENU});
    EXPECT_BECOMES(dialog.focused(), control);
}

}  // namespace

TEST_F(FormatDialogKeys, TabGoesThroughTheGridRowByRowAndThenToTheButtons) {
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    const std::vector<int> order = {IDC_cmdUR, IDC_cmdUG,     IDC_cmdUB,   IDC_cmdLR,     IDC_cmdLG,
                                    IDC_cmdLB, IDC_cmdDR,     IDC_cmdDG,   IDC_cmdDB,     IDC_cmdLD,
                                    IDC_cmdOK, IDC_cmdCancel, IDC_cmdHelp, IDC_txtFormat, IDC_cmdUR};
    for (const int control : order) {
        Press(VK_TAB);
        ASSERT_BECOMES(dialog.focused(), control);
    }
}

TEST_F(FormatDialogKeys, EveryHeadingsAccessKeyLeadsToItsFirstButton) {
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    ExpectFocusAfter(dialog, 'U', IDC_cmdUR);
    ExpectFocusAfter(dialog, 'L', IDC_cmdLR);
    ExpectFocusAfter(dialog, 'D', IDC_cmdDR);
    ExpectFocusAfter(dialog, 'N', IDC_cmdLD);
    ExpectFocusAfter(dialog, 'R', IDC_cmdUR);
    ExpectFocusAfter(dialog, 'G', IDC_cmdUG);
    ExpectFocusAfter(dialog, 'B', IDC_cmdUB);
    ExpectFocusAfter(dialog, 'T', IDC_txtFormat);
}

TEST_F(FormatDialogKeys, AccessKeysOfOkAndCancelPressThem) {
    StoreText("CustomFormat", "a");
    const Huevox huevox;
    const FormatDialog first(huevox);
    first.retype("b");
    Press('O', {VK_MENU});
    first.waitForEnd();
    EXPECT_EQ(StoredText("CustomFormat"), "b");
    const FormatDialog second(huevox);
    second.retype("c");
    Press('C', {VK_MENU});
    second.waitForEnd();
    EXPECT_EQ(StoredText("CustomFormat"), "b");
}

TEST_F(FormatDialogKeys, ArrowKeysLeaveTheFocusOnAButton) {
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    ExpectFocusAfter(dialog, 'R', IDC_cmdUR);
    Press(VK_RIGHT);
    Press(VK_DOWN);
    Press(VK_TAB);
    EXPECT_BECOMES(dialog.focused(), IDC_cmdUG);
}

TEST_F(FormatDialogKeys, OkIsTheDefaultButtonAgainAfterAPlaceholder) {
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    const auto isDefault = [&](int button) {
        return (::GetWindowLongA(dialog.control(button), GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
    };
    ASSERT_BECOMES(isDefault(IDC_cmdOK), true);
    Press(VK_TAB);
    ASSERT_BECOMES(isDefault(IDC_cmdUR), true);
    Press(VK_SPACE);
    ASSERT_BECOMES(dialog.text(), "%UR%");
    EXPECT_BECOMES(isDefault(IDC_cmdUR), false);
    EXPECT_BECOMES(isDefault(IDC_cmdOK), true);
}

TEST_F(FormatDialogWindow, NoOtherWindowOfTheProgramTakesInput) {
    const Huevox huevox;
    const PickerWindow picker(huevox, websafeGrid);
    ::SetForegroundWindow(huevox.window());
    ASSERT_BECOMES(::GetForegroundWindow(), huevox.window());
    const FormatDialog dialog(huevox);
    EXPECT_FALSE(picker.isEnabled());
    EXPECT_FALSE(::IsWindowEnabled(huevox.window()));
    picker.click({3, 2});
    Type("x");  // arrives behind the click
    EXPECT_BECOMES(dialog.text(), "x");
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
    dialog.click(IDC_cmdCancel);
    EXPECT_BECOMES(picker.isEnabled(), true);
    EXPECT_TRUE(::IsWindowEnabled(huevox.window()));
}

TEST_F(FormatDialogWindow, IsOwnedByTheMainWindowAndOpensOnce) {
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    EXPECT_EQ(::GetWindow(dialog.window(), GW_OWNER), huevox.window());
    Press(VK_F8);
    ::PostMessageA(huevox.window(), WM_COMMAND, IDM_mnuToolsCustomFormat, 0);
    Type("x");
    ASSERT_BECOMES(dialog.text(), "x");
    EXPECT_EQ(huevox.formCount("frmCustomFormat"), 1);
}

TEST_F(FormatDialogWindow, OpensByMenuAndByToolBar) {
    const Huevox huevox;
    Press('T', {VK_MENU});
    Press('C');
    const FormatDialog byMenu(huevox, FormatDialog::IsOpening{});
    byMenu.click(IDC_cmdCancel);
    Click(huevox.toolButton(IDM_mnuToolsCustomFormat));
    const FormatDialog byToolBar(huevox, FormatDialog::IsOpening{});
    byToolBar.click(IDC_cmdCancel);
}

TEST_F(FormatDialogWindow, UnusableSettingsAreToldOfOnceAndTheNotationStays) {
    const Huevox huevox;
    huevox.chooseNotation(5);
    ASSERT_BECOMES(ClipboardText(), "$000000FF");
    StoreText("CustomFormat", "kept?");
    StoreText("FormatIndex", "99");
    Press(VK_F8);
    const HWND message = WaitForMessage(huevox, unusableSettings);
    EXPECT_EQ(::GetWindow(message, GW_OWNER), huevox.window());
    EXPECT_FALSE(huevox.form("frmCustomFormat"));
    Answer(message, IDOK);
    const FormatDialog dialog(huevox, FormatDialog::IsOpening{});
    EXPECT_EQ(dialog.text(), "");
    EXPECT_EQ(huevox.dialogCount(), 0);
    EXPECT_EQ(StoredText("CustomFormat"), "");
    EXPECT_EQ(StoredText("FormatIndex"), "0");
    CopyElsewhere("theirs");
    dialog.click(IDC_cmdCancel);
    EXPECT_BECOMES(ClipboardText(), "$000000FF");
    EXPECT_EQ(huevox.listIndex(), 5);
    const FormatDialog again(huevox);
    EXPECT_EQ(huevox.dialogCount(), 0);
}

TEST_F(FormatDialogWindow, AMissingKeyIsMadeByOk) {
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    EXPECT_FALSE(HasStoredSettings());
    dialog.retype("%LD%");
    dialog.click(IDC_cmdOK);
    EXPECT_EQ(StoredText("CustomFormat"), "%LD%");
    EXPECT_EQ(StoredText("FormatIndex"), "(missing)");
}

TEST_F(FormatDialogWindow, AKeyThatCannotBeOpenedIsPassedOverInSilence) {
    const Huevox huevox;
    huevox.chooseNotation(11);
    DenyTheSettingsKey();
    ASSERT_FALSE(HasStoredSettings());
    const FormatDialog dialog(huevox);
    dialog.retype("<%UR%>");
    dialog.click(IDC_cmdOK);
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), "<FF>");
    EXPECT_EQ(huevox.dialogCount(), 0);
    EXPECT_FALSE(HasStoredSettings());
}

// With or without a help file beside the program: if it is missing, that is the viewer's to report.
TEST_F(FormatDialogWindow, StaysOpenWhileHelpIsAskedFor) {
    StoreText("CustomFormat", "before");
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    dialog.select(2, 3);
    Press('H', {VK_MENU});
    ASSERT_TRUE(Eventually([&] { return dialog.focused() != IDC_txtFormat; }));
    // Posted, and so handled when the help has been shown or not found.
    ::PostMessageA(dialog.control(IDC_txtFormat), EM_SETSEL, 1, 5);
    ASSERT_BECOMES(dialog.selection(), (std::pair{1, 5}));
    EXPECT_EQ(huevox.dialogCount(), 0);
    EXPECT_TRUE(::IsWindowVisible(dialog.window()));
    // Another program presses it: the help may stand over the dialog.
    ::PostMessageA(dialog.control(IDC_cmdLG), BM_CLICK, 0, 0);
    EXPECT_BECOMES(dialog.text(), "b%LG%e");
}
