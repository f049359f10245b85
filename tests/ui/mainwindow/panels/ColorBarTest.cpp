// How does a click on the bar choose a colour?
#include "tests/driver/UiTest.h"

namespace {

class ColorBarClicks : public UiTest {};

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
    EXPECT_EQ(huevox.backColor(Name(0)), white);
    EXPECT_EQ(huevox.sample(0), ColorOf(255, 0, 0));
}

TEST_F(ColorBarClicks, HighlightTheNameAsTheSlidersDo) {
    const Huevox huevox;
    huevox.retype(Name(0), "signal");
    Click(huevox.barStepPlace(20));
    EXPECT_BECOMES(huevox.backColor(Name(0)), highlight);
}

TEST_F(ColorBarClicks, AnEdgeTellsTheBarFromTheWindow) {
    const Huevox huevox;
    const HWND bar = huevox.control(IDC_lblColorBar);
    RECT area{};
    ::GetClientRect(bar, &area);
    const Color edge = Unpack(static_cast<PackedColor>(::GetSysColor(COLOR_3DSHADOW)));
    for (const POINT place :
         {POINT{0, 10}, POINT{area.right - 1, 10}, POINT{100, 0}, POINT{100, area.bottom - 1}})
        EXPECT_BECOMES(Pixel(OnScreen(bar, place)), edge) << place.x << ' ' << place.y;
}

TEST_F(ColorBarClicks, OnlyTheLeftButtonReleasedOnTheBarCounts) {
    const Huevox huevox;
    RightClick(huevox.barStepPlace(100));
    PressButton(huevox.barStepPlace(100));
    ReleaseButton(CenterOf(huevox.control(IDC_frmSet)));
    huevox.selectMark(1);
    EXPECT_EQ(huevox.sample(0), ColorOf(255, 0, 0));
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
    EXPECT_EQ(huevox.sample(0), ColorOf(255, 100, 100));
}
