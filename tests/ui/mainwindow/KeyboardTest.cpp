// What does the program offer to those who use no mouse, or hear it instead of seeing it?
#include <string>

#include "tests/driver/PickerWindow.h"
#include "tests/driver/UiTest.h"
#include "tests/ui/mainwindow/Scaled.h"

namespace {

class Keyboard : public UiTest {};
class Names : public UiTest {};

/// Presses Tab until a control has the focus.
void TabTo(const Huevox& huevox, int id) {
    for (int tab = 0; tab < 30 && huevox.focused() != id; ++tab) {
        const HWND before = huevox.focus();
        Press(VK_TAB);
        ASSERT_TRUE(Eventually([&] { return huevox.focus() != before; }));
    }
    ASSERT_EQ(huevox.focused(), id);
}

/// Opens a palette window by its button and waits until its swatches have the focus.
HWND OpenByKeyboard(const Huevox& huevox, const PickerWindow::Grid& grid) {
    TabTo(huevox, grid.button);
    Press(VK_SPACE);
    const auto hasFocus = [&] { return huevox.focused() == grid.swatches; };
    EXPECT_TRUE(Eventually(hasFocus)) << grid.name;
    return huevox.form(grid.name);
}

/// What a screen reader calls a control: its own text, or, of those whose text is their content, the label
/// before it.
std::string NameOf(HWND control) {
    const std::string className = ClassOf(control);
    const bool isNamedByLabel = className == "Edit" || className == "ListBox" || className == "ScrollBar";
    if (!isNamedByLabel) return TextOf(control);
    const HWND label = ::GetWindow(control, GW_HWNDPREV);
    return ClassOf(label) == "Static" ? TextOf(label) : "";
}

BOOL CALLBACK ExpectName(HWND control, LPARAM) {
    const int id = ::GetDlgCtrlID(control);
    const bool isPart =
        (::GetWindowLongA(control, GWL_STYLE) & WS_TABSTOP) || ClassOf(control) == "PictureBox";
    if (isPart) {
        EXPECT_NE(NameOf(control), "") << ClassOf(control) << ' ' << id;
    }
    return TRUE;
}

}  // namespace

TEST_F(Keyboard, TheBarIsReachedAndAStepTakenFromTheColorOn) {
    const Huevox huevox;
    TabTo(huevox, IDC_lblColorBar);
    Press(VK_RIGHT);
    Press(VK_SPACE);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 1, 1));
    Press(VK_RIGHT);
    Press(VK_RIGHT);
    Press(VK_RETURN);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 3, 3));
    Press(VK_END);
    Press(VK_SPACE);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 255, 255));
    Press(VK_HOME);
    Press(VK_SPACE);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(0, 0, 0));
    EXPECT_EQ(huevox.focused(), IDC_lblColorBar);
}

TEST_F(Keyboard, TheBarBeginsAtTheStepOfTheColor) {
    const Huevox huevox;
    SetColor(huevox, ColorOf(100, 150, 200));
    TabTo(huevox, IDC_lblColorBar);
    Press(VK_RIGHT);
    Press(VK_SPACE);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(101, 151, 201));
}

TEST_F(Keyboard, TheBarsFrameStaysAndIsToldAnewWhenTheColorChanges) {
    const Huevox huevox;
    SetColor(huevox, ColorOf(100, 150, 200));
    Press(VK_F2);
    huevox.selectMark(1);
    TabTo(huevox, IDC_lblColorBar);
    ASSERT_BECOMES(huevox.text(IDC_lblColorBar), "#FFFF00");
    Press(VK_F3);
    ASSERT_BECOMES(huevox.sliders(), ColorOf(100, 150, 200));
    EXPECT_BECOMES(huevox.text(IDC_lblColorBar), "#003264");
    Press(VK_SPACE);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(0, 50, 100));
}

TEST_F(Keyboard, AMovedFrameAloneChangesNothing) {
    const Huevox huevox;
    TabTo(huevox, IDC_lblColorBar);
    Press(VK_END);
    EXPECT_BECOMES(huevox.text(IDC_lblColorBar), "#FFFFFF");
    Press(VK_LEFT);
    EXPECT_BECOMES(huevox.text(IDC_lblColorBar), "#FFFEFE");
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
}

TEST_F(Keyboard, ASwatchIsReachedAndTakenAndTheWindowClosed) {
    const Huevox huevox;
    const HWND picker = OpenByKeyboard(huevox, websafeGrid);
    Press(VK_UP);
    Press(VK_RIGHT);
    Press(VK_SPACE);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(51, 0, 51));
    EXPECT_EQ(TextOf(::GetDlgItem(picker, IDC_lblWebsafeColor)), "#330033");
    Press(VK_END);
    Press(VK_RETURN);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 255, 51));
    EXPECT_TRUE(huevox.form("frmWebsafe"));
    Press(VK_ESCAPE);
    EXPECT_BECOMES(huevox.form("frmWebsafe"), nullptr);
    EXPECT_BECOMES(::GetForegroundWindow(), huevox.window());
}

TEST_F(Keyboard, EscapeClosesEveryPaletteWindow) {
    const Huevox huevox;
    for (const PickerWindow::Grid& grid : {websafeGrid, failsafeGrid, javaScriptGrid}) {
        const PickerWindow picker(huevox, grid);
        Press(VK_ESCAPE);
        EXPECT_BECOMES(picker.window(), nullptr) << grid.name;
        EXPECT_BECOMES(::GetForegroundWindow(), huevox.window());
    }
}

