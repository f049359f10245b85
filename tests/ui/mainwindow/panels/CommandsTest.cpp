// Which commands are there, and in which ways can they be run?
#include <vector>

#include "tests/driver/FormatDialog.h"
#include "tests/driver/Tips.h"
#include "tests/driver/UiTest.h"

namespace {

class Commands : public UiTest {};

struct Tip {
    int command;
    const char* text;
};

const std::vector<Tip> tips = {
    {IDM_mnuFileNew, "New Palette (Ctrl+N)"},
    {IDM_mnuFileOpen, "Open Palette In Huevox (Ctrl+O)"},
    {IDM_mnuFileOpenInNotepad, "Open Palette In Notepad (Ctrl+I)"},
    {IDM_mnuFileSave, "Save Palette (Ctrl+S)"},
    {IDM_mnuEditCopyColor, "Copy Colour From Selected Colour Mark (F2)"},
    {IDM_mnuEditPasteColor, "Use the Copy button to enable"},
    {IDM_mnuEditFind, "Find JavaScript Names (F5)"},
    {IDM_mnuToolsCustomFormat, "Custom Format (F8)"},
    {IDM_mnuToolsOptions, "Options (F9)"},
    {IDM_mnuHelpHelp, "Help (F1)"},
    {IDM_mnuHelpColorProperties, "Colour Properties (F4)"},
};

void ExpectTip(const Huevox& huevox, const Tip& tip) {
    ExpectTip(huevox, huevox.toolButton(tip.command), tip.text);
}

}  // namespace

TEST_F(Commands, EveryButtonHasItsToolTipWhileDisabledToo) {
    const Huevox huevox;
    for (const Tip& tip : tips) ExpectTip(huevox, tip);
}

TEST_F(Commands, ADialogTakesTheToolTipAway) {
    const Huevox huevox;
    ExpectTip(huevox, tips.front());
    const FormatDialog dialog(huevox);
    EXPECT_EQ(huevox.toolTip(), "");
    dialog.click(IDC_cmdCancel);
    ExpectTip(huevox, tips.front());
}

TEST_F(Commands, TheBarHasFourteenButtonsWithThreeSeparators) {
    const Huevox huevox;
    EXPECT_EQ(huevox.send(IDC_tbrTools, TB_BUTTONCOUNT), 14);
    EXPECT_EQ(huevox.send(IDC_tbrTools, TB_COMMANDTOINDEX, IDM_mnuFileSave), 3);
    EXPECT_EQ(huevox.send(IDC_tbrTools, TB_COMMANDTOINDEX, IDM_mnuEditCopyColor), 5);
    EXPECT_EQ(huevox.send(IDC_tbrTools, TB_COMMANDTOINDEX, IDM_mnuToolsCustomFormat), 9);
    EXPECT_EQ(huevox.send(IDC_tbrTools, TB_COMMANDTOINDEX, IDM_mnuHelpHelp), 12);
    EXPECT_EQ(huevox.send(IDC_tbrTools, TB_COMMANDTOINDEX, IDM_mnuFileSaveAs), -1);
}

TEST_F(Commands, PasteBeforeAnyCopyIsImpossibleInEveryWay) {
    const Huevox huevox;
    ASSERT_BECOMES(huevox.focused(), IDC_hsbRed);
    Press(VK_F3);
    Click(huevox.toolButton(IDM_mnuEditPasteColor));
    ::PostMessageA(huevox.window(), WM_COMMAND, IDM_mnuEditPasteColor, 0);
    Press('E', {VK_MENU});
    Press('P');
    Press(VK_ESCAPE);
    Press(VK_ESCAPE);
    Press(VK_LEFT);  // the input behind all that has arrived when this has
    EXPECT_BECOMES(huevox.sliders(), ColorOf(254, 0, 0));
}

TEST_F(Commands, CopyAndPasteByShortcut) {
    const Huevox huevox;
    Press(VK_F2);
    ASSERT_BECOMES(huevox.isToolButtonEnabled(IDM_mnuEditPasteColor), true);
    Click(huevox.control(Option(4)));
    ASSERT_BECOMES(huevox.sliders(), ColorOf(0, 0, 255));
    Press(VK_F3);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 0, 0));
    EXPECT_BECOMES(huevox.sample(4), ColorOf(255, 0, 0));
}

TEST_F(Commands, CopyAndPasteByToolBar) {
    const Huevox huevox;
    Click(huevox.toolButton(IDM_mnuEditCopyColor));
    ASSERT_BECOMES(huevox.isToolButtonEnabled(IDM_mnuEditPasteColor), true);
    Click(huevox.control(Option(2)));
    ASSERT_BECOMES(huevox.sliders(), ColorOf(0, 255, 0));
    Click(huevox.toolButton(IDM_mnuEditPasteColor));
    EXPECT_BECOMES(huevox.sample(2), ColorOf(255, 0, 0));
    ExpectTip(huevox, {IDM_mnuEditPasteColor, "Paste Colour To Selected Colour Mark (F3)"});
}

TEST_F(Commands, CopyAndPasteByMenu) {
    const Huevox huevox;
    Press('E', {VK_MENU});
    Press('C');
    ASSERT_BECOMES(huevox.isToolButtonEnabled(IDM_mnuEditPasteColor), true);
    Click(huevox.control(Option(5)));
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 0, 255));
    Press('E', {VK_MENU});
    Press('P');
    EXPECT_BECOMES(huevox.sample(5), ColorOf(255, 0, 0));
}

TEST_F(Commands, ACopyIsKeptUntilTheNextOne) {
    const Huevox huevox;
    Press(VK_F2);
    Click(huevox.control(Option(1)));
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 255, 0));
    Press(VK_F3);
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 0, 0));
    Click(huevox.control(Option(4)));
    ASSERT_BECOMES(huevox.sliders(), ColorOf(0, 0, 255));
    Press(VK_F2);
    Click(huevox.control(Option(1)));
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 0, 0));
    Press(VK_F3);
    EXPECT_BECOMES(huevox.sample(1), ColorOf(0, 0, 255));
}

TEST_F(Commands, EscapeAndEnterLeaveTheWindowOpen) {
    const Huevox huevox;
    Press(VK_ESCAPE);
    Press(VK_RETURN);
    Press(VK_LEFT);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(254, 0, 0));
    EXPECT_TRUE(huevox.isRunning());
}

TEST_F(Commands, OfTheHelpMenuAreReachedByKeysWhateverThePreviewShows) {
    const Huevox huevox;
    huevox.chooseNotation(2);
    ASSERT_BECOMES(huevox.text(IDC_lblClipboard), "&H000000FF&");
    Press('H', {VK_MENU});
    Press('C');
    const HWND report = huevox.waitForDialog();
    ASSERT_TRUE(report);
    EXPECT_EQ(TextOf(report), "Colour Properties");
}
