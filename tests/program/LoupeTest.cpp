// What does the loupe cost, and what does it show of a screen that cannot be read?
#include "tests/driver/Input.h"
#include "tests/driver/Pixel.h"
#include "tests/program/FreeHandles.h"
#include "tests/program/MainWindowFixture.h"
#include "tests/program/ReplacedFunction.h"

namespace {

class LoupeOfAPick : public ShownMainWindow {
protected:
    void SetUp() override {
        ShownMainWindow::SetUp();
        click(IDC_chkColorPick);
        MoveMouse({1, 1});
        ::SendMessageA(sample(0), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    }
    void TearDown() override {
        ::SendMessageA(sample(0), WM_CANCELMODE, 0, 0);
        ShownMainWindow::TearDown();
    }

    static HWND loupe() { return ::FindWindowA("frmLoupe", nullptr); }
    void drag(POINT place) const {
        ::SetCursorPos(place.x, place.y);
        ::SendMessageA(sample(0), WM_MOUSEMOVE, MK_LBUTTON, 0);
    }
};

}  // namespace

TEST_F(LoupeOfAPick, LeavesTheHandlesFlat) {
    const RECT area = AreaOf(window.handle());
    const auto move = [&](int movement) {
        drag({area.left + movement * 7 % 700, area.top + movement * 3 % 400});
    };
    // Each of these costs a context of the screen.
    for (int movement = 0; movement < 1'100; ++movement) move(movement);
    const int before = FreeHandles();
    for (int movement = 0; movement < 1'000; ++movement) move(movement);
    EXPECT_EQ(FreeHandles(), before);
}

TEST_F(LoupeOfAPick, ReadsTheScreenOnceAMovement) {
    int readings = 0;
    const ReplacedFunction copy(&::BitBlt, [&](auto original, auto... arguments) {
        ++readings;
        return original(arguments...);
    });
    const ReplacedFunction single(&::GetPixel, [&](auto original, auto... arguments) {
        ++readings;
        return original(arguments...);
    });
    drag(CenterOf(sample(1)));
    EXPECT_EQ(readings, 1);
    drag(CenterOf(sample(2)));
    EXPECT_EQ(readings, 2);
    drag({1, 1});  // where the button was pressed
    EXPECT_EQ(readings, 3);
}

TEST_F(LoupeOfAPick, IsNotReadWhereItHasJustBeen) {
    const Color blue = ColorOf(0, 0, 255);
    drag(CenterOf(sample(4)));
    const POINT covered = CenterOf(loupe());
    ASSERT_TRUE(PumpUntil([&] { return Pixel(covered) == blue; }));
    drag(covered);
    // What it had covered is painted a moment later.
    EXPECT_TRUE(PumpUntil([&] { return Pixel(CenterOf(control(IDC_picPick))) != blue; }));
}

/// A hand that never rests leaves the window no time to paint what comes out from below the loupe.
TEST_F(LoupeOfAPick, LeavesNothingBehindWhereItIsReadNext) {
    const POINT covered = CenterOf(sample(2));
    drag(CenterOf(sample(1)));
    const POINT middle = CenterOf(loupe());
    const POINT pointer = CenterOf(sample(1));
    drag({covered.x - (middle.x - pointer.x), covered.y - (middle.y - pointer.y)});
    const RECT area = AreaOf(loupe());
    ASSERT_TRUE(::PtInRect(&area, covered));
    drag({1, 1});
    drag(covered);
    ::SendMessageA(sample(0), WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(state.marks.markColor[0], ColorOf(0, 255, 0));
}

TEST_F(LoupeOfAPick, IsMovedAndNotPaintedOverAnEvenGround) {
    int paintings = 0;
    const ReplacedFunction paint(&::StretchDIBits, [&](auto original, auto... arguments) {
        ++paintings;
        return original(arguments...);
    });
    const POINT even = CenterOf(sample(1));
    drag(even);
    EXPECT_EQ(paintings, 1);
    // Wine may have it painted once more when the display tells that it is there.
    ASSERT_TRUE(PumpUntil([&] { return Pixel(CenterOf(loupe())) == ColorOf(255, 255, 0); }));
    PumpAll();
    paintings = 0;
    const RECT before = AreaOf(loupe());
    drag({even.x + 3, even.y});
    EXPECT_EQ(paintings, 0);
    EXPECT_EQ(AreaOf(loupe()).left, before.left + 3);
    drag(CenterOf(sample(2)));
    EXPECT_EQ(paintings, 1);
}

TEST_F(LoupeOfAPick, ShowsAScreenThatCannotBeReadAsPureRed) {
    const ReplacedFunction refused(
        &::BitBlt, [](auto /*original*/, auto... /*arguments*/) { return Refused(ERROR_ACCESS_DENIED); });
    drag(CenterOf(sample(2)));
    ASSERT_TRUE(loupe());
    // Not the screen, whose pixels come by the very function.
    const HDC context = ::GetDC(loupe());
    const int middle = AreaOf(loupe()).right - AreaOf(loupe()).left;
    EXPECT_EQ(::GetPixel(context, middle / 2, window.scaled(6)), RGB(255, 0, 0));
    ::ReleaseDC(loupe(), context);
    ::SendMessageA(sample(0), WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(state.marks.markColor[0], ColorOf(255, 0, 0));
    EXPECT_FALSE(loupe());
}

TEST_F(LoupeOfAPick, ReadsAgainWhenTheMonitorsHaveChanged) {
    drag(CenterOf(sample(1)));
    const POINT place = CenterOf(sample(4));
    // The pointer is elsewhere when its monitor has gone.
    ::SetCursorPos(place.x, place.y);
    ::SendMessageA(window.handle(), WM_DISPLAYCHANGE, 32, MAKELPARAM(1280, 1024));
    ::SendMessageA(sample(0), WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(state.marks.markColor[0], ColorOf(0, 0, 255));
}

TEST_F(LoupeOfAPick, GoesWithTheMainWindow) {
    drag(CenterOf(sample(1)));
    ASSERT_TRUE(loupe());
    state.settings.promptToSave = 0;
    window.unload();
    EXPECT_FALSE(loupe());
}