TEST_F(Keyboard, GoesOnFromTheSwatchThatWasClicked) {
    const Huevox huevox;
    const PickerWindow picker(huevox, websafeGrid);
    picker.click({3, 2});
    ASSERT_BECOMES(huevox.sliders(), ColorOf(153, 0, 153));
    Press(VK_RIGHT);
    Press(VK_SPACE);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(204, 0, 153));
}

TEST_F(Keyboard, AFrameIsSeenAroundTheSwatchThatHasTheFocus) {
    const Huevox huevox;
    const HWND picker = OpenByKeyboard(huevox, failsafeGrid);
    Press(VK_END);
    const HWND swatches = ::GetDlgItem(picker, IDC_lblFailsafeColor);
    RECT area{};
    ::GetClientRect(swatches, &area);
    EXPECT_BECOMES(Pixel(OnScreen(swatches, {area.right - 1, 5})), ColorOf(0, 0, 0));
    EXPECT_BECOMES(Pixel(OnScreen(swatches, {area.right - 10, 10})), ColorOf(255, 255, 255));
    Press(VK_HOME);
    EXPECT_BECOMES(Pixel(OnScreen(swatches, {area.right - 1, 5})), ColorOf(255, 255, 255));
    EXPECT_BECOMES(Pixel(OnScreen(swatches, {Scaled(swatches, 1), 5})), ColorOf(255, 255, 255));
    EXPECT_BECOMES(Pixel(OnScreen(swatches, {5, 10})), ColorOf(0, 0, 0));
}

TEST_F(Keyboard, AFrameIsSeenInTheSampleOfTheMarkWhoseButtonHasTheFocus) {
    const Huevox huevox;
    const auto line = [&](int mark, int distance) {
        const HWND sample = huevox.control(IDC_picSample + mark);
        return Pixel(OnScreen(sample, {distance, CenterOf(sample).y - OnScreen(sample, {0, 0}).y}));
    };
    constexpr Color red = ColorOf(255, 0, 0);
    constexpr Color black = ColorOf(0, 0, 0);
    const int frame = Scaled(huevox.window(), 3);
    const int width = Scaled(huevox.window(), 1);
    EXPECT_BECOMES(line(0, frame), red);
    TabTo(huevox, Option(0));
    EXPECT_BECOMES(line(0, frame), black);
    EXPECT_EQ(line(0, frame - 1), red);
    EXPECT_EQ(line(0, frame + width), white);
    EXPECT_EQ(line(0, frame + 2 * width), red);
    Press(VK_RIGHT);
    EXPECT_BECOMES(line(1, frame), black);
    EXPECT_BECOMES(line(0, frame), red);
    Press(VK_TAB);
    EXPECT_BECOMES(line(1, frame), huevox.sample(1));
}

TEST_F(Keyboard, TheOrderOfTheJavaScriptColorsIsSwitched) {
    const Huevox huevox;
    const HWND picker = OpenByKeyboard(huevox, javaScriptGrid);
    const HWND swatches = ::GetDlgItem(picker, IDC_lblJavaScriptColor);
    Press(VK_RIGHT);
    EXPECT_BECOMES(TextOf(swatches), "antiquewhite #FAEBD7");
    Press(VK_LEFT);
    EXPECT_BECOMES(TextOf(swatches), "aliceblue #F0F8FF");
    Press(VK_TAB);
    ASSERT_BECOMES(huevox.focused(), IDC_tbrSortTools);
    Press(VK_RIGHT);
    Press(VK_SPACE);
    EXPECT_BECOMES(IsPressed(picker, IDM_DotNet), true);
    EXPECT_FALSE(IsPressed(picker, IDM_Alphabetically));
    Press(VK_TAB);
    Press(VK_RIGHT);
    Press(VK_HOME);
    EXPECT_BECOMES(TextOf(swatches), "black #000000");
    Press(VK_TAB);
    ASSERT_BECOMES(huevox.focused(), IDC_tbrSortTools);
    Press(VK_RETURN);
    EXPECT_BECOMES(IsPressed(picker, IDM_Alphabetically), true);
}

TEST_F(Names, EveryControlOfTheMainWindowAndThePaletteWindowsHasOne) {
    const Huevox huevox;
    ::EnumChildWindows(huevox.window(), ExpectName, 0);
    for (const PickerWindow::Grid& grid : {websafeGrid, failsafeGrid, javaScriptGrid}) {
        const PickerWindow picker(huevox, grid);
        ::EnumChildWindows(picker.window(), ExpectName, 0);
    }
}

TEST_F(Names, BoxesOfOneKindAreToldApart) {
    const Huevox huevox;
    EXPECT_EQ(NameOf(huevox.control(IDC_txtSetGreen)), "Green");
    EXPECT_EQ(NameOf(huevox.control(IDC_hsbBlue)), "&Blue");
    EXPECT_EQ(NameOf(huevox.control(Name(0))), "Name of colour mark 1");
    EXPECT_EQ(NameOf(huevox.control(Name(5))), "Name of colour mark 6");
    EXPECT_EQ(NameOf(huevox.control(Option(5))), "Colour mark 6");
    EXPECT_EQ(NameOf(huevox.control(IDC_lstAutocopy)), "Notation");
}

TEST_F(Names, ASampleSaysNameAndColorOfItsMark) {
    const Huevox huevox;
    EXPECT_EQ(huevox.text(IDC_picSample + 4), "Type a colour name #0000FF");
    huevox.retype(Name(0), "sky");
    EXPECT_BECOMES(huevox.text(IDC_picSample), "sky #FF0000");
    huevox.focusSlider(IDC_hsbRed);
    Press(VK_LEFT);
    EXPECT_BECOMES(huevox.text(IDC_picSample), "sky #FE0000");
}
