// Do the windows follow when the user changes the theme while the program runs?
#include "tests/driver/Legible.h"
#include "tests/driver/Theme.h"
#include "tests/program/MainWindowFixture.h"

namespace {

class ChangedSystemColors : public LoadedMainWindow {
protected:
    void SetUp() override {
        colors.use(whiteTheme);
        LoadedMainWindow::SetUp();
        show();
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
            expectLook(control(id), theme, true);
        expectLook(control(IDC_lblClipboard), theme, false);
        expectLook(control(IDC_tbrTools), theme, false);
    }

    SystemColors colors;
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
    click(IDC_cmdJavaScript);
    const HWND picker = ::FindWindowA("frmJavaScript", nullptr);
    ASSERT_TRUE(PumpUntil([&] { return ::IsWindowVisible(picker); }));
    const HWND bar = ::GetDlgItem(picker, IDC_tbrSortTools);
    expectLook(bar, whiteTheme, false);
    colors.use(blackTheme);
    expectLook(bar, blackTheme, false);
}
