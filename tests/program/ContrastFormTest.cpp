// How does the window of the marks' contrast paint, from inside?
#include <string>
#include <vector>

#include "pickers/ContrastPlaces.h"
#include "tests/program/FreeHandles.h"
#include "tests/program/InsideWindow.h"
#include "tests/program/MainWindowFixture.h"
#include "toolkit/platform/Fonts.h"

namespace {

constexpr COLORREF scribble = RGB(1, 2, 3);

class ContrastForm : public ShownMainWindow {
protected:
    void SetUp() override {
        ShownMainWindow::SetUp();
        command(IDM_mnuToolsContrast);
        ASSERT_TRUE(PumpUntil([&] { return ::IsWindowVisible(form()) != FALSE; }));
        // Where all of it is on the screen, and beside the main window's controls that the test changes.
        ::SetWindowPos(form(), HWND_TOP, 0, 0, 0, 0, SWP_NOSIZE);
        PumpAll();
    }

    static HWND form() { return ::FindWindowA("frmContrast", nullptr); }
    static HWND grid() { return ::GetDlgItem(form(), IDC_grdContrast); }

    static Area pixels(const Area& twips, int dpi) { return PixelsFromTwips(twips, dpi); }
    static int dpi() { return static_cast<int>(::GetDpiForWindow(form())); }

    /// A place of a cell where no text and no frame stand.
    static POINT quiet(int row, int column, int dpi = ContrastForm::dpi()) {
        const Area cell = pixels(ContrastCells()[std::size_t{6} * row + column], dpi);
        return {cell.right - 4, cell.bottom - 4};
    }

    static COLORREF seen(int row, int column) { return PixelIn(grid(), quiet(row, column)); }

    /// Paints over all of it behind the program's back.
    static void scribbleOver() {
        ::RedrawWindow(form(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        RECT all{};
        ::GetClientRect(grid(), &all);
        const HDC context = ::GetDC(grid());
        const HBRUSH brush = ::CreateSolidBrush(scribble);
        ::FillRect(context, &all, brush);
        ::DeleteObject(brush);
        ::ReleaseDC(grid(), context);
    }

    void setMark(int mark, const Color& color) const {
        ::SendMessageA(control(IDC_optColor + mark), BM_CLICK, 0, 0);
        scroll(IDC_hsbRed, color.red);
        scroll(IDC_hsbGreen, color.green);
        scroll(IDC_hsbBlue, color.blue);
        PumpAll();
    }
};

int WidthOf(const char* text, int dpi) {
    const HDC context = ::GetDC(nullptr);
    const HGDIOBJ before = ::SelectObject(context, MessageFont(dpi));
    SIZE size{};
    ::GetTextExtentPoint32A(context, text, static_cast<int>(std::string(text).size()), &size);
    ::SelectObject(context, before);
    ::ReleaseDC(nullptr, context);
    return size.cx;
}

}  // namespace

TEST_F(ContrastForm, AChangeOfAColorRepaintsItsRowAndColumnAlone) {
    scribbleOver();
    ASSERT_EQ(seen(0, 1), scribble);
    scroll(IDC_hsbBlue, 128);
    PumpAll();
    for (int row = 0; row < 6; ++row) {
        for (int column = 0; column < 6; ++column) {
            const bool isRepainted = row == 0 || column == 0;
            EXPECT_EQ(seen(row, column) != scribble, isRepainted) << row << ' ' << column;
        }
    }
    EXPECT_EQ(seen(3, 0), RGB(255, 0, 128));
    EXPECT_EQ(seen(0, 4), RGB(0, 0, 255));
}

TEST_F(ContrastForm, AChangeOfANameRepaintsItsRowAndColumnAlone) {
    scribbleOver();
    ::SetWindowTextA(control(IDC_txtName + 2), "grass");
    PumpAll();
    EXPECT_NE(seen(2, 5), scribble);
    EXPECT_NE(seen(5, 2), scribble);
    EXPECT_EQ(seen(3, 4), scribble);
    EXPECT_EQ(seen(0, 0), scribble);
}

TEST_F(ContrastForm, WhatChangesNothingRepaintsNothing) {
    scribbleOver();
    ::SendMessageA(control(IDC_optColor + 3), BM_CLICK, 0, 0);
    PumpAll();
    for (int mark = 0; mark < 6; ++mark) EXPECT_EQ(seen(mark, mark), scribble) << mark;
}

TEST_F(ContrastForm, ClosedItIsFilledAgainWhenItOpens) {
    ::SendMessageA(form(), WM_CLOSE, 0, 0);
    ASSERT_FALSE(form());
    setMark(1, ColorOf(10, 20, 30));
    command(IDM_mnuToolsContrast);
    ASSERT_TRUE(PumpUntil([&] { return ::IsWindowVisible(form()) != FALSE; }));
    ::SetWindowPos(form(), HWND_TOP, 0, 0, 0, 0, SWP_NOSIZE);
    EXPECT_TRUE(PumpUntil([&] { return seen(4, 1) == RGB(10, 20, 30); }));
}

TEST_F(ContrastForm, FollowsTheScalingOfItsMonitor) {
    for (const int dpi : {144, 192, 96}) {
        const RECT suggested = {0, 0, 100, 100};
        ::SendMessageA(form(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&suggested));
        ::RedrawWindow(form(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        EXPECT_EQ(PixelIn(grid(), quiet(1, 0, dpi)), RGB(255, 0, 0)) << dpi;
        EXPECT_EQ(PixelIn(grid(), quiet(5, 2, dpi)), RGB(0, 255, 0)) << dpi;
    }
}

TEST_F(ContrastForm, RatioAndGradeFitTheirPlaces) {
    const Area cell = pixels(ContrastCells().front(), dpi());
    const Area ratio = pixels(RatioPlace(ContrastCells().front()), dpi());
    const Area grade = pixels(GradePlace(ContrastCells().front()), dpi());
    EXPECT_LT(WidthOf("21.00", dpi()), ratio.right - cell.left - 1);
    EXPECT_LT(WidthOf("AA 18 pt", dpi()), cell.right - grade.left - 1);
}

TEST_F(ContrastForm, ChangesOfColorLeaveTheHandlesFlat) {
    const auto change = [&](int value) { scroll(IDC_hsbRed + value % 3, value * 7 % 256); };
    for (int value = 0; value < 100; ++value) change(value);
    const int before = FreeHandles();
    for (int value = 0; value < 250; ++value) change(value);
    EXPECT_EQ(FreeHandles(), before);
}
