// What does the dialog of the options show, and what becomes of the user's choices?
#include "tests/driver/OptionsDialog.h"
#include "tests/driver/PickerWindow.h"
#include "tests/driver/UiTest.h"

namespace {

class Options : public UiTest {};

void StoreAll(const char* format, const char* sortOrder, const char* prompt) {
    StoreText("FormatIndex", format);
    StoreText("SortIndex", sortOrder);
    StoreText("PromptToSave", prompt);
}

void ExpectStored(const char* format, const char* sortOrder, const char* prompt) {
    EXPECT_EQ(StoredText("FormatIndex"), format);
    EXPECT_EQ(StoredText("SortIndex"), sortOrder);
    EXPECT_EQ(StoredText("PromptToSave"), prompt);
}

void ChooseOthers(const OptionsDialog& options) {
    options.choose(10);
    options.turnOn(IDC_optNo);
    options.turnOn(IDC_optDotNet);
}

void ExpectNothingKept(const Huevox& huevox, const OptionsDialog& options) {
    EXPECT_FALSE(HasStoredSettings());
    EXPECT_EQ(huevox.listIndex(), 0);
    options.open();
    EXPECT_EQ(options.format(), 0);
    EXPECT_TRUE(options.isOn(IDC_optYes));
    EXPECT_FALSE(options.isOn(IDC_optNo));
    EXPECT_TRUE(options.isOn(IDC_optAlphabetically));
    EXPECT_FALSE(options.isOn(IDC_optDotNet));
    options.close(IDC_cmdCancel);
}

void PressCloseBox(const OptionsDialog& options) {
    ::PostMessageA(options.window(), WM_SYSCOMMAND, SC_CLOSE, 0);
}

/// Leaves the dialog with every choice changed, in a way that keeps none of them.
template <class Leave>
void ExpectCancel(Leave leave) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    ChooseOthers(options);
    leave(options);
    options.waitForReturn();
    ExpectNothingKept(huevox, options);
}

}  // namespace

TEST_F(Options, ShowTheDefaultsAtAFirstStart) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    EXPECT_EQ(TextOf(options.window()), "Options");
    EXPECT_EQ(options.format(), 0);
    EXPECT_BECOMES(options.example(), "FFCC00");
    EXPECT_TRUE(options.isOn(IDC_optYes));
    EXPECT_FALSE(options.isOn(IDC_optNo));
    EXPECT_TRUE(options.isOn(IDC_optAlphabetically));
    EXPECT_FALSE(options.isOn(IDC_optDotNet));
    EXPECT_TRUE(options.folder().ends_with("\\Desktop")) << options.folder();
}

TEST_F(Options, ShowWhatIsStored) {
    StoreAll("7", "1", "0");
    StoreText("StandardFolder", "C:\\Program Files");
    const Huevox huevox;
    const OptionsDialog options(huevox);
    EXPECT_EQ(options.format(), 7);
    EXPECT_BECOMES(options.example(), "ColorTranslator.FromHtml(\"#FFCC00\")");
    EXPECT_TRUE(options.isOn(IDC_optNo));
    EXPECT_FALSE(options.isOn(IDC_optYes));
    EXPECT_TRUE(options.isOn(IDC_optDotNet));
    EXPECT_FALSE(options.isOn(IDC_optAlphabetically));
    EXPECT_EQ(options.folder(), "C:\\Program Files");
}

TEST_F(Options, OkStoresFourSettingsAsDecimalText) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    const std::string folder = options.folder();
    ChooseOthers(options);
    EXPECT_FALSE(HasStoredSettings());
    options.close(IDC_cmdOK);
    ExpectStored("10", "1", "0");
    EXPECT_EQ(StoredText("StandardFolder"), folder);
    EXPECT_EQ(StoredText("CustomFormat"), "(missing)");
}

TEST_F(Options, OkLeavesTheStoredTemplateAlone) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    StoreText("CustomFormat", "theirs");
    options.close(IDC_cmdOK);
    EXPECT_EQ(StoredText("CustomFormat"), "theirs");
    ExpectStored("0", "0", "1");
}

TEST_F(Options, OkTurnsBothChoicesBack) {
    StoreAll("7", "1", "0");
    const Huevox huevox;
    const OptionsDialog options(huevox);
    options.turnOn(IDC_optYes);
    options.turnOn(IDC_optAlphabetically);
    options.close(IDC_cmdOK);
    ExpectStored("7", "0", "1");
}

