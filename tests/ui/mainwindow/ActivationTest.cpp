// What does a return to the window do, and what does not take the front from it?
#include "tests/driver/PickerWindow.h"
#include "tests/driver/Tips.h"
#include "tests/driver/UiTest.h"

namespace {

class Activation : public UiTest {};

/// A key is down for as long as the value lives.
class HeldKey {
public:
    explicit HeldKey(WORD key) : key(key) { KeyDown(key); }
    HeldKey(const HeldKey&) = delete;
    HeldKey& operator=(const HeldKey&) = delete;
    ~HeldKey() { KeyUp(key); }

private:
    WORD key;
};

}  // namespace

TEST_F(Activation, CopiesTheColorAgainOverWhatWasCopiedElsewhere) {
    const Huevox huevox;
    ASSERT_BECOMES(ClipboardText(), "#FF0000");
    {
        const Huevox other;
        ASSERT_BECOMES(::GetForegroundWindow(), other.window());
        other.selectMark(4);
        ASSERT_BECOMES(ClipboardText(), "#0000FF");
    }
    ::SetForegroundWindow(huevox.window());
    EXPECT_BECOMES(ClipboardText(), "#FF0000");
}

TEST_F(Activation, KeepsNotationAndFocus) {
    const Huevox huevox;
    huevox.chooseNotation(10);
    huevox.focusByClick(Name(3));
    VisitAnotherProgram(huevox.window());
    EXPECT_BECOMES(huevox.focused(), Name(3));
    EXPECT_EQ(huevox.listIndex(), 10);
    EXPECT_EQ(huevox.text(IDC_lblClipboard), "Color(255,0,0)");
}

TEST_F(Activation, LeavesTheSelectionOfABoxThoughTheTabKeyIsDown) {
    const Huevox huevox;
    huevox.retype(IDC_txtSetRed, "12");
    ASSERT_BECOMES(huevox.selection(IDC_txtSetRed), (std::pair<int, int>{2, 2}));
    {
        const Huevox other;
        ASSERT_BECOMES(::GetForegroundWindow(), other.window());
        const HeldKey tab(VK_TAB);
        ASSERT_BECOMES(other.focused(), IDC_hsbGreen);
        ::SetForegroundWindow(huevox.window());
        ASSERT_BECOMES(::GetForegroundWindow(), huevox.window());
        ASSERT_BECOMES(huevox.focused(), IDC_txtSetRed);
    }
    Type("3");
    EXPECT_BECOMES(huevox.text(IDC_txtSetRed), "123");
}

TEST_F(Activation, InJavaScriptNamesModeSelectsNoNotation) {
    const Huevox huevox;
    huevox.chooseNotation(4);
    CheckNames(huevox, true);
    VisitAnotherProgram(huevox.window());
    EXPECT_BECOMES(ClipboardText(), "red");
    EXPECT_EQ(huevox.listIndex(), -1);
    CheckNames(huevox, false);
    EXPECT_BECOMES(huevox.listIndex(), 4);
}

TEST_F(Activation, AfterAMessageLeavesABadValueInItsBox) {
    const Huevox huevox;
    huevox.retype(IDC_txtSetBlue, "999");
    Press(VK_RETURN);
    const HWND message = huevox.waitForDialog();
    ASSERT_TRUE(message);
    CopyElsewhere("theirs");
    Answer(message, IDOK);
    // Copied again: the window has been activated, and yet the box is as it was.
    EXPECT_BECOMES(ClipboardText(), "#FF0000");
    EXPECT_EQ(huevox.text(IDC_txtSetBlue), "999");
}

TEST_F(Activation, ByAClickOnANotationChoosesIt) {
    const Huevox huevox;
    huevox.chooseNotation(3);
    const PickerWindow picker(huevox, failsafeGrid);
    huevox.chooseNotation(6);
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), "255");
    EXPECT_BECOMES(ClipboardText(), "255");
    EXPECT_EQ(huevox.listIndex(), 6);
}

/// A tip may come up just before a click, when the pointer is already below it.
TEST_F(Activation, IsKeptByAClickOnAToolTip) {
    const Huevox huevox;
    const POINT place = CenterOf(huevox.control(IDC_optColor + 3));
    Hover(huevox, place);
    ASSERT_BECOMES(huevox.toolTip().empty(), false);
    const HWND tip = huevox.form(TOOLTIPS_CLASSA);
    ::SetWindowPos(tip, nullptr, place.x - 5, place.y - 5, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    Click(place);
    EXPECT_BECOMES(huevox.toolTip(), "");
    EXPECT_EQ(::GetForegroundWindow(), huevox.window());
    Press('G', {VK_MENU});
    EXPECT_BECOMES(huevox.focused(), IDC_hsbGreen);
}
