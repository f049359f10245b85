// A form that comes to a monitor of another scaling.
#include <gtest/gtest.h>

#include <array>
#include <utility>

#include "resources/resource.h"
#include "tests/toolkit/TestForm.h"
#include "toolkit/Pump.h"
#include "toolkit/WindowPlace.h"

namespace {

constexpr std::array<ToolButton, 2> scaledChoices = {
    {{IDM_firstChoice, IDI_Back, "first", true}, {IDM_secondChoice, IDI_Forward, "second", true}}};

class Scaling : public testing::Test {
protected:
    void SetUp() override {
        ForgetQuit();
        PrepareControls();
    }
    void TearDown() override { Form::unloadAll(); }

    /// What the platform does when the user drags a window over. Wine leaves the frame as it was.
    static void moveTo(const Form& form, int dpi, POINT corner) {
        SIZE size{};
        EXPECT_TRUE(::SendMessageA(form.handle(), WM_GETDPISCALEDSIZE, dpi, reinterpret_cast<LPARAM>(&size)));
        RECT suggested = {corner.x, corner.y, corner.x + size.cx, corner.y + size.cy};
        ::SendMessageA(form.handle(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                       reinterpret_cast<LPARAM>(&suggested));
        const Area place = PlaceOf(form.handle());
        EXPECT_EQ(place.left, corner.x);
        EXPECT_EQ(place.top, corner.y);
    }
    static SIZE clientSize(const Form& form) {
        RECT client{};
        ::GetClientRect(form.handle(), &client);
        return {client.right, client.bottom};
    }
    static RECT placeIn(const Form& form, const Control& control) {
        RECT place{};
        ::GetWindowRect(control.handle(), &place);
        ::MapWindowPoints(nullptr, form.handle(), reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
    static int fontHeight(const Control& control) {
        LOGFONTA font{};
        ::GetObjectA(reinterpret_cast<HFONT>(::SendMessageA(control.handle(), WM_GETFONT, 0, 0)), sizeof font,
                     &font);
        return static_cast<int>(-font.lfHeight);
    }

    TestForm form;
    TwipsForm twips;
};

}  // namespace

TEST_F(Scaling, WindowControlsAndFontsFollow) {
    form.load();
    moveTo(form, 144, {30, 40});
    EXPECT_EQ(clientSize(form).cx, 600);
    EXPECT_EQ(clientSize(form).cy, 450);
    const RECT box = placeIn(form, form.txtTest(1));
    EXPECT_EQ(box.left, 210);
    EXPECT_EQ(box.right, 390);
    EXPECT_EQ(box.bottom, 95);
    EXPECT_EQ(placeIn(form, form.picTest).left, 315);
    EXPECT_EQ(fontHeight(form.txtTest(0)), 18);
    EXPECT_EQ(form.scaled(10), 15);
}

TEST_F(Scaling, BackAgainIsAsBefore) {
    form.load();
    const SIZE size = clientSize(form);
    const RECT box = placeIn(form, form.txtTest(1));
    const int height = fontHeight(form.txtTest(1));
    const auto dpi = static_cast<int>(::GetDpiForWindow(form.handle()));
    moveTo(form, 192, {0, 0});
    EXPECT_NE(clientSize(form).cx, size.cx);
    moveTo(form, dpi, {0, 0});
    EXPECT_EQ(clientSize(form).cx, size.cx);
    EXPECT_EQ(clientSize(form).cy, size.cy);
    const RECT again = placeIn(form, form.txtTest(1));
    EXPECT_TRUE(::EqualRect(&again, &box));
    EXPECT_EQ(fontHeight(form.txtTest(1)), height);
}

TEST_F(Scaling, CellsMeetAndEndWithTheWindowAtEveryScaling) {
    twips.load();
    for (const int dpi : {120, 144, 192, 96}) {
        moveTo(twips, dpi, {10, 10});
        const SIZE client = clientSize(twips);
        const RECT strip = placeIn(twips, twips.cellTest);
        EXPECT_EQ(strip.bottom, client.cy);
        EXPECT_EQ(strip.right, client.cx);
        EXPECT_EQ(client.cx, twips.scaled(Area{0, 0, 1750, 5420}).right);
    }
}

TEST_F(Scaling, ToolBarPicturesAreThoseOfTheScaling) {
    twips.load();
    twips.tbrTest.fill(scaledChoices);
    for (const auto& [dpi, size] : {std::pair{144, 24}, std::pair{192, 32}, std::pair{96, 16}}) {
        moveTo(twips, dpi, {10, 10});
        const auto images =
            reinterpret_cast<HIMAGELIST>(::SendMessageA(twips.tbrTest.handle(), TB_GETIMAGELIST, 0, 0));
        int width = 0;
        int height = 0;
        ::ImageList_GetIconSize(images, &width, &height);
        EXPECT_EQ(width, size);
        EXPECT_EQ(::ImageList_GetImageCount(images), 2);
    }
}

TEST_F(Scaling, AWindowThatSomebodyElseHasGivenAnotherSizeHasItsOwnAgainWhenItIsActivated) {
    form.load();
    const SIZE size = clientSize(form);
    ::SetWindowPos(form.handle(), nullptr, 0, 0, 700, 200, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    form.activate();
    EXPECT_EQ(clientSize(form).cx, size.cx);
    EXPECT_EQ(clientSize(form).cy, size.cy);
}
