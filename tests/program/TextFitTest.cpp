// Is the text of the main window's controls to be read, whatever fonts there are?
#include <string>

#include "tests/driver/WindowText.h"
#include "tests/program/MainWindowFixture.h"

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

}  // namespace

TEST_F(TextFit, EveryTextOfTheMainWindowFitsItsControl) {
    int texts = 0;
    ::EnumChildWindows(window.handle(), ExpectFit, reinterpret_cast<LPARAM>(&texts));
    EXPECT_GE(texts, 20);
}
