// What stands above what while the window is kept on top?
#include "tests/driver/Dialogs.h"
#include "tests/driver/FindWindows.h"
#include "tests/driver/OpenMenu.h"
#include "tests/driver/Palettes.h"
#include "tests/driver/PickerWindow.h"

namespace {

class AlwaysOnTop : public PaletteTest {};

bool IsTopmost(HWND window) { return (::GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; }

/// The window that lies over all others there.
HWND Topmost(POINT place) { return ::GetAncestor(::WindowFromPoint(place), GA_ROOT); }

/// Chooses the item, whose check mark tells how it stands, by the keyboard and waits until it has worked.
void Switch(const Huevox& huevox) {
    const bool isOnTop = IsTopmost(huevox.window());
    Press(VK_SPACE, {VK_MENU});
    ASSERT_BECOMES(LastCheckMark(OpenMenu()), isOnTop ? CheckMark::present : CheckMark::absent);
    Press('T');
    EXPECT_BECOMES(IsTopmost(huevox.window()), !isOnTop);
}

}  // namespace

TEST_F(AlwaysOnTop, IsSwitchedInTheWindowsOwnMenuForThisRun) {
    {
        const Huevox huevox;
        EXPECT_FALSE(IsTopmost(huevox.window()));
        Switch(huevox);
        Switch(huevox);
        Switch(huevox);
        Close(huevox);
    }
    const Huevox again;
    EXPECT_FALSE(IsTopmost(again.window()));
}

TEST_F(AlwaysOnTop, KeepsMessagesAndDialogsAbove) {
    const Huevox huevox;
    Switch(huevox);
    PressOpen();
    const HWND dialog = WaitForFileDialog(huevox, openTitle);
    EXPECT_TRUE(IsAbove(dialog, huevox.window()));
    CancelFileDialog(huevox, openTitle);
    WaitForReturn(huevox);
    const HWND message = BringRefusal(huevox);
    EXPECT_TRUE(IsAbove(message, huevox.window()));
    Answer(message, IDOK);
    Press(VK_F9);
    ASSERT_TRUE(Eventually([&] { return huevox.form("frmOptions") != nullptr; }));
    EXPECT_TRUE(IsAbove(huevox.form("frmOptions"), huevox.window()));
    Press(VK_ESCAPE);
    EXPECT_BECOMES(huevox.form("frmOptions"), nullptr);
}

TEST_F(AlwaysOnTop, KeepsTheMessageOfAnUnexpectedErrorAbove) {
    const Huevox huevox;
    Switch(huevox);
    PressOpen();
    ChoosePath(huevox, openTitle, PathOf("missing.txt"));
    const HWND message = WaitForMessage(huevox, "Huevox encountered an unexpected error and must close.");
    EXPECT_BECOMES(IsAbove(message, huevox.window()), true);
    EXPECT_BECOMES(Topmost(CenterOf(message)), message);
    Answer(message, IDOK);
    EXPECT_EQ(huevox.waitForEnd(), 1);
}

TEST_F(AlwaysOnTop, KeepsPaletteWindowsAboveWheneverTheyAreOpened) {
    const Huevox huevox;
    const PickerWindow before(huevox, websafeGrid);
    before.moveTo(AreaOf(huevox.window()).left, AreaOf(huevox.window()).top);
    Click(huevox.control(IDC_optSetHex));
    ASSERT_BECOMES(::GetForegroundWindow(), huevox.window());
    ASSERT_BECOMES(IsAbove(before.window(), huevox.window()), false);
    Switch(huevox);
    EXPECT_BECOMES(IsAbove(before.window(), huevox.window()), true);
    const PickerWindow after(huevox, failsafeGrid);
    EXPECT_BECOMES(IsAbove(after.window(), huevox.window()), true);
    Click(huevox.control(IDC_optSetDec));
    ASSERT_BECOMES(::GetForegroundWindow(), huevox.window());
    Switch(huevox);
    EXPECT_BECOMES(IsTopmost(before.window()), false);
    EXPECT_BECOMES(IsTopmost(after.window()), false);
}