TEST_F(Options, CancelKeepsAndStoresNothing) {
    ExpectCancel([](const OptionsDialog& options) { Click(options.control(IDC_cmdCancel)); });
}

TEST_F(Options, EscapeIsCancel) {
    ExpectCancel([](const OptionsDialog& /*options*/) { Press(VK_ESCAPE); });
}

TEST_F(Options, TheCloseBoxIsCancel) { ExpectCancel(PressCloseBox); }

TEST_F(Options, EnterIsOk) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    ChooseOthers(options);
    Press(VK_RETURN);
    options.waitForReturn();
    ExpectStored("10", "1", "0");
}

TEST_F(Options, TheStartUpFormatIsForTheNextStartOnly) {
    StoreText("FormatIndex", "3");
    {
        const Huevox huevox;
        const OptionsDialog options(huevox);
        options.choose(8);
        options.close(IDC_cmdOK);
        EXPECT_EQ(StoredText("FormatIndex"), "8");
        EXPECT_EQ(huevox.listIndex(), 3);
        EXPECT_EQ(huevox.text(IDC_lblClipboard), "RGB(255, 0, 0)");
        options.open();
        EXPECT_EQ(options.format(), 3);
        EXPECT_BECOMES(options.example(), "RGB(255, 204, 0)");
        options.close(IDC_cmdCancel);
    }
    const Huevox next;
    EXPECT_BECOMES(next.listIndex(), 8);
    EXPECT_BECOMES(next.text(IDC_lblClipboard), "ColorTranslator.FromOle(255)");
}

TEST_F(Options, LeaveTheMainWindowsNotationAlone) {
    const Huevox huevox;
    huevox.chooseNotation(5);
    const OptionsDialog options(huevox);
    EXPECT_EQ(options.format(), 0);
    options.choose(2);
    options.close(IDC_cmdOK);
    EXPECT_EQ(huevox.listIndex(), 5);
    EXPECT_EQ(huevox.text(IDC_lblClipboard), "$000000FF");
}

TEST_F(Options, LeaveTheCopyingOfNamesAlone) {
    const Huevox huevox;
    CheckNames(huevox, true);
    const OptionsDialog options(huevox);
    options.choose(2);
    options.close(IDC_cmdOK);
    EXPECT_EQ(huevox.listIndex(), -1);
    EXPECT_EQ(huevox.text(IDC_lblClipboard), "red");
    CheckNames(huevox, false);
    EXPECT_BECOMES(huevox.listIndex(), 0);
}

TEST_F(Options, ThePromptOnExitIsUsedAtOnce) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    options.turnOn(IDC_optNo);
    options.close(IDC_cmdOK);
    SetColor(huevox, ColorOf(1, 2, 3));
    options.open();
    EXPECT_TRUE(options.isOn(IDC_optNo));
    options.close(IDC_cmdOK);
    Close(huevox);
}

TEST_F(Options, TheSortOrderIsUsedWhenThePaletteWindowIsLoadedNext) {
    const Huevox huevox;
    const PickerWindow javaScript(huevox, javaScriptGrid);
    huevox.focusByClick(IDC_txtName);
    const OptionsDialog options(huevox);
    options.turnOn(IDC_optDotNet);
    options.close(IDC_cmdOK);
    ExpectClick(huevox, javaScript, {0, 0}, ColorOf(0xF0, 0xF8, 0xFF));
    javaScript.close();
    javaScript.open();
    ExpectClick(huevox, javaScript, {0, 0}, ColorOf(0, 0, 0));
}

TEST_F(Options, AnUnwritableRegistryIsNotSpokenOf) {
    DenyTheSettingsKey();
    const Huevox huevox;
    const OptionsDialog options(huevox);
    ChooseOthers(options);
    options.close(IDC_cmdOK);
    EXPECT_EQ(huevox.dialogCount(), 0);
    EXPECT_FALSE(HasStoredSettings());
    options.open();
    EXPECT_TRUE(options.isOn(IDC_optNo));
    EXPECT_TRUE(options.isOn(IDC_optDotNet));
    options.close(IDC_cmdCancel);
}
