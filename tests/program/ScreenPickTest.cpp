// Does picking survive a very long drag?
#include "tests/driver/Input.h"
#include "tests/driver/Pixel.h"
#include "tests/program/FreeHandles.h"
#include "tests/program/MainWindowFixture.h"

namespace {

class LongPick : public ShownMainWindow {
protected:
    /// Moves the pointer and sends the sample a movement of a drag.
    void drag(POINT place) const {
        MoveMouse(place);
        ::SendMessageA(sample(0), WM_MOUSEMOVE, MK_LBUTTON, 0);
    }
};

class PickPointer : public LongPick {};
/// Not shown: the pointer, wherever it is, does not come by itself.
class PickTips : public LoadedMainWindow {
protected:
    /// What Windows asks when the mouse is over the window.
    void enter() const {
        ::SendMessageA(window.handle(), WM_SETCURSOR, reinterpret_cast<WPARAM>(window.handle()),
                       MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    }
    bool hasTips() const {
        HWND tip = nullptr;
        while ((tip = ::FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr)) != nullptr) {
            if (::GetWindow(tip, GW_OWNER) == window.handle()) return true;
        }
        return false;
    }
};

class PickPreview : public LongPick {};
class PickCapture : public LongPick {};

class PickContext : public LongPick {
protected:
    /// The context of the screen that Windows would hand out next: it keeps those that are given back.
    static HDC next() {
        const HDC context = ::GetDC(nullptr);
        ::ReleaseDC(nullptr, context);
        return context;
    }
};

}  // namespace

TEST_F(LongPick, LeavesTheHandlesFlatAndStillReadsRight) {
    click(IDC_chkColorPick);
    MoveMouse({1, 1});
    ::SendMessageA(sample(0), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    drag(CenterOf(sample(1)));
    const auto move = [&](int times) {
        for (int time = 0; time < times; ++time) ::SendMessageA(sample(0), WM_MOUSEMOVE, MK_LBUTTON, 0);
    };
    // Each of these costs a context of the screen.
    move(1'100);
    const int before = FreeHandles();
    move(2'000);
    EXPECT_EQ(FreeHandles(), before);
    for (int mark = 5; mark > 0; --mark) {
        drag(CenterOf(sample(mark)));
        PumpAll();
        EXPECT_EQ(Pixel(CenterOf(control(IDC_picPick))), Pixel(CenterOf(sample(mark)))) << mark;
    }
    ::SendMessageA(sample(0), WM_LBUTTONUP, 0, 0);
    PumpAll();
    EXPECT_EQ(Pixel(CenterOf(sample(0))), ColorOf(255, 255, 0));
    EXPECT_EQ(state.marks.markColor[0], ColorOf(255, 255, 0));
}

TEST_F(PickPointer, IsACrossFromThePressToTheRelease) {
    const HCURSOR arrow = ::LoadCursorW(nullptr, IDC_ARROW);
    const HCURSOR cross = ::LoadCursorW(nullptr, IDC_CROSS);
    // What Windows asks at each movement.
    const auto askForShape = [&] {
        ::SendMessageA(sample(0), WM_SETCURSOR, reinterpret_cast<WPARAM>(sample(0)),
                       MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return ::GetCursor();
    };
    click(IDC_chkColorPick);
    ::SendMessageA(sample(0), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    EXPECT_EQ(::GetCursor(), cross);
    ::SetCursor(arrow);
    EXPECT_EQ(askForShape(), cross);
    ::SendMessageA(sample(0), WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(::GetCursor(), arrow);
    EXPECT_EQ(askForShape(), arrow);
}

TEST_F(PickTips, AreNotMadeByAMouseThatComesDuringAPick) {
    click(IDC_chkColorPick);
    ::SendMessageA(sample(0), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    enter();
    EXPECT_FALSE(hasTips());
    ::SendMessageA(sample(0), WM_LBUTTONUP, 0, 0);
    enter();
    EXPECT_TRUE(hasTips());
}

TEST_F(PickTips, AreNotMadeBehindADialog) {
    ::EnableWindow(window.handle(), FALSE);
    enter();
    EXPECT_FALSE(hasTips());
    ::EnableWindow(window.handle(), TRUE);
    enter();
    EXPECT_TRUE(hasTips());
}

TEST_F(PickPreview, IsPaintedAtEachMovementThoughInputWaits) {
    click(IDC_chkColorPick);
    MoveMouse({1, 1});
    ::SendMessageA(sample(0), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    PumpAll();
    for (int mark = 1; mark < 6; ++mark) {
        drag(CenterOf(sample(mark)));
        EXPECT_FALSE(::GetUpdateRect(control(IDC_picPick), nullptr, FALSE)) << mark;
    }
    ::SendMessageA(sample(0), WM_LBUTTONUP, 0, 0);
}

TEST_F(PickCapture, StaysWithTheWindowThatHasTakenTheMouse) {
    click(IDC_chkColorPick);
    ::SendMessageA(sample(0), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    ASSERT_EQ(::GetCapture(), sample(0));
    ::SetCapture(control(IDC_lblColorBar));
    EXPECT_EQ(::GetCapture(), control(IDC_lblColorBar));
    EXPECT_FALSE(::IsWindowVisible(control(IDC_picPick)));
    ::ReleaseCapture();
}

TEST_F(PickCapture, EndsWithTheRelease) {
    click(IDC_chkColorPick);
    ::SendMessageA(sample(0), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    ASSERT_EQ(::GetCapture(), sample(0));
    ::SendMessageA(sample(0), WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(PickContext, IsMadeAnewWhenTheMonitorsHaveChanged) {
    click(IDC_chkColorPick);
    MoveMouse({1, 1});
    ::SendMessageA(sample(0), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    drag(CenterOf(sample(1)));
    for (int movement = 0; movement < 1'000; ++movement)
        ::SendMessageA(sample(0), WM_MOUSEMOVE, MK_LBUTTON, 0);
    const HDC before = next();
    drag(CenterOf(sample(2)));
    ASSERT_EQ(next(), before) << "the last context is not kept";
    ::SendMessageA(window.handle(), WM_DISPLAYCHANGE, 32, MAKELPARAM(1280, 1024));
    drag(CenterOf(sample(3)));
    EXPECT_NE(next(), before);
    ::SendMessageA(sample(0), WM_LBUTTONUP, 0, 0);
}
