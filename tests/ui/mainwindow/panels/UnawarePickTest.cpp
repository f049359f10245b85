// What does a pick take from the window of a program that ignores scaling, which the system may scale?
#include "tests/driver/Displayed.h"
#include "tests/driver/Picking.h"
#include "tests/driver/StartProgram.h"
#include "tests/driver/TwoColors.h"
#include "tests/driver/UiTest.h"

namespace {

const Color leftColor = Unpack(static_cast<PackedColor>(two_colors::left));
const Color rightColor = Unpack(static_cast<PackedColor>(two_colors::right));

/// The program, until the value ends.
class UnawareProgram {
public:
    UnawareProgram() {
        EXPECT_TRUE(Eventually([&] {
            window = ::FindWindowA(two_colors::className, nullptr);
            return window && Pixel(at(1, 4)) == leftColor && Pixel(at(3, 4)) == rightColor;
        })) << testing::PrintToString(Pixel(at(1, 4)));
    }
    UnawareProgram(const UnawareProgram&) = delete;
    UnawareProgram& operator=(const UnawareProgram&) = delete;
    ~UnawareProgram() {
        ::TerminateProcess(process.hProcess, 0);
        ::WaitForSingleObject(process.hProcess, INFINITE);
        ::CloseHandle(process.hThread);
        ::CloseHandle(process.hProcess);
    }

    /// Where it is on the screen, in the pixels of the display.
    RECT area() const { return AreaOf(window); }
    /// So many parts of its width from its left edge, half way down.
    POINT at(int part, int parts) const {
        const RECT all = area();
        return {all.left + part * (all.right - all.left) / parts, (all.top + all.bottom) / 2};
    }
    bool isAware() const {
        const DPI_AWARENESS_CONTEXT context = ::GetWindowDpiAwarenessContext(window);
        return ::GetAwarenessFromDpiAwarenessContext(context) != DPI_AWARENESS_UNAWARE;
    }

private:
    PROCESS_INFORMATION process = StartProgram(two_colors::program);
    HWND window = nullptr;
};

class UnawarePicking : public UiTest {
protected:
    /// Drags there; the preview and the display's own picture show the colour.
    static void expectPick(const Huevox& huevox, POINT place, const Color& color) {
        EXPECT_EQ(Displayed(place), color) << place.x << ' ' << place.y;
        DragTo(huevox, place, color);
    }
};

}  // namespace

TEST_F(UnawarePicking, TheSystemScalesTheWindowWhereItKnowsOfMonitors) {
    const UnawareProgram program;
    // An older Wine takes every program for one that knows of scaling.
    const bool isScaled = ::IsValidDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2) != FALSE;
    EXPECT_EQ(program.isAware(), !isScaled);
    const int dpi = isScaled ? static_cast<int>(::GetDpiForSystem()) : USER_DEFAULT_SCREEN_DPI;
    const RECT area = program.area();
    EXPECT_EQ(area.left, ::MulDiv(two_colors::place, dpi, USER_DEFAULT_SCREEN_DPI));
    EXPECT_EQ(area.right, ::MulDiv(two_colors::place + two_colors::width, dpi, USER_DEFAULT_SCREEN_DPI));
}

TEST_F(UnawarePicking, TakesThePixelsThatTheUserSees) {
    const UnawareProgram program;
    const Huevox huevox;
    TurnPickModeOn(huevox);
    Hold(huevox, Sample(huevox, 0));
    expectPick(huevox, program.at(1, 4), leftColor);
    expectPick(huevox, program.at(3, 4), rightColor);
    const POINT middle = program.at(1, 2);
    expectPick(huevox, {middle.x - 2, middle.y}, leftColor);
    expectPick(huevox, {middle.x + 2, middle.y}, rightColor);
    ReleaseButton({middle.x + 2, middle.y});
    EXPECT_BECOMES(huevox.sample(0), rightColor);
    EXPECT_BECOMES(ClipboardText(), "#FE0180");
}

/// Where a system that scales mixes colours, anew each time that it shows the window: what is seen is taken.
TEST_F(UnawarePicking, TakesThePixelsOfItsEdgesAndOfThoseBesideAsTheyAreSeen) {
    const UnawareProgram program;
    const Huevox huevox;
    const RECT area = program.area();
    const POINT middle = program.at(1, 2);
    ASSERT_NE(Displayed({area.right, middle.y}), rightColor);
    TurnPickModeOn(huevox);
    Hold(huevox, Sample(huevox, 0));
    Color seen{};
    for (const POINT place : {POINT{area.left, area.top},
                              {area.right - 1, area.bottom - 1},
                              {area.right, middle.y},
                              {middle.x - 1, middle.y},
                              middle}) {
        EXPECT_TRUE(Eventually([&] {
            MoveMouse(place);
            seen = Displayed(place);
            return Preview(huevox) == seen;
        })) << place.x
            << ' ' << place.y;
    }
    ReleaseButton(middle);
    EXPECT_BECOMES(huevox.sample(0), seen);
}
