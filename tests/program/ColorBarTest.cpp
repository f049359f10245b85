// How often does the bar paint itself for one click?
#include <gtest/gtest.h>

#include "mainwindow/frmMain.h"
#include "resources/resource.h"
#include "support/AppState.h"
#include "tests/toolkit/TestForm.h"
#include "toolkit/controls/ControlClasses.h"
#include "toolkit/forms/MessageLoop.h"

namespace {

WNDPROC watched = nullptr;
int paints = 0;

LRESULT CALLBACK CountPaints(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_PAINT) ++paints;
    return ::CallWindowProcA(watched, window, message, wParam, lParam);
}

}  // namespace

TEST(ColorBarPainting, OnceForAClickThatChangesAllThreeSliders) {
    ForgetQuit();
    RegisterControlClasses();
    AppState state;
    frmMain window(state);
    window.load();
    window.show(SW_SHOWNORMAL);
    window.activate();
    PumpUntil([&] { return ::GetForegroundWindow() == window.handle(); });
    PumpAll();
    const auto scroll = [&](int slider, int value) {
        ::SendMessageA(window.handle(), WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, value),
                       reinterpret_cast<LPARAM>(::GetDlgItem(window.handle(), slider)));
    };
    scroll(IDC_hsbRed, 100);
    scroll(IDC_hsbGreen, 150);
    scroll(IDC_hsbBlue, 200);
    PumpAll();

    const HWND bar = ::GetDlgItem(window.handle(), IDC_lblColorBar);
    watched = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrA(bar, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountPaints)));
    constexpr LPARAM place = MAKELPARAM(60 * 731 / 255, 10);
    ::SendMessageA(bar, WM_LBUTTONDOWN, MK_LBUTTON, place);
    ::SendMessageA(bar, WM_LBUTTONUP, 0, place);
    PumpAll();
    EXPECT_EQ(state.marks.markColor[0], ColorOf(60, 110, 160));
    EXPECT_EQ(paints, 1);
    ::SetWindowLongPtrA(bar, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(watched));
    state.settings.promptToSave = 0;
    window.unload();
}
