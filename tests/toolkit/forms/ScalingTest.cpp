// A form that comes to a monitor of another scaling.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <utility>

#include "resources/resource.h"
#include "tests/toolkit/TestForm.h"
#include "toolkit/controls/ControlClasses.h"
#include "toolkit/forms/MessageLoop.h"
#include "toolkit/platform/WindowPlace.h"

namespace {

constexpr std::array<ToolButton, 2> scaledChoices = {
    {{IDM_firstChoice, IDI_Back, "first", true}, {IDM_secondChoice, IDI_Forward, "second", true}}};

class Scaling : public testing::Test {
protected:
    void SetUp() override {
        ForgetQuit();
        RegisterControlClasses();
    }
    void TearDown() override { Form::unloadAll(); }

    /// What Windows does when the user drags a window over. Wine leaves the frame as it was.
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

/// Where the form's tool tips look for the pointer over a part of a control.
RECT TipArea(const Form& form, const Control& control, UINT part) {
    HWND tips = nullptr;
    do {
        tips = ::FindWindowExA(nullptr, tips, TOOLTIPS_CLASSA, nullptr);
    } while (tips && ::GetWindow(tips, GW_OWNER) != form.handle());
    TTTOOLINFOA tool{};
    tool.cbSize = sizeof tool;
    tool.hwnd = control.handle();
    tool.uId = part;
    ::SendMessageA(tips, TTM_GETTOOLINFOA, 0, reinterpret_cast<LPARAM>(&tool));
    return tool.rect;
}

/// The first row of the first picture, and the one behind the last, in which anything is painted.
std::pair<int, int> PaintedRows(HIMAGELIST images, int size) {
    const HDC screen = ::GetDC(nullptr);
    const HDC memory = ::CreateCompatibleDC(screen);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, size, size);
    const HGDIOBJ previous = ::SelectObject(memory, bitmap);
    ::PatBlt(memory, 0, 0, size, size, WHITENESS);
    ::ImageList_Draw(images, 0, memory, 0, 0, ILD_NORMAL);
    std::pair<int, int> rows = {size, 0};
    for (int at = 0; at < size * size; ++at) {
        if (::GetPixel(memory, at % size, at / size) == RGB(255, 255, 255)) continue;
        rows.first = std::min(rows.first, at / size);
        rows.second = at / size + 1;
    }
    ::SelectObject(memory, previous);
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
    ::ReleaseDC(nullptr, screen);
    return rows;
}

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

TEST_F(Scaling, MarginsOfABoxFollow) {
    form.load();
    for (const auto& [dpi, margin] : {std::pair{192, 2}, std::pair{96, 1}}) {
        moveTo(form, dpi, {30, 40});
        EXPECT_EQ(::SendMessageA(form.txtTest(0).handle(), EM_GETMARGINS, 0, 0), MAKELONG(margin, margin));
    }
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

TEST_F(Scaling, TheTextOfABoxStaysInTheMiddle) {
    form.load();
    for (const int dpi : {144, 192, 96}) {
        moveTo(form, dpi, {10, 10});
        RECT line{};
        ::GetClientRect(form.txtTest(0).handle(), &line);
        ::MapWindowPoints(form.txtTest(0).handle(), form.handle(), reinterpret_cast<POINT*>(&line), 2);
        const RECT box = placeIn(form, form.txtTest(0));
        EXPECT_NEAR(line.top - box.top, box.bottom - line.bottom, 1) << dpi;
        EXPECT_GE(line.bottom - line.top, fontHeight(form.txtTest(0))) << dpi;
        EXPECT_LE(line.bottom - line.top, fontHeight(form.txtTest(0)) * 3 / 2) << dpi;
    }
}

TEST_F(Scaling, AnEdgeStaysOnePixelWideAroundItsControl) {
    form.load();
    for (const int dpi : {144, 192, 96}) {
        moveTo(form, dpi, {10, 10});
        const RECT strip = placeIn(form, form.cellTest);
        const RECT edge = placeIn(form, form.edgTest);
        EXPECT_EQ(strip.right - strip.left, form.scaled(100)) << dpi;
        EXPECT_EQ(strip.left - edge.left, 1) << dpi;
        EXPECT_EQ(edge.right - strip.right, 1) << dpi;
        EXPECT_EQ(strip.top - edge.top, 1) << dpi;
        EXPECT_EQ(edge.bottom - strip.bottom, 1) << dpi;
    }
}

TEST_F(Scaling, ToolTipsOfCellsFollow) {
    twips.cellTest.setPlaces({{0, 0, 1500, 750}});
    twips.load();
    twips.cellTest.setTips({"one"});
    // The first movement of the mouse over the form.
    ::SendMessageA(twips.handle(), WM_SETCURSOR, reinterpret_cast<WPARAM>(twips.handle()),
                   MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    for (const int dpi : {192, 96}) {
        moveTo(twips, dpi, {10, 10});
        const RECT area = TipArea(twips, twips.cellTest, 0);
        EXPECT_EQ(area.right, 100 * dpi / 96);
        EXPECT_EQ(area.bottom, 50 * dpi / 96);
    }
}

TEST_F(Scaling, ToolBarPicturesAreThoseOfTheScalingAndInTheMiddle) {
    twips.load();
    twips.tbrTest.fill(scaledChoices);
    for (const auto& [dpi, size] : {std::pair{144, 24}, std::pair{192, 32}, std::pair{96, 16}}) {
        moveTo(twips, dpi, {10, 10});
        const auto images =
            reinterpret_cast<HIMAGELIST>(::SendMessageA(twips.tbrTest.handle(), TB_GETIMAGELIST, 0, 0));
        EXPECT_EQ(::ImageList_GetImageCount(images), 2);
        int width = 0;
        int height = 0;
        ::ImageList_GetIconSize(images, &width, &height);
        EXPECT_EQ(height, twips.scaled(24) - 6);  // Windows leaves 3 pixels above it
        const auto [first, last] = PaintedRows(images, height);
        EXPECT_LE(last - first, size);
        EXPECT_GE(last - first, size * 3 / 4);
        EXPECT_NEAR(first + last, height, size / 8.0);
    }
}

TEST_F(Scaling, GapsOfAToolBarAreScaled) {
    constexpr std::array<ToolButton, 3> buttons = {{{IDM_firstChoice, IDI_Save, "first"},  //
                                                    {0, 0, ""},
                                                    {IDM_secondChoice, IDI_Find, "second"}}};
    twips.load();
    twips.tbrTest.fill(buttons);
    for (const auto& [dpi, gap] : {std::pair{144, 12}, std::pair{192, 16}, std::pair{96, 8}}) {
        moveTo(twips, dpi, {10, 10});
        RECT area{};
        ::SendMessageA(twips.tbrTest.handle(), TB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&area));
        EXPECT_EQ(area.right - area.left, gap);
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

TEST_F(Scaling, AMinimisedWindowHasItsPlaceAndSizeAgainAfterwards) {
    form.load();
    form.show(SW_SHOWNORMAL);
    const Area place = PlaceOf(form.handle());
    form.show(SW_SHOWMINIMIZED);
    ASSERT_TRUE(PumpUntil([&] { return ::IsIconic(form.handle()) != FALSE; }));
    form.activate();
    form.show(SW_RESTORE);
    EXPECT_TRUE(PumpUntil([&] { return !::IsIconic(form.handle()) && PlaceOf(form.handle()) == place; }));
}
