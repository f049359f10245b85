// Does all work on a second monitor left of the first and higher, whose places are negative? Run on a display
// that has one.
#include "tests/driver/ColoredWindow.h"
#include "tests/driver/PickerWindow.h"
#include "tests/driver/Picking.h"

namespace {

constexpr POINT leftPlace = {-700, -300};

class LeftMonitor : public UiTest {
protected:
    void SetUp() override {
        ASSERT_LT(::GetSystemMetrics(SM_XVIRTUALSCREEN), leftPlace.x);
        ASSERT_LT(::GetSystemMetrics(SM_YVIRTUALSCREEN), leftPlace.y);
        UiTest::SetUp();
    }
};

/// Moves the program to the left monitor.
void MoveOver(const Huevox& huevox) {
    const POINT place = {::GetSystemMetrics(SM_XVIRTUALSCREEN) + 50,
                         ::GetSystemMetrics(SM_YVIRTUALSCREEN) + 80};
    ::SetWindowPos(huevox.window(), nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ASSERT_TRUE(Eventually([&] { return CenterOf(huevox.window()).x < 0; }));
}

}  // namespace

TEST_F(LeftMonitor, APickReachesFromTheFirstToThePixelUnderThePointer) {
    const Huevox huevox;
    const ColoredWindow window(leftPlace, RGB(0x12, 0x34, 0x56));
    TurnPickModeOn(huevox);
    Hold(huevox, Sample(huevox, 0));
    const POINT inside = {leftPlace.x + 39, leftPlace.y + 39};
    DragTo(huevox, inside, ColorOf(0x12, 0x34, 0x56));
    const POINT outside = {leftPlace.x + 40, leftPlace.y + 39};
    ASSERT_NE(Pixel(outside), Pixel(inside));
    DragTo(huevox, outside, Pixel(outside));
    DragTo(huevox, leftPlace, ColorOf(0x12, 0x34, 0x56));
    ReleaseButton(leftPlace);
    EXPECT_BECOMES(huevox.sample(0), ColorOf(0x12, 0x34, 0x56));
    EXPECT_BECOMES(ClipboardText(), "#123456");
}

TEST_F(LeftMonitor, APickBeginsThereToo) {
    const Huevox huevox;
    MoveOver(huevox);
    TurnPickModeOn(huevox);
    Pick(huevox, 0, Sample(huevox, 3), ColorOf(0, 255, 255));
    EXPECT_BECOMES(huevox.sample(0), ColorOf(0, 255, 255));
}

TEST_F(LeftMonitor, TheLoupeStaysOnTheMonitorOfThePointer) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    Hold(huevox, Sample(huevox, 0));
    const LONG left = ::GetSystemMetrics(SM_XVIRTUALSCREEN);
    const LONG top = ::GetSystemMetrics(SM_YVIRTUALSCREEN);
    // Where both meet, on either side, and in the far corner.
    for (const POINT& place : {POINT{-1, 300}, POINT{0, 300}, POINT{left, top}, POINT{-300, top + 400}}) {
        MoveMouse(place);
        EXPECT_TRUE(Eventually([&] {
            const HWND loupe = LoupeOf(huevox);
            const HMONITOR monitor = ::MonitorFromPoint(place, MONITOR_DEFAULTTONULL);
            const RECT area = AreaOf(loupe);
            const POINT last = {area.right - 1, area.bottom - 1};
            return loupe && !::PtInRect(&area, place) &&
                   ::MonitorFromPoint({area.left, area.top}, MONITOR_DEFAULTTONULL) == monitor &&
                   ::MonitorFromPoint(last, MONITOR_DEFAULTTONULL) == monitor;
        })) << place.x
            << ", " << place.y;
    }
    ReleaseButton(Sample(huevox, 3));
}

TEST_F(LeftMonitor, AnArrowGoesFromOneToTheOther) {
    const Huevox huevox;
    const ColoredWindow window({-40, 300}, RGB(0x12, 0x34, 0x56));
    TurnPickModeOn(huevox);
    MoveMouse({0, 310});
    Press(VK_F6);
    ASSERT_BECOMES(LoupeOf(huevox) != nullptr, true);
    Press(VK_LEFT);
    EXPECT_BECOMES(Preview(huevox), ColorOf(0x12, 0x34, 0x56));
    Press(VK_RETURN);
    EXPECT_BECOMES(huevox.sample(0), ColorOf(0x12, 0x34, 0x56));
}

TEST_F(LeftMonitor, APaletteWindowOpensOnTheMonitorOfTheProgram) {
    const Huevox huevox;
    MoveOver(huevox);
    const PickerWindow picker(huevox, failsafeGrid);
    EXPECT_BECOMES(CenterOf(picker.window()).x < 0, true);
    EXPECT_NE(::MonitorFromWindow(picker.window(), MONITOR_DEFAULTTONULL), nullptr);
}
