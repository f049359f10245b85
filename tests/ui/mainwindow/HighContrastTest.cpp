// Can the program be used in a theme of high contrast?
#include <algorithm>
#include <array>
#include <string>

#include "tests/driver/ContrastWindow.h"
#include "tests/driver/Legible.h"
#include "tests/driver/PickerWindow.h"
#include "tests/driver/Theme.h"
#include "tests/driver/UiTest.h"

namespace {

/// Makes programs that start now draw their controls in the system's colours, as in every theme of high
/// contrast.
class ThemeInactive {
public:
    ThemeInactive() { use("0"); }
    ThemeInactive(const ThemeInactive&) = delete;
    ThemeInactive& operator=(const ThemeInactive&) = delete;
    ~ThemeInactive() { use("1"); }

private:
    static void use(const char* isActive) {
        ::RegSetKeyValueA(HKEY_CURRENT_USER, R"(Software\Microsoft\Windows\CurrentVersion\ThemeManager)",
                          "ThemeActive", REG_SZ, isActive, 2);
    }
};

class HighContrast : public UiTest, public testing::WithParamInterface<Theme> {
protected:
    void SetUp() override {
        UiTest::SetUp();
        colors.use(theme());
    }

    const Theme& theme() const { return GetParam(); }

    SystemColors colors;
    ThemeInactive classic;
};

Color GroundOf(HWND control, int border = 3) { return LookAt(AreaOf(control, border)).ground; }

HWND WaitForForm(const Huevox& huevox, const char* name) {
    EXPECT_TRUE(Eventually([&] { return huevox.form(name) == ::GetForegroundWindow(); })) << name;
    return huevox.form(name);
}

/// The place of the tool bar where there are no buttons.
POINT EmptyPlace(const PickerWindow& picker) {
    const RECT area = AreaOf(::GetDlgItem(picker.window(), IDC_tbrSortTools));
    return {area.right - 5, area.top + 5};
}

/// The pixels in the middle of each side.
std::array<Color, 4> Edges(HWND control) {
    const RECT area = AreaOf(control);
    const LONG column = (area.left + area.right) / 2;
    const LONG row = (area.top + area.bottom) / 2;
    return {Pixel({area.left, row}), Pixel({area.right - 1, row}), Pixel({column, area.top}),
            Pixel({column, area.bottom - 1})};
}

void ExpectEdges(HWND control, const Color& around) {
    EXPECT_TRUE(Eventually([&] {
        return std::ranges::all_of(Edges(control),
                                   [&](const Color& edge) { return Contrast(edge, around) >= visible; });
    }));
}

}  // namespace

TEST_P(HighContrast, AllOfTheMainWindowIsLegible) {
    const Huevox huevox;
    MoveMouse({1, 1});
    ExpectLegible(huevox.window());
    for (const int id : {IDC_txtSetRed, IDC_txtName, IDC_lstAutocopy, IDC_lblClipboard, IDC_cmdWebsafe})
        EXPECT_BECOMES(GroundOf(huevox.control(id)), theme().ground) << id;
    huevox.retype(IDC_txtSetRed, "1");
    EXPECT_BECOMES(huevox.isEnabled(IDC_optSetHex), false);
    CheckNames(huevox, true);
    ExpectLegible(huevox.window());
}

TEST_P(HighContrast, AllOfTheDialogsIsLegible) {
    const Huevox huevox;
    MoveMouse({1, 1});
    const auto expect = [&](const char* form) {
        ExpectLegible(WaitForForm(huevox, form));
        Press(VK_ESCAPE);
        EXPECT_BECOMES(::GetForegroundWindow(), huevox.window());
    };
    Press(VK_F9);
    expect("frmOptions");
    Press(VK_F8);
    Type("RGB");
    const HWND format = WaitForForm(huevox, "frmCustomFormat");
    EXPECT_BECOMES(GroundOf(::GetDlgItem(format, IDC_txtFormat)), theme().ground);
    expect("frmCustomFormat");
    Press('H', {VK_MENU});
    Press('A');
    expect("frmAbout");
    Press(VK_F4);
    ExpectLegible(huevox.waitForDialog());
    Answer(huevox.dialog(), IDOK);
}

TEST_P(HighContrast, ThePicturesOfTheToolBarsAreSeen) {
    const Huevox huevox;
    const auto expect = [&](HWND bar, int command) {
        const POINT middle = huevox.toolButton(bar, command);
        const RECT picture = {middle.x - 7, middle.y - 7, middle.x + 8, middle.y + 8};
        EXPECT_TRUE(BecomesLegible(picture, visible)) << command;
    };
    for (const int command :
         {IDM_mnuFileNew, IDM_mnuFileOpen, IDM_mnuFileOpenInNotepad, IDM_mnuFileSave, IDM_mnuEditCopyColor,
          IDM_mnuEditPasteColor, IDM_mnuEditFind, IDM_mnuToolsCustomFormat, IDM_mnuToolsOptions,
          IDM_mnuHelpHelp, IDM_mnuHelpColorProperties})
        expect(huevox.control(IDC_tbrTools), command);
    const PickerWindow picker(huevox, javaScriptGrid);
    for (const int command : {IDM_Alphabetically, IDM_DotNet})
        expect(::GetDlgItem(picker.window(), IDC_tbrSortTools), command);
    EXPECT_BECOMES(Pixel(EmptyPlace(picker)), theme().ground);
}

TEST_P(HighContrast, NamesAndTheLineBelowTheContrastsAreLegible) {
    const Huevox huevox;
    const ContrastWindow contrast(huevox);
    for (const RECT& text : {contrast.rowName(0), contrast.columnName(5), contrast.status()}) {
        EXPECT_TRUE(Eventually([&] {
            const Look look = LookAt(text);
            return look.ground == theme().ground && look.contrast >= legible;
        }));
    }
}

TEST_P(HighContrast, AColorLikeTheWindowsIsToldFromIt) {
    const Huevox huevox;
    SetColor(huevox, theme().ground);
    EXPECT_BECOMES(huevox.sample(0), theme().ground);
    ExpectEdges(huevox.control(IDC_picSample), theme().ground);
    const int like = theme().ground == ColorOf(0, 0, 0) ? 0 : 255;
    EXPECT_BECOMES(huevox.barStep(like), theme().ground);
    ExpectEdges(huevox.control(IDC_edgColorBar), theme().ground);
}

TEST_P(HighContrast, ANameThatMayNotFitIsBlackOnLightYellow) {
    const Huevox huevox;
    huevox.retype(Name(0), "red");
    SetColor(huevox, ColorOf(1, 2, 3));
    EXPECT_BECOMES(GroundOf(huevox.control(Name(0))), highlight);
    EXPECT_TRUE(BecomesLegible(AreaOf(huevox.control(Name(0)), 3), legible));
    Press(VK_F5);
    EXPECT_BECOMES(GroundOf(huevox.control(Name(0))), theme().ground);
}

INSTANTIATE_TEST_SUITE_P(Themes, HighContrast, testing::Values(blackTheme, whiteTheme),
                         [](const auto& theme) { return theme.param.name; });
