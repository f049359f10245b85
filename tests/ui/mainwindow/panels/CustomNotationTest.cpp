// What does the main window show after its custom notation has been edited?
#include "tests/driver/FormatDialog.h"

namespace {

class CustomNotation : public UiTest {};

/// Opens the editor while another program is in front.
void OpenFromBehind(const Huevox& huevox) {
    ::PostMessageA(huevox.window(), WM_COMMAND, IDM_mnuToolsCustomFormat, 0);
    ASSERT_TRUE(Eventually([&] { return huevox.form("frmCustomFormat") != nullptr; }));
}

/// Brings the editor to the front and leaves it by Escape, after another program has copied something.
void CancelInFront(HWND dialog) {
    ::SetForegroundWindow(dialog);
    ASSERT_BECOMES(::GetForegroundWindow(), dialog);
    CopyElsewhere("theirs");
    Press(VK_ESCAPE);
}

}  // namespace

TEST_F(CustomNotation, TheMainWindowShowsTheNewTemplateAtOnce) {
    StoreText("CustomFormat", "old");
    const Huevox huevox;
    huevox.chooseNotation(11);
    ASSERT_BECOMES(ClipboardText(), "old");
    const FormatDialog dialog(huevox);
    dialog.retype("%DR%/%DG%/%DB%");
    EXPECT_EQ(huevox.text(IDC_lblClipboard), "old");
    Press(VK_RETURN);
    dialog.waitForEnd();
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), "255/0/0");
    EXPECT_BECOMES(ClipboardText(), "255/0/0");
    EXPECT_EQ(huevox.listIndex(), 11);
}

TEST_F(CustomNotation, AnotherNotationStaysWhateverIsStored) {
    StoreText("FormatIndex", "11");
    const Huevox huevox;
    huevox.chooseNotation(10);
    ASSERT_BECOMES(ClipboardText(), "Color(255,0,0)");
    for (const int button : {IDC_cmdCancel, IDC_cmdOK}) {
        const FormatDialog dialog(huevox);
        dialog.retype("x");
        CopyElsewhere("theirs");
        dialog.click(button);
        EXPECT_BECOMES(ClipboardText(), "Color(255,0,0)");
        EXPECT_EQ(huevox.listIndex(), 10);
    }
    EXPECT_EQ(StoredText("FormatIndex"), "11");
}

TEST_F(CustomNotation, ANotationStaysWhenTheCommandComesWhileAnotherProgramIsInFront) {
    StoreText("FormatIndex", "3");
    const Huevox huevox;
    huevox.chooseNotation(10);
    ASSERT_BECOMES(ClipboardText(), "Color(255,0,0)");
    {
        const Huevox other;
        ASSERT_BECOMES(::GetForegroundWindow(), other.window());
        OpenFromBehind(huevox);
    }
    CancelInFront(huevox.form("frmCustomFormat"));
    EXPECT_BECOMES(ClipboardText(), "Color(255,0,0)");
    EXPECT_EQ(huevox.listIndex(), 10);
}

TEST_F(CustomNotation, ANotationStaysThatAnotherProgramHasChosenFromBehind) {
    StoreText("FormatIndex", "3");
    const Huevox huevox;
    {
        const Huevox other;
        ASSERT_BECOMES(::GetForegroundWindow(), other.window());
        huevox.send(IDC_lstAutocopy, LB_SETCURSEL, 10);
        ::PostMessageA(huevox.window(), WM_COMMAND, MAKEWPARAM(IDC_lstAutocopy, LBN_SELCHANGE),
                       reinterpret_cast<LPARAM>(huevox.control(IDC_lstAutocopy)));
        ASSERT_BECOMES(huevox.text(IDC_lblClipboard), "Color(255,0,0)");
        OpenFromBehind(huevox);
    }
    CancelInFront(huevox.form("frmCustomFormat"));
    EXPECT_BECOMES(ClipboardText(), "Color(255,0,0)");
    EXPECT_EQ(huevox.listIndex(), 10);
}

TEST_F(CustomNotation, InJavaScriptNamesModeTheNotationComesBackAfterwards) {
    StoreText("FormatIndex", "3");
    const Huevox huevox;
    huevox.chooseNotation(7);
    CheckNames(huevox, true);
    ASSERT_BECOMES(ClipboardText(), "red");
    const FormatDialog dialog(huevox);
    dialog.retype("%UR%");
    CopyElsewhere("theirs");
    dialog.click(IDC_cmdOK);
    EXPECT_BECOMES(ClipboardText(), "red");
    EXPECT_EQ(huevox.listIndex(), -1);
    EXPECT_EQ(StoredText("CustomFormat"), "%UR%");
    CheckNames(huevox, false);
    EXPECT_BECOMES(huevox.listIndex(), 7);
}

TEST_F(CustomNotation, InJavaScriptNamesModeARepairBringsTheFirstNotationBack) {
    const Huevox huevox;
    huevox.chooseNotation(7);
    CheckNames(huevox, true);
    StoreText("PromptToSave", "True");
    Press(VK_F8);
    Answer(WaitForMessage(huevox, unusableSettings), IDOK);
    const FormatDialog dialog(huevox, FormatDialog::IsOpening{});
    dialog.click(IDC_cmdCancel);
    CheckNames(huevox, false);
    EXPECT_BECOMES(huevox.listIndex(), 0);
}
