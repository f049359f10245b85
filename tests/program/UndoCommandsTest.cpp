// When are Undo and Redo offered, and what becomes of them while a change is on its way?
#include <string>
#include <vector>

#include "tests/program/InsideWindow.h"
#include "tests/program/MainWindowFixture.h"
#include "tests/program/WatchedWindow.h"

namespace {

class UndoAndRedo : public ShownMainWindow {
protected:
    bool isOffered(int command) const {
        const UINT state = ::GetMenuState(::GetMenu(window.handle()), command, MF_BYCOMMAND);
        return (state & (MF_GRAYED | MF_DISABLED)) == 0;
    }
    /// "undo", "redo", both or neither.
    std::string offered() const {
        const std::string undo = isOffered(IDM_mnuEditUndo) ? "undo" : "";
        return undo + (isOffered(IDM_mnuEditRedo) ? "redo" : "");
    }
    void undo() const { command(IDM_mnuEditUndo); }
    void redo() const { command(IDM_mnuEditRedo); }
    const Color& color() const { return state.marks.markColor[0]; }
};

}  // namespace

TEST_F(UndoAndRedo, AreGreyedWhenThereIsNothing) {
    EXPECT_EQ(offered(), "");
    scroll(IDC_hsbGreen, 9);
    EXPECT_EQ(offered(), "undo");
    undo();
    EXPECT_EQ(offered(), "redo");
    redo();
    EXPECT_EQ(offered(), "undo");
}

TEST_F(UndoAndRedo, AreGreyedByAnotherPalette) {
    scroll(IDC_hsbGreen, 9);
    click(IDC_optColor + 1);
    scroll(IDC_hsbBlue, 9);
    undo();
    ASSERT_EQ(offered(), "undoredo");
    state.marks.savedMarkColor = state.marks.markColor;
    command(IDM_mnuFileNew);
    EXPECT_EQ(offered(), "");
}

TEST_F(UndoAndRedo, AreNotOfferedForASelection) {
    click(IDC_optColor + 1);
    click(IDC_optSetHex);
    EXPECT_EQ(offered(), "");
}

TEST_F(UndoAndRedo, AreIgnoredWhileAColorIsOnItsWay) {
    scroll(IDC_hsbGreen, 9);
    const WatchedWindow watched(sample(0), [&] { undo(); });
    scroll(IDC_hsbBlue, 77);
    ASSERT_GT(watched.paints, 0) << "nothing was painted on the way";
    EXPECT_EQ(color(), ColorOf(255, 9, 77));
    EXPECT_EQ(TextOf(control(IDC_lblClipboard)), "#FF094D");
}

TEST_F(UndoAndRedo, ShowOneColorAtOnce) {
    command(IDM_mnuEditCopyColor);
    click(IDC_optColor + 3);
    command(IDM_mnuEditPasteColor);
    const WatchedWindow watched(control(IDC_lblClipboard));
    undo();
    EXPECT_EQ(watched.texts, std::vector<std::string>{"#00FFFF"});
}

TEST_F(UndoAndRedo, TakeWhatAnotherProgramDoesMeanwhileForAStep) {
    scroll(IDC_hsbGreen, 9);
    const HWND name = control(IDC_txtName + 5);
    const WatchedWindow watched(sample(0), [&] { ::SetWindowTextA(name, "theirs"); });
    undo();
    ASSERT_GT(watched.paints, 0) << "nothing was painted on the way";
    EXPECT_EQ(offered(), "undo");
    undo();
    EXPECT_EQ(TextOf(name), "Type a colour name");
    EXPECT_EQ(color(), ColorOf(255, 0, 0));
}
