// Are the pixels around the pointer shown, enlarged, and never in its way?
#include <array>
#include <string>
#include <vector>

#include "tests/driver/ColoredWindow.h"
#include "tests/driver/Picking.h"

namespace {

constexpr int reach = 7;
constexpr int side = 15;

class LoupeWindow : public UiTest {
protected:
    static int scaled(int pixels) {
        return ::MulDiv(pixels, static_cast<int>(::GetDpiForSystem()), USER_DEFAULT_SCREEN_DPI);
    }
    /// How high the loupe is beside its picture.
    static int heightOfText(const Huevox& huevox, int magnification) {
        const RECT area = AreaOf(LoupeOf(huevox));
        return static_cast<int>(area.bottom - area.top) - side * scaled(magnification);
    }
    /// The middle of an enlarged pixel, counted from the one under the pointer.
    static POINT cell(const Huevox& huevox, int across, int down, int magnification = 8) {
        const RECT area = AreaOf(LoupeOf(huevox));
        const int size = scaled(magnification);
        const LONG left = (area.left + area.right - side * size) / 2;
        const LONG top = area.top + scaled(1);
        return {left + (across + reach) * size + size / 2, top + (down + reach) * size + size / 2};
    }
    static bool isApartFromBlock(const Huevox& huevox, POINT pointer) {
        const RECT area = AreaOf(LoupeOf(huevox));
        return area.left > pointer.x + reach || area.right <= pointer.x - reach ||
               area.top > pointer.y + reach || area.bottom <= pointer.y - reach;
    }
    static bool isNear(const Huevox& huevox, POINT pointer) {
        RECT area = AreaOf(LoupeOf(huevox), -scaled(40));
        return ::PtInRect(&area, pointer);
    }
    static bool isOnMonitorOf(const Huevox& huevox, POINT pointer) {
        MONITORINFO monitor{};
        monitor.cbSize = sizeof monitor;
        ::GetMonitorInfoA(::MonitorFromPoint(pointer, MONITOR_DEFAULTTONEAREST), &monitor);
        const RECT area = AreaOf(LoupeOf(huevox));
        RECT common{};
        return ::IntersectRect(&common, &area, &monitor.rcMonitor) && ::EqualRect(&common, &area);
    }
};

/// The edges of the desktop's monitors, their corners, and places in between.
std::vector<POINT> PlacesAtEdges() {
    const LONG right = ::GetSystemMetrics(SM_CXSCREEN) - 1;
    const LONG bottom = ::GetSystemMetrics(SM_CYSCREEN) - 1;
    std::vector<POINT> places;
    for (const LONG y : {0L, 100L, bottom / 2, bottom - 100, bottom}) {
        for (const LONG x : {0L, 100L, right / 2, right - 100, right}) places.push_back({x, y});
    }
    return places;
}

}  // namespace

TEST_F(LoupeWindow, ShowsThePixelsAroundThePointer) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    const RECT yellow = AreaOf(huevox.control(IDC_picSample + 1));
    Hold(huevox, Sample(huevox, 0));
    // Its edge, the ground, and the edge of the next are all around.
    const POINT place = {yellow.right - 3, yellow.bottom - 3};
    DragTo(huevox, place, ColorOf(255, 255, 0));
    EXPECT_BECOMES(LoupeOf(huevox) != nullptr, true);
    for (int down = -reach; down <= reach; ++down) {
        for (int across = -reach; across <= reach; ++across) {
            EXPECT_BECOMES(Pixel(cell(huevox, across, down)), Pixel({place.x + across, place.y + down}))
                << across << ", " << down;
        }
    }
    ReleaseButton(place);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 255, 0));
}

TEST_F(LoupeWindow, OutlinesTheMiddleInBlackAndWhite) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    Hold(huevox, Sample(huevox, 0));
    DragTo(huevox, Sample(huevox, 2), ColorOf(0, 255, 0));
    // The loupe may still be on its way.
    const auto leftOfMiddle = [&](LONG pixels) {
        const POINT middle = cell(huevox, 0, 0);
        return Pixel({middle.x - pixels, middle.y});
    };
    EXPECT_BECOMES(leftOfMiddle(0), ColorOf(0, 255, 0));
    const LONG half = scaled(8) / 2;
    EXPECT_BECOMES(leftOfMiddle(half + 1), ColorOf(0, 0, 0));
    EXPECT_BECOMES(leftOfMiddle(half + 1 + scaled(1)), ColorOf(255, 255, 255));
    EXPECT_BECOMES(leftOfMiddle(half), ColorOf(0, 255, 0));
    ReleaseButton(Sample(huevox, 2));
}

TEST_F(LoupeWindow, IsThereFromTheFirstMovementToTheRelease) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    Hold(huevox, Sample(huevox, 0));
    EXPECT_FALSE(LoupeOf(huevox));
    DragTo(huevox, Sample(huevox, 3), ColorOf(0, 255, 255));
    EXPECT_BECOMES(LoupeOf(huevox) != nullptr, true);
    ReleaseButton(Sample(huevox, 3));
    EXPECT_BECOMES(LoupeOf(huevox) == nullptr, true);
}

TEST_F(LoupeWindow, IsBesideThePointerAtEveryEdgeOfTheMonitor) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    Hold(huevox, Sample(huevox, 0));
    DragTo(huevox, Sample(huevox, 3), ColorOf(0, 255, 255));
    for (const POINT& place : PlacesAtEdges()) {
        MoveMouse(place);
        EXPECT_TRUE(Eventually([&] {
            return isNear(huevox, place) && isOnMonitorOf(huevox, place) && isApartFromBlock(huevox, place);
        })) << place.x
            << ", " << place.y;
    }
    ReleaseButton(Sample(huevox, 3));
}

