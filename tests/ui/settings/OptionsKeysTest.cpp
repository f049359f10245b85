// How is the dialog of the options used by keys, and who waits for it meanwhile?
#include <cctype>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/driver/OptionsDialog.h"
#include "tests/driver/PickerWindow.h"
#include "tests/driver/Tips.h"
#include "tests/driver/UiTest.h"

namespace {

class OptionsKeys : public UiTest {};

struct Shown {
    int id;
    const char* text;
};

const std::vector<Shown> frameCaptions = {
    {IDC_fraExample, "Example"},
    {IDC_fraPromptToSave, "Prompt to save on exit"},
    {IDC_fraStandardFolder, "Standard folder"},
    {IDC_fraSortOrder, "Standard sort order in JavaScript Palette"},
};

const std::vector<Shown> captionsWithKeys = {
    {IDC_lblStandardFormat, "Standard format:"},
    {IDC_optYes, "Yes"},
    {IDC_optNo, "No"},
    {IDC_cmdChange, "Change standard folder..."},
    {IDC_optAlphabetically, "Sort alphabetically"},
    {IDC_optDotNet, "Sort like Visual Studio .NET"},
    {IDC_cmdOK, "OK"},
    {IDC_cmdCancel, "Cancel"},
};

const std::vector<Shown> controlTips = {
    {IDC_lstStandardFormat, "What format should Huevox select the next time the program starts?"},
    {IDC_optYes, "Click here if you want Huevox to remind you to save unsaved changes on exit"},
    {IDC_optNo, "Click here if you do not want Huevox to remind you to save unsaved changes on exit"},
    {IDC_cmdChange, "What folder should Huevox select when you open and save files?"},
    {IDC_optAlphabetically, "Click here if the JavaScript Palette should be sorted alphabetically"},
    {IDC_optDotNet, "Click here if the JavaScript Palette should be sorted as in Visual Studio .NET"},
};

/// Takes the access key's sign out of a caption. Returns the letter behind it in upper case, or 0.
char TakeAccessKey(std::string& caption) {
    const std::size_t mark = caption.find('&');
    if (mark == std::string::npos) return 0;
    caption.erase(mark, 1);
    return static_cast<char>(std::toupper(caption[mark]));
}

/// Presses Tab, or Shift+Tab, and expects the focus to go from stop to stop.
void ExpectTabs(const OptionsDialog& options, const std::vector<int>& stops, bool isBackward = false) {
    for (const int stop : stops) {
        if (isBackward) {
            Press(VK_TAB, {VK_SHIFT});
        } else {
            Press(VK_TAB);
        }
        ASSERT_BECOMES(options.focused(), stop);
    }
}

void ExpectKeyTurnsOn(const OptionsDialog& options, char key, int option) {
    Press(key, {VK_MENU});
    EXPECT_BECOMES(options.isOn(option), true) << key;
}

/// Leaves the dialog by Cancel, and expects that the window is enabled and in front by then.
void ExpectReturn(const Huevox& huevox, const OptionsDialog& options) {
    options.close(IDC_cmdCancel);
    EXPECT_TRUE(::IsWindowEnabled(huevox.window()));
    EXPECT_EQ(huevox.formCount("frmMain"), 1);
}

}  // namespace

TEST_F(OptionsKeys, OpenTheDialogByMenu) {
    const Huevox huevox;
    ASSERT_BECOMES(::GetForegroundWindow(), huevox.window());
    Press('T', {VK_MENU});
    Press('O');
    EXPECT_BECOMES(TextOf(::GetForegroundWindow()), "Options");
    Press(VK_ESCAPE);
    EXPECT_BECOMES(huevox.form("frmOptions"), nullptr);
}

TEST_F(OptionsKeys, TheToolBarOpensItToo) {
    const Huevox huevox;
    ASSERT_TRUE(huevox.isToolButtonEnabled(IDM_mnuToolsOptions));
    Click(huevox.toolButton(IDM_mnuToolsOptions));
    EXPECT_BECOMES(TextOf(::GetForegroundWindow()), "Options");
}

TEST_F(OptionsKeys, TheListHasTheFocusFirst) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    EXPECT_EQ(options.focused(), IDC_lstStandardFormat);
    Press(VK_DOWN);
    EXPECT_BECOMES(options.format(), 1);
}

TEST_F(OptionsKeys, TabGoesThroughTheDialogAndAnOptionIsOneStop) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    ExpectTabs(options, {IDC_optYes, IDC_cmdChange, IDC_optAlphabetically, IDC_cmdOK, IDC_cmdCancel,
                         IDC_lstStandardFormat});
    ExpectTabs(options, {IDC_cmdCancel, IDC_cmdOK, IDC_optAlphabetically, IDC_cmdChange, IDC_optYes}, true);
}

