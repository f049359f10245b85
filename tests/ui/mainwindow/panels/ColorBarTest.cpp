// How does a click on the bar choose a colour, and where does each step stand?
#include <array>
#include <vector>

#include "tests/driver/UiTest.h"
#include "tests/ui/mainwindow/Scaled.h"

namespace {

class ColorBarClicks : public UiTest {};

constexpr SIZE barSize = {734, 20};  // in pixels at 96 DPI
constexpr int stepWidth = 3;

/// The bar's steps on the screen: its window, which the edge surrounds.
RECT StepsOf(const Huevox& huevox) {
    RECT steps{};
    ::GetWindowRect(huevox.control(IDC_lblColorBar), &steps);
    return steps;
}

void ExpectAllOf(const RECT& area, const Color& color) {
    EXPECT_BECOMES(PixelsOf(area), std::vector(PixelsOf(area).size(), color));
}

/// Pixels so far outside the steps, at the left, right, top and bottom.
std::array<Color, 4> Around(const Huevox& huevox, int distance) {
    const RECT steps = StepsOf(huevox);
    const LONG column = steps.left + 100;
    const LONG row = steps.top + 10;
    return {Pixel({steps.left - distance, row}), Pixel({steps.right - 1 + distance, row}),
            Pixel({column, steps.top - distance}), Pixel({column, steps.bottom - 1 + distance})};
}

std::array<Color, 4> AllOf(int systemColor) {
    std::array<Color, 4> same{};
    same.fill(Unpack(static_cast<PackedColor>(::GetSysColor(systemColor))));
    return same;
}

}  // namespace

TEST_F(ColorBarClicks, AStepBecomesTheCurrentColor) {
    const Huevox huevox;
    Click(huevox.barStepPlace(100));
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 100, 100));
    EXPECT_BECOMES(huevox.sample(0), ColorOf(255, 100, 100));
    EXPECT_EQ(huevox.text(IDC_txtSetBlue), "100");
    EXPECT_BECOMES(ClipboardText(), "#FF6464");
}

TEST_F(ColorBarClicks, TheRampStaysUnderThePointerWhenNoChannelIsLimited) {
    const Huevox huevox;
    SetColor(huevox, ColorOf(100, 150, 200));
    Click(huevox.barStepPlace(60));
    ASSERT_BECOMES(huevox.sliders(), ColorOf(60, 110, 160));
    EXPECT_BECOMES(huevox.barStep(0), ColorOf(0, 50, 100));
    EXPECT_BECOMES(huevox.barStep(60), ColorOf(60, 110, 160));
    EXPECT_BECOMES(huevox.barStep(100), ColorOf(100, 150, 200));
    EXPECT_BECOMES(huevox.barStep(155), ColorOf(155, 205, 255));
    EXPECT_BECOMES(huevox.barStep(200), ColorOf(200, 250, 255));
    EXPECT_BECOMES(huevox.barStep(255), ColorOf(255, 255, 255));
}

TEST_F(ColorBarClicks, EveryStepCanBeClicked) {
    const Huevox huevox;
    for (int step = 0; step < 256; ++step) {
        Click(huevox.barStepPlace(step));
        ASSERT_BECOMES(huevox.sliders(), ColorOf(255, step, step));
    }
    EXPECT_BECOMES(huevox.sample(0), ColorOf(255, 255, 255));
}

TEST_F(ColorBarClicks, TheStepOfTheCurrentColorChangesNothing) {
    const Huevox huevox;
    huevox.retype(Name(0), "signal");
    Click(huevox.barStepPlace(0));
    Click(huevox.barStepPlace(0));
    // The input behind the clicks has arrived when this has.
    huevox.selectMark(1);
    EXPECT_BECOMES(huevox.backColor(Name(0)), white);
    EXPECT_BECOMES(huevox.sample(0), ColorOf(255, 0, 0));
}

TEST_F(ColorBarClicks, HighlightTheNameAsTheSlidersDo) {
    const Huevox huevox;
    huevox.retype(Name(0), "signal");
    Click(huevox.barStepPlace(20));
    EXPECT_BECOMES(huevox.backColor(Name(0)), highlight);
}

TEST_F(ColorBarClicks, AnEdgeOutsideTheStepsTellsTheBarFromTheWindow) {
    const Huevox huevox;
    EXPECT_BECOMES(Around(huevox, 1), AllOf(COLOR_3DSHADOW));
    EXPECT_BECOMES(Around(huevox, 2), AllOf(COLOR_BTNFACE));
}

TEST_F(ColorBarClicks, TheFirstAndTheLastStepAreSeenWholeAndTakenAtTheirOutermostPixels) {
    const Huevox huevox;
    const HWND bar = huevox.control(IDC_lblColorBar);
    const RECT steps = StepsOf(huevox);
    EXPECT_EQ(steps.right - steps.left, Scaled(bar, barSize.cx));
    EXPECT_EQ(steps.bottom - steps.top, Scaled(bar, barSize.cy));
    SetColor(huevox, ColorOf(100, 150, 200));
    const LONG firstEnd = steps.left + Scaled(bar, stepWidth);
    const LONG lastBegin = steps.left + Scaled(bar, barSize.cx - stepWidth);
    ExpectAllOf({steps.left, steps.top, firstEnd, steps.bottom}, ColorOf(0, 50, 100));
    ExpectAllOf({lastBegin, steps.top, steps.right, steps.bottom}, ColorOf(255, 255, 255));
    Click({steps.left, steps.top});
    EXPECT_BECOMES(huevox.sliders(), ColorOf(0, 50, 100));
    Click({steps.right - 1, steps.bottom - 1});
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 255, 255));
}

TEST_F(ColorBarClicks, OnlyTheLeftButtonReleasedOnTheBarCounts) {
    const Huevox huevox;
    RightClick(huevox.barStepPlace(100));
    PressButton(huevox.barStepPlace(100));
    ReleaseButton(CenterOf(huevox.control(IDC_frmSet)));
    huevox.selectMark(1);
    EXPECT_BECOMES(huevox.sample(0), ColorOf(255, 0, 0));
}

TEST_F(ColorBarClicks, APressElsewhereThatIsReleasedOnTheBarIsNone) {
    const Huevox huevox;
    const POINT elsewhere = CenterOf(huevox.control(IDC_frmSet));
    Click(huevox.barStepPlace(100));
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 100, 100));
    PressButton(huevox.barStepPlace(50));
    ReleaseButton(elsewhere);
    PressButton(elsewhere);
    ReleaseButton(huevox.barStepPlace(200));
    huevox.selectMark(1);  // the input behind all that
    EXPECT_BECOMES(huevox.sample(0), ColorOf(255, 100, 100));
}
