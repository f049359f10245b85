// What does the preview do without a chosen notation? The running program is so only before it is first
// activated.
#include "mainwindow/panels/Autocopy.h"

#include "resources/resource.h"
#include "tests/driver/WindowText.h"
#include "tests/toolkit/FormFixture.h"

namespace {

struct AutocopyForm : Form, ColorTarget {
    AutocopyForm() : Form("frmMain") {
        load();
        view.FillNotations();
    }
    ~AutocopyForm() override { unload(); }

    void SetSelectedColor(int red, int green, int blue) override {
        view.ShowColorCode(ColorOf(red, green, blue));
    }
    std::string preview() const { return TextOf(::GetDlgItem(handle(), IDC_lblClipboard)); }
    void choose(int index) {
        ::SendMessageA(::GetDlgItem(handle(), IDC_lstAutocopy), LB_SETCURSEL, index, 0);
    }
    /// Whether the timer's next tick copies: the letters are refreshed before.
    bool copiesAtNextTick() const {
        const HWND letters = ::GetDlgItem(handle(), IDC_lblColorProp);
        ::SetWindowTextA(letters, "not yet");
        ::SendMessageA(handle(), WM_TIMER, IDC_tmrClip, 0);
        return TextOf(letters) != "not yet";
    }

    AppState state;
    EditState edit;
    CommandBar commands{*this};
    ChannelEditors channels{*this, edit, *this};
    ColorMarks marks{*this, state.marks, edit, channels, *this};
    Autocopy view{*this, state, edit, commands, channels, marks, *this};
};

class Preview : public OwnFormTest<AutocopyForm> {};

}  // namespace

TEST_F(Preview, WithoutAChosenNotationStaysAsItIsButStartsTheCountdownAgain) {
    form->choose(0);
    form->view.ShowColorCode(ColorOf(1, 2, 3));
    ASSERT_EQ(form->preview(), "#010203");
    form->choose(-1);
    EXPECT_FALSE(form->copiesAtNextTick());
    EXPECT_FALSE(form->copiesAtNextTick());
    form->view.ShowColorCode(ColorOf(4, 5, 6));
    EXPECT_EQ(form->preview(), "#010203");
    EXPECT_FALSE(form->copiesAtNextTick());
    EXPECT_FALSE(form->copiesAtNextTick());
    EXPECT_TRUE(form->copiesAtNextTick());
}

TEST_F(Preview, InJavaScriptNamesModeIgnoresTheNotation) {
    form->state.jsNamesOnly = true;
    form->choose(0);
    form->view.ShowColorCode(ColorOf(0, 255, 255));
    EXPECT_EQ(form->preview(), "cyan");
    form->view.ShowColorCode(ColorOf(1, 2, 3));
    EXPECT_EQ(form->preview(), "");
}

TEST_F(Preview, OnDeactivationKeepsAChosenNotationOnly) {
    form->choose(7);
    form->view.KeepNotation();
    EXPECT_EQ(form->state.savedFormatIndex, 7);
    form->choose(-1);
    form->view.KeepNotation();
    EXPECT_EQ(form->state.savedFormatIndex, 7);
    form->choose(11);
    form->state.jsNamesOnly = true;
    form->view.KeepNotation();
    EXPECT_EQ(form->state.savedFormatIndex, 7);
}