TEST_F(OptionsKeys, TabStopsAtTheOptionThatIsOn) {
    StoreText("SortIndex", "1");
    StoreText("PromptToSave", "0");
    const Huevox huevox;
    const OptionsDialog options(huevox);
    ExpectTabs(options, {IDC_optNo, IDC_cmdChange, IDC_optDotNet, IDC_cmdOK});
    options.close(IDC_cmdCancel);
    options.open();
    ExpectTabs(options, {IDC_optNo, IDC_cmdChange, IDC_optDotNet, IDC_cmdOK});
}

TEST_F(OptionsKeys, ArrowsChooseAmongTheOptionsOfAFrameOnly) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    ExpectTabs(options, {IDC_optYes});
    Press(VK_DOWN);
    EXPECT_BECOMES(options.isOn(IDC_optNo), true);
    EXPECT_FALSE(options.isOn(IDC_optYes));
    Press(VK_DOWN);
    EXPECT_BECOMES(options.isOn(IDC_optYes), true);
    EXPECT_TRUE(options.isOn(IDC_optAlphabetically));
}

TEST_F(OptionsKeys, EveryLabelAndButtonHasAnAccessKeyOfItsOwn) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    std::set<char> keys;
    for (const Shown& expected : captionsWithKeys) {
        std::string caption = options.text(expected.id);
        const char key = TakeAccessKey(caption);
        EXPECT_EQ(caption, expected.text);
        EXPECT_TRUE(std::isalpha(key)) << expected.text;
        EXPECT_TRUE(keys.insert(key).second) << expected.text;
    }
    for (const Shown& expected : frameCaptions) EXPECT_EQ(options.text(expected.id), expected.text);
}

TEST_F(OptionsKeys, AccessKeysReachTheControls) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    for (const auto& [key, option] :
         {std::pair{'V', IDC_optDotNet}, {'A', IDC_optAlphabetically}, {'N', IDC_optNo}, {'Y', IDC_optYes}})
        ExpectKeyTurnsOn(options, key, option);
    Press('S', {VK_MENU});
    EXPECT_BECOMES(options.focused(), IDC_lstStandardFormat);
    Press('H', {VK_MENU});
    EXPECT_BECOMES(TextOf(::GetForegroundWindow()), "Browse for Folder");
    options.leavePicker(huevox.dialog(), VK_ESCAPE);
    Press('C', {VK_MENU});
    options.waitForReturn();
    EXPECT_FALSE(HasStoredSettings());
    options.open();
    Press('O', {VK_MENU});
    options.waitForReturn();
    EXPECT_TRUE(HasStoredSettings());
}

TEST_F(OptionsKeys, ToolTipsSayWhatEachControlIsFor) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    for (const Shown& tip : controlTips) ExpectTip(huevox, options.control(tip.id), tip.text);
}

TEST_F(OptionsKeys, TheMainWindowTakesNoInputMeanwhile) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    EXPECT_FALSE(::IsWindowEnabled(huevox.window()));
    const HWND dialog = options.window();
    Click(huevox.control(Option(0)));
    Press(VK_F9);
    Press('N', {VK_CONTROL});
    Press(VK_F5);
    ::PostMessageA(huevox.window(), WM_COMMAND, IDM_mnuEditFind, 0);
    ::PostMessageA(huevox.window(), WM_CLOSE, 0, 0);
    Press(VK_DOWN);  // the input behind all that has arrived when this has
    EXPECT_BECOMES(options.format(), 1);
    EXPECT_EQ(options.window(), dialog);
    EXPECT_EQ(huevox.formCount("frmOptions"), 1);
    EXPECT_EQ(huevox.text(Name(0)), "Type a colour name");
    EXPECT_EQ(huevox.dialogCount(), 0);
    ExpectReturn(huevox, options);
}

TEST_F(OptionsKeys, PaletteWindowsTakeNoInputMeanwhile) {
    const Huevox huevox;
    const PickerWindow failsafe(huevox, failsafeGrid);
    huevox.focusByClick(IDC_txtName);
    const Color before = huevox.sliders();
    const OptionsDialog options(huevox);
    EXPECT_FALSE(failsafe.isEnabled());
    failsafe.click({2, 0});
    ::PostMessageA(failsafe.window(), WM_CLOSE, 0, 0);
    options.choose(4);
    EXPECT_TRUE(failsafe.window());
    EXPECT_EQ(huevox.sliders(), before);
    ExpectReturn(huevox, options);
    EXPECT_TRUE(failsafe.isEnabled());
    ExpectClick(huevox, failsafe, {10, 0}, ColorOf(0, 255, 255));
}

TEST_F(OptionsKeys, AReturnFromAnotherProgramKeepsTheChoice) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    options.choose(9);
    VisitAnotherProgram(options.window());
    EXPECT_BECOMES(options.focused(), IDC_lstStandardFormat);
    // What the return has posted has been handled when the key behind it has.
    Press(VK_DOWN);
    EXPECT_BECOMES(options.format(), 10);
    EXPECT_BECOMES(options.example(), "Color(255,204,0)");
}
