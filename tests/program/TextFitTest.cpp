// Is all of the main window to be seen, whatever fonts there are, on a small screen and at any scaling?
#include <map>
#include <string>

#include "tests/driver/WindowText.h"
#include "tests/program/MainWindowFixture.h"
#include "toolkit/platform/WindowPlace.h"

namespace {

class TextFit : public ShownMainWindow {};

/// The text's size in the control's own font, in pixels.
SIZE SizeOf(HWND control, const std::string& text) {
    const HDC context = ::GetDC(control);
    const auto font = reinterpret_cast<HFONT>(::SendMessageA(control, WM_GETFONT, 0, 0));
    const HGDIOBJ before = ::SelectObject(context, font);
    RECT area{};
    ::DrawTextA(context, text.c_str(), -1, &area, DT_CALCRECT | DT_SINGLELINE);
    ::SelectObject(context, before);
    ::ReleaseDC(control, context);
    return {area.right, area.bottom};
}

/// What stands beside the text: a circle or a square, and the gap to it.
int ExtraOf(HWND control) {
    constexpr int mark = 17;
    const LONG_PTR kind = ::GetWindowLongPtrA(control, GWL_STYLE) & BS_TYPEMASK;
    const bool hasMark =
        ClassOf(control) == "Button" && (kind == BS_AUTORADIOBUTTON || kind == BS_AUTOCHECKBOX);
    return hasMark ? ::MulDiv(mark, static_cast<int>(::GetDpiForWindow(control)), USER_DEFAULT_SCREEN_DPI)
                   : 0;
}

bool IsForEyes(HWND control) {
    const int id = ::GetDlgCtrlID(control);
    const bool isMark = id >= IDC_optColor && id < IDC_optColor + markCount;
    const std::string name = ClassOf(control);
    return ::IsWindowVisible(control) && !isMark && (name == "Button" || name == "Static" || name == "Edit");
}

BOOL CALLBACK ExpectFit(HWND control, LPARAM parameter) {
    const std::string text = TextOf(control);
    if (!IsForEyes(control) || text.empty()) return TRUE;
    RECT area{};
    ::GetClientRect(control, &area);
    const SIZE size = SizeOf(control, text);
    EXPECT_LE(size.cx + ExtraOf(control), area.right) << text;
    EXPECT_LE(size.cy, area.bottom) << text;
    ++*reinterpret_cast<int*>(parameter);
    return TRUE;
}

/// The height of the smallest usual screens of each scaling, in pixels.
const std::map<int, int> smallScreens = {{96, 768}, {120, 768}, {144, 1080}, {192, 1080}};

int Pixels(int at96Dpi, int dpi) { return ::MulDiv(at96Dpi, dpi, USER_DEFAULT_SCREEN_DPI); }

}  // namespace

TEST_F(TextFit, EveryTextOfTheMainWindowFitsItsControl) {
    int texts = 0;
    ::EnumChildWindows(window.handle(), ExpectFit, reinterpret_cast<LPARAM>(&texts));
    EXPECT_GE(texts, 20);
}

TEST_F(TextFit, TheWindowIsNoHigherThanWhatTheTaskBarOfASmallScreenLeaves) {
    constexpr int taskBar = 48;            // of Windows 11; that of Windows 10 is 40
    constexpr int captionAndMenu = 43;     // of both
    constexpr int upperAndLowerEdge = 14;  // of both, at every scaling
    const auto dpi = static_cast<int>(::GetDpiForWindow(window.handle()));
    RECT client{};
    ::GetClientRect(window.handle(), &client);
    const int height = client.bottom + Pixels(captionAndMenu, dpi) + upperAndLowerEdge;
    EXPECT_LE(height, smallScreens.at(dpi) - Pixels(taskBar, dpi));
    EXPECT_LE(PlaceOf(window.handle()).height(), smallScreens.at(dpi) - Pixels(taskBar, dpi));
}

TEST_F(TextFit, AllNotationsAreSeenAtOnce) {
    const HWND list = control(IDC_lstAutocopy);
    ASSERT_EQ(::SendMessageA(list, LB_GETCOUNT, 0, 0), 12);
    RECT last{};
    ::SendMessageA(list, LB_GETITEMRECT, 11, reinterpret_cast<LPARAM>(&last));
    RECT client{};
    ::GetClientRect(list, &client);
    EXPECT_LE(last.bottom, client.bottom);
    EXPECT_FALSE(::GetWindowLongPtrA(list, GWL_STYLE) & WS_VSCROLL);
}
