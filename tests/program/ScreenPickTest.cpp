// How does picking bear with a very long drag?
#include <gtest/gtest.h>

#include "mainwindow/frmMain.h"
#include "resources/resource.h"
#include "support/AppState.h"
#include "tests/driver/Input.h"
#include "tests/toolkit/TestForm.h"
#include "toolkit/controls/ControlClasses.h"
#include "toolkit/forms/MessageLoop.h"

namespace {

class LongPick : public testing::Test {
protected:
    void SetUp() override {
        ForgetQuit();
        RegisterControlClasses();
        window.load();
        window.show(SW_SHOWNORMAL);
        window.activate();
        PumpUntil([&] { return ::GetForegroundWindow() == window.handle(); });
        PumpAll();
    }
    void TearDown() override {
        state.settings.promptToSave = 0;
        window.unload();
    }

    HWND control(int id) const { return ::GetDlgItem(window.handle(), id); }
    HWND sample(int mark) const {
        return ::GetDlgItem(control(IDC_picSampleContainer), IDC_picSample + mark);
    }
    POINT center(HWND of) const {
        RECT area{};
        ::GetWindowRect(of, &area);
        return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
    }
    /// Moves the pointer and sends the sample a movement of a drag.
    void drag(POINT place) const {
        MoveMouse(place);
        ::SendMessageA(sample(0), WM_MOUSEMOVE, MK_LBUTTON, 0);
    }
    COLORREF pixel(POINT place) const {
        const HDC context = ::GetDC(nullptr);
        const COLORREF color = ::GetPixel(context, place.x, place.y);
        ::ReleaseDC(nullptr, context);
        return color;
    }

    AppState state;
    frmMain window{state};
};

class PickPointer : public LongPick {};

}  // namespace

TEST_F(LongPick, StillReadsRightAndPaintsAfter30000Movements) {
    ::SendMessageA(control(IDC_chkColorPick), BM_CLICK, 0, 0);
    MoveMouse({1, 1});
    ::SendMessageA(sample(0), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    drag(center(sample(1)));
    for (int movement = 0; movement < 30'000; ++movement)
        ::SendMessageA(sample(0), WM_MOUSEMOVE, MK_LBUTTON, 0);
    for (int mark = 5; mark > 0; --mark) {
        drag(center(sample(mark)));
        PumpAll();
        EXPECT_EQ(pixel(center(control(IDC_picPick))), pixel(center(sample(mark)))) << mark;
    }
    ::SendMessageA(sample(0), WM_LBUTTONUP, 0, 0);
    PumpAll();
    EXPECT_EQ(pixel(center(sample(0))), RGB(255, 255, 0));
    EXPECT_EQ(state.marks.markColor[0], ColorOf(255, 255, 0));
}

TEST_F(PickPointer, IsACrossFromThePressToTheRelease) {
    const HCURSOR arrow = ::LoadCursorA(nullptr, IDC_ARROW);
    const HCURSOR cross = ::LoadCursorA(nullptr, IDC_CROSS);
    // What the platform asks at each movement.
    const auto askForShape = [&] {
        ::SendMessageA(sample(0), WM_SETCURSOR, reinterpret_cast<WPARAM>(sample(0)),
                       MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return ::GetCursor();
    };
    ::SendMessageA(control(IDC_chkColorPick), BM_CLICK, 0, 0);
    ::SendMessageA(sample(0), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    EXPECT_EQ(::GetCursor(), cross);
    ::SetCursor(arrow);
    EXPECT_EQ(askForShape(), cross);
    ::SendMessageA(sample(0), WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(::GetCursor(), arrow);
    EXPECT_EQ(askForShape(), arrow);
}