TEST_F(LoupeWindow, ShowsNothingBeyondTheEdgesOfTheDesktop) {
    const Huevox huevox;
    const ColoredWindow corner({0, 0}, RGB(0x12, 0x34, 0x56));
    TurnPickModeOn(huevox);
    Hold(huevox, Sample(huevox, 0));
    DragTo(huevox, {0, 0}, ColorOf(0x12, 0x34, 0x56));
    const Color nothing = Unpack(static_cast<PackedColor>(::GetSysColor(COLOR_BTNFACE)));
    EXPECT_BECOMES(Pixel(cell(huevox, -2, 0)), nothing);
    EXPECT_BECOMES(Pixel(cell(huevox, -7, 7)), nothing);
    EXPECT_BECOMES(Pixel(cell(huevox, 3, -3)), nothing);
    EXPECT_BECOMES(Pixel(cell(huevox, 3, 3)), ColorOf(0x12, 0x34, 0x56));
    EXPECT_BECOMES(Pixel(cell(huevox, 0, 7)), ColorOf(0x12, 0x34, 0x56));
    ReleaseButton({0, 0});
}

TEST_F(LoupeWindow, TellsTheColorInTheChosenNotationAndItsName) {
    const Huevox huevox;
    const ColoredWindow nameless({4, 4}, RGB(0x12, 0x34, 0x56));
    huevox.chooseNotation(3);
    TurnPickModeOn(huevox);
    Hold(huevox, Sample(huevox, 0));
    DragTo(huevox, Sample(huevox, 4), ColorOf(0, 0, 255));
    EXPECT_BECOMES(TextOf(LoupeOf(huevox)), "RGB(0, 0, 255) blue");
    DragTo(huevox, {5, 5}, ColorOf(0x12, 0x34, 0x56));
    EXPECT_BECOMES(TextOf(LoupeOf(huevox)), "RGB(18, 52, 86)");
    ReleaseButton({5, 5});
}

TEST_F(LoupeWindow, TellsTheNotationChosenBeforeWhileNamesAreCopied) {
    const Huevox huevox;
    huevox.chooseNotation(3);
    CheckNames(huevox, true);
    TurnPickModeOn(huevox);
    Hold(huevox, Sample(huevox, 0));
    DragTo(huevox, Sample(huevox, 3), ColorOf(0, 255, 255));
    EXPECT_BECOMES(TextOf(LoupeOf(huevox)), "RGB(0, 255, 255) cyan");
    ReleaseButton(Sample(huevox, 3));
}

TEST_F(LoupeWindow, GrowsAndShrinksByTheWheel) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    Hold(huevox, Sample(huevox, 0));
    DragTo(huevox, Sample(huevox, 3), ColorOf(0, 255, 255));
    ASSERT_BECOMES(LoupeOf(huevox) != nullptr, true);
    const int text = heightOfText(huevox, 8);
    TurnWheel(1);
    EXPECT_BECOMES(heightOfText(huevox, 16), text);
    EXPECT_BECOMES(Pixel(cell(huevox, 0, 0, 16)), ColorOf(0, 255, 255));
    TurnWheel(1);
    TurnWheel(-1);
    EXPECT_BECOMES(heightOfText(huevox, 8), text);
    TurnWheel(-1);
    EXPECT_BECOMES(heightOfText(huevox, 4), text);
    EXPECT_BECOMES(Pixel(cell(huevox, 0, 0, 4)), ColorOf(0, 255, 255));
    ReleaseButton(Sample(huevox, 3));
    ASSERT_BECOMES(IsShown(huevox, IDC_picPick), false);
    Hold(huevox, Sample(huevox, 0));
    DragTo(huevox, Sample(huevox, 2), ColorOf(0, 255, 0));
    EXPECT_BECOMES(heightOfText(huevox, 4), text);
    ReleaseButton(Sample(huevox, 2));
}

TEST_F(LoupeWindow, TakesNeitherInputNorFocusNorAPlaceInTheTaskBar) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    huevox.focusByClick(Name(2));
    Hold(huevox, Sample(huevox, 0));
    DragTo(huevox, Sample(huevox, 3), ColorOf(0, 255, 255));
    ASSERT_BECOMES(LoupeOf(huevox) != nullptr, true);
    const HWND loupe = LoupeOf(huevox);
    const auto exStyle = static_cast<DWORD>(::GetWindowLongA(loupe, GWL_EXSTYLE));
    constexpr DWORD wanted = WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW | WS_EX_TOPMOST;
    EXPECT_EQ(exStyle & (wanted | WS_EX_APPWINDOW), wanted);
    EXPECT_FALSE(::IsWindowEnabled(loupe));
    EXPECT_EQ(::GetWindow(loupe, GW_OWNER), huevox.window());
    EXPECT_EQ(::GetForegroundWindow(), huevox.window());
    EXPECT_EQ(huevox.focused(), Name(2));
    ReleaseButton(Sample(huevox, 3));
}

TEST_F(LoupeWindow, IsNeverReadItself) {
    const Huevox huevox;
    TurnPickModeOn(huevox);
    Hold(huevox, Sample(huevox, 0));
    // Far down to where the loupe of the place before is.
    for (const int mark : {5, 1, 4, 2, 3}) {
        DragTo(huevox, Sample(huevox, mark), huevox.sample(mark));
        const POINT place = Sample(huevox, mark);
        ASSERT_BECOMES(isNear(huevox, place), true);
        const POINT covered = CenterOf(LoupeOf(huevox));
        MoveMouse(covered);
        EXPECT_BECOMES(isApartFromBlock(huevox, covered), true);
        // What was covered is painted a moment later, and then read again.
        EXPECT_BECOMES(Preview(huevox) == Pixel(covered), true);
    }
    ReleaseButton(Sample(huevox, 3));
}
