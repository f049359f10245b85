// What becomes of the temporary placeholder, which no user can type?
#include "mainwindow/panels/ColorMarks.h"

#include "resources/resource.h"
#include "support/Messages.h"
#include "tests/program/InsideWindow.h"
#include "tests/toolkit/FormFixture.h"
#include "toolkit/platform/FlagGuard.h"

namespace {

/// The main window's form with the marks alone.
struct MarksForm : Form, ColorTarget {
    MarksForm() : Form("frmMain") {
        LoadDefaultMarks(marks);
        Load.bind([this] {
            channels.Prepare();
            view.Prepare();
            view.ApplyPalette({marks.defaultMarkName, marks.defaultMarkColor});
            view.Select(0);
            channels.SetSliders(marks.markColor[0]);
            edit.userColorChange = edit.sliderSync = true;
        });
        load();
    }
    ~MarksForm() override { unload(); }

    void SetSelectedColor(int red, int green, int blue) override {
        view.PaintSelected(ColorOf(red, green, blue));
        view.HighlightRenamed();
    }

    HWND box(int mark) const { return ::GetDlgItem(handle(), IDC_txtName + mark); }
    /// Names a mark as a command does.
    void name(int mark, const char* text) {
        edit.nameFillInProgress = true;
        ::SetWindowTextA(box(mark), text);
        edit.nameFillInProgress = false;
    }
    void changeColor(int red) { channels.SetSliders(ColorOf(red, 1, 2)); }
    void click(int mark) {
        ::SendMessageA(handle(), WM_COMMAND, MAKEWPARAM(IDC_optColor + mark, BN_CLICKED),
                       reinterpret_cast<LPARAM>(::GetDlgItem(handle(), IDC_optColor + mark)));
    }
    COLORREF backColor(int mark) const { return BackColorOf(handle(), box(mark)); }

    EditState edit;
    Marks marks;
    ChannelEditors channels{*this, edit, *this};
    ColorMarks view{*this, marks, edit, channels, *this};
};

class Placeholders : public OwnFormTest<MarksForm> {
protected:
    static constexpr COLORREF white = RGB(255, 255, 255);
    static constexpr COLORREF highlight = RGB(255, 250, 205);
};

}  // namespace

TEST_F(Placeholders, SelectingAMarkLeavesItsTemporaryNameAsItIs) {
    form->name(2, messages::notJavaScript);
    form->click(2);
    EXPECT_EQ(form->marks.selectedMark, 2);
    EXPECT_EQ(form->view.Names()[2], "Not JavaScript colour");
}

TEST_F(Placeholders, ChangingTheColorOfATemporarilyNamedMarkTurnsEveryTemporaryNameBackAndHighlightsNone) {
    form->name(0, messages::notJavaScript);
    form->name(4, messages::notJavaScript);
    form->changeColor(7);
    EXPECT_EQ(form->view.Names()[0], "Type a colour name");
    EXPECT_EQ(form->view.Names()[4], "Type a colour name");
    EXPECT_EQ(form->backColor(0), white);
    EXPECT_EQ(form->backColor(4), white);
}

TEST_F(Placeholders, ChangingTheColorOfANamedMarkHighlightsItAndTurnsTheOthersBack) {
    form->name(0, "navy");
    form->name(4, messages::notJavaScript);
    form->changeColor(7);
    EXPECT_EQ(form->backColor(0), highlight);
    EXPECT_EQ(form->view.Names()[0], "navy");
    EXPECT_EQ(form->view.Names()[4], "Type a colour name");
}

TEST_F(Placeholders, OfAHighlightedMarkAFurtherChangeDoesNothingMore) {
    form->name(0, "navy");
    form->changeColor(7);
    form->name(4, messages::notJavaScript);
    form->changeColor(8);
    EXPECT_EQ(form->backColor(0), highlight);
    EXPECT_EQ(form->view.Names()[4], "Not JavaScript colour");
}

TEST_F(Placeholders, OfAMarkWithoutANameAChangeTouchesNoOther) {
    form->name(4, messages::notJavaScript);
    form->changeColor(7);
    EXPECT_EQ(form->backColor(0), white);
    EXPECT_EQ(form->view.Names()[4], "Not JavaScript colour");
}

TEST_F(Placeholders, AColorThatIsNotTheUsersChangesNoName) {
    form->name(0, "navy");
    form->name(4, messages::notJavaScript);
    const Cleared notAnEdit(form->edit.userColorChange);
    form->changeColor(7);
    EXPECT_EQ(form->backColor(0), white);
    EXPECT_EQ(form->view.Names()[4], "Not JavaScript colour");
}

TEST_F(Placeholders, WrittenFromOutsideACommandTurnsBackAtOnce) {
    ::SetWindowTextA(form->box(3), messages::notJavaScript);
    EXPECT_EQ(form->view.Names()[3], "Type a colour name");
}
