// Do the windows follow when the user changes the theme while the program runs?
#include <gtest/gtest.h>

#include "mainwindow/frmMain.h"
#include "resources/resource.h"
#include "support/AppState.h"
#include "tests/driver/Legible.h"
#include "tests/driver/Theme.h"
#include "tests/toolkit/TestForm.h"
#include "toolkit/controls/ControlClasses.h"
#include "toolkit/forms/MessageLoop.h"

namespace {

class ChangedSystemColors : public testing::Test {
protected:
    void SetUp() override {
        ForgetQuit();
        RegisterControlClasses();
        colors.use(whiteTheme);
        main.load();
        main.show(SW_SHOWNORMAL);
        PumpUntil([&] { return ::GetForegroundWindow() == main.handle(); });
    }
    void TearDown() override {
        state.settings.promptToSave = 0;
        main.unload();
    }

    static void expectLook(HWND control, const Theme& theme, bool isText) {
        RECT area{};
        ::GetWindowRect(control, &area);
        ::InflateRect(&area, -3, -3);
        const auto isRight = [&] {
            const Look look = LookAt(area);
            return look.ground == theme.ground && (!isText || look.contrast >= legible);
        };
        EXPECT_TRUE(PumpUntil(isRight)) << ::GetDlgCtrlID(control) << ' ' << theme.name;
    }

    void expectMainLook(const Theme& theme) const {
        for (const int id : {IDC_txtSetRed, IDC_txtName, IDC_lstAutocopy, IDC_lblColorProp})
            expectLook(::GetDlgItem(main.handle(), id), theme, true);
        expectLook(::GetDlgItem(main.handle(), IDC_lblClipboard), theme, false);
        expectLook(::GetDlgItem(main.handle(), IDC_tbrTools), theme, false);
    }

    SystemColors colors;
    AppState state;
    frmMain main{state};
};

}  // namespace

TEST_F(ChangedSystemColors, AreThoseOfTheMainWindowAtOnce) {
    expectMainLook(whiteTheme);
    colors.use(blackTheme);
    expectMainLook(blackTheme);
    colors.use(whiteTheme);
    expectMainLook(whiteTheme);
}

TEST_F(ChangedSystemColors, AreThoseOfTheEmptyPartOfAPaletteWindowAtOnce) {
    ::SendMessageA(::GetDlgItem(main.handle(), IDC_cmdJavaScript), BM_CLICK, 0, 0);
    const HWND picker = ::FindWindowA("frmJavaScript", nullptr);
    PumpUntil([&] { return ::IsWindowVisible(picker); });
    const HWND bar = ::GetDlgItem(picker, IDC_tbrSortTools);
    expectLook(bar, whiteTheme, false);
    colors.use(blackTheme);
    expectLook(bar, blackTheme, false);
}
