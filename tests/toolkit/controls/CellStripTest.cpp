// Many colours in one window: where they stand, what they paint, and what is left of them by a new window.
#include "toolkit/controls/CellStrip.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "tests/driver/Input.h"
#include "tests/driver/WindowText.h"
#include "tests/toolkit/FormFixture.h"

namespace {

constexpr COLORREF red = 0x0000FF;
constexpr COLORREF green = 0x00FF00;
constexpr std::array<PackedColor, 2> redAndGreen = {red, green};

/// 100 by 20 pixels at 96 DPI.
const std::vector<Area> overlapping = {{0, 0, 900, 300}, {750, 0, 1500, 300}};

/// The text of the tool tip that is on the screen.
std::string ShownTip() {
    const HWND tip = ::FindWindowA(TOOLTIPS_CLASSA, nullptr);
    return tip && ::IsWindowVisible(tip) ? TextOf(tip) : "";
}

class CellStripTest : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        form.cellTest.setPlaces(overlapping);
    }
    void TearDown() override { form.unload(); }

    /// Moves the mouse there from elsewhere, once no tip is shown.
    void hover(int x) {
        MoveMouse({1, 1});
        ASSERT_TRUE(PumpUntil([] { return ShownTip().empty(); }));
        MoveMouse(OnScreen(form.cellTest.handle(), {x, 4}));
        MoveMouse(OnScreen(form.cellTest.handle(), {x, 5}));
    }

    COLORREF pixel(int x) {
        ::UpdateWindow(form.cellTest.handle());
        const HDC context = ::GetDC(form.cellTest.handle());
        const COLORREF color = ::GetPixel(context, x, form.scaled(10));
        ::ReleaseDC(form.cellTest.handle(), context);
        return color;
    }
};

}  // namespace

TEST_F(CellStripTest, PaintsAllCellsInOnePaint) {
    show();
    form.cellTest.setColors(redAndGreen);
    EXPECT_TRUE(::GetUpdateRect(form.cellTest.handle(), nullptr, FALSE));
    ::UpdateWindow(form.cellTest.handle());
    EXPECT_FALSE(::GetUpdateRect(form.cellTest.handle(), nullptr, FALSE));
    EXPECT_EQ(pixel(1), red);
    EXPECT_EQ(pixel(form.scaled(50) - 1), red);
    EXPECT_EQ(pixel(form.scaled(50)), green);
    EXPECT_EQ(pixel(form.scaled(100) - 1), green);
    form.cellTest.setColors(redAndGreen);
    EXPECT_FALSE(::GetUpdateRect(form.cellTest.handle(), nullptr, FALSE));
}

TEST_F(CellStripTest, OfCellsThatOverlapTheLaterIsPressed) {
    std::vector<std::pair<int, int>> presses;
    form.cellTest.MouseDown.bind([&](int cell, int button) { presses.emplace_back(cell, button); });
    show();
    for (const int x : {form.scaled(50) - 1, form.scaled(50)})
        ::SendMessageA(form.cellTest.handle(), WM_RBUTTONDOWN, 0, MAKELPARAM(x, 5));
    EXPECT_EQ(presses, (std::vector<std::pair<int, int>>{{0, 2}, {1, 2}}));
}

TEST_F(CellStripTest, OfCellsThatOverlapTheLatersTipIsShown) {
    show();
    form.cellTest.setTips({"first", "second"});
    hover(form.scaled(50) - 1);
    EXPECT_TRUE(PumpUntil([] { return ShownTip() == "first"; })) << ShownTip();
    hover(form.scaled(50));
    EXPECT_TRUE(PumpUntil([] { return ShownTip() == "second"; })) << ShownTip();
}

TEST_F(CellStripTest, ATipFollowsChangesWhileItIsShown) {
    show();
    form.cellTest.setTips({"first", "second"});
    hover(form.scaled(50));
    ASSERT_TRUE(PumpUntil([] { return ShownTip() == "second"; })) << ShownTip();
    form.cellTest.setTips({"other", "second"});
    EXPECT_EQ(ShownTip(), "second");
    form.cellTest.setTips({"other", "changed"});
    EXPECT_EQ(ShownTip(), "changed");
    hover(form.scaled(50));
    EXPECT_TRUE(PumpUntil([] { return ShownTip() == "changed"; })) << ShownTip();
    form.cellTest.setTips({"other", ""});
    EXPECT_EQ(ShownTip(), "");
}

TEST_F(CellStripTest, ANewWindowHasNoColorsAndShowsTheFormsBackground) {
    show();
    form.cellTest.setColors(redAndGreen);
    EXPECT_EQ(pixel(1), red);
    form.unload();
    show();
    EXPECT_EQ(pixel(1), ::GetSysColor(COLOR_BTNFACE));
    form.cellTest.setColors(redAndGreen);
    EXPECT_EQ(pixel(1), red);
}

TEST_F(CellStripTest, WithoutColorsShowsTheBackgroundThatTheFormHasBeenGiven) {
    form.setBackground(COLOR_WINDOW);
    show();
    EXPECT_EQ(pixel(1), ::GetSysColor(COLOR_WINDOW));
}
