// How do the palette windows look from inside, at any scaling, and with a sort index that no setting can
// have?
#include <utility>

#include "core/Color.h"
#include "tests/program/InsideWindow.h"
#include "tests/program/MainWindowFixture.h"
#include "toolkit/platform/WindowPlace.h"

namespace {

constexpr COLORREF white = 0xFFFFFF;
constexpr COLORREF black = 0;
constexpr COLORREF yellowgreen = RGB(0x9A, 0xCD, 0x32);

class PickerForms : public LoadedMainWindow {
protected:
    HWND open(int button, const char* name) const {
        click(button);
        const HWND picker = ::FindWindowA(name, nullptr);
        EXPECT_TRUE(PumpUntil([&] { return ::IsWindowVisible(picker); })) << name;
        return picker;
    }
    HWND openJavaScript(int sortIndex) {
        state.settings.sortIndex = sortIndex;
        return open(IDC_cmdJavaScript, "frmJavaScript");
    }

    int pixels(int twips) const {
        return PixelsFromTwips(twips, static_cast<int>(::GetDpiForWindow(window.handle())));
    }

    Color sliders() const {
        const auto value = [&](int id) {
            return static_cast<int>(::SendMessageA(control(id), SBM_GETPOS, 0, 0));
        };
        return ColorOf(value(IDC_hsbRed), value(IDC_hsbGreen), value(IDC_hsbBlue));
    }
};

/// The colour of a pixel of the client area, after moving the window so that the pixel is on the screen. A
/// window that is activated for the first time moves itself once more.
COLORREF PixelOf(HWND window, int x, int y) {
    COLORREF color = CLR_INVALID;
    EXPECT_TRUE(PumpUntil([&] {
        ::SetWindowPos(window, HWND_TOP, 100 - x, 100 - y, 0, 0, SWP_NOSIZE);
        PumpAll();
        ::SetFocus(nullptr);  // no frame around the cell that has it
        ::RedrawWindow(window, nullptr, nullptr,
                       RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        color = PixelIn(window, {x, y});
        return color != CLR_INVALID;
    }));
    return color;
}

void Press(HWND window, int id) {
    ::SendMessageA(::GetDlgItem(window, id), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 1));
    ::SendMessageA(::GetDlgItem(window, id), WM_LBUTTONUP, 0, MAKELPARAM(1, 1));
}

bool IsPressed(HWND window, int command) {
    return ::SendMessageA(::GetDlgItem(window, IDC_tbrSortTools), TB_ISBUTTONCHECKED, command, 0) != 0;
}

void ExpectSize(HWND window, int width, int height) {
    RECT client{};
    ::GetClientRect(window, &client);
    EXPECT_EQ(client.right, width);
    EXPECT_EQ(client.bottom, height);
}

}  // namespace

TEST_F(PickerForms, WebsafeIsFilledToItsEdges) {
    const HWND picker = open(IDC_cmdWebsafe, "frmWebsafe");
    const int right = pixels(11'340) - 1;
    const int bottom = pixels(1'890) - 1;
    ExpectSize(picker, right + 1, bottom + 1);
    EXPECT_EQ(PixelOf(picker, 0, bottom), black);
    EXPECT_EQ(PixelOf(picker, 0, 0), RGB(0, 0, 255));
    EXPECT_EQ(PixelOf(picker, right, 0), white);
    EXPECT_EQ(PixelOf(picker, right, bottom), RGB(255, 255, 0));
}

TEST_F(PickerForms, FailsafeIsFilledToItsEdges) {
    const HWND picker = open(IDC_cmdFailsafe, "frmFailsafe");
    const int right = pixels(11'340) - 1;
    const int bottom = pixels(705) - 1;
    ExpectSize(picker, right + 1, bottom + 1);
    EXPECT_EQ(PixelOf(picker, 0, bottom), black);
    EXPECT_EQ(PixelOf(picker, pixels(708) - 1, 0), black);
    EXPECT_EQ(PixelOf(picker, pixels(708), 0), RGB(128, 0, 128));
    EXPECT_EQ(PixelOf(picker, right, bottom), white);
}

TEST_F(PickerForms, JavaScriptIsFilledToItsEdgesBelowTheToolBar) {
    const HWND picker = openJavaScript(0);
    const int right = pixels(1'750) - 1;
    const int bottom = pixels(5'420) - 1;
    ExpectSize(picker, right + 1, bottom + 1);
    EXPECT_EQ(PixelOf(picker, 0, pixels(420) - 1), white);
    EXPECT_EQ(PixelOf(picker, 0, pixels(420)), RGB(0xF0, 0xF8, 0xFF));
    EXPECT_EQ(PixelOf(picker, right, bottom), yellowgreen);
    EXPECT_EQ(PixelOf(picker, 0, bottom), RGB(0x40, 0xE0, 0xD0));
    EXPECT_EQ(PixelOf(picker, right, pixels(420)), RGB(0xFF, 0xE4, 0xC4));
}

TEST_F(PickerForms, NoneIsWidenedOrCutOffWhenItIsMoved) {
    for (const auto& [button, name] : {std::pair{IDC_cmdWebsafe, "frmWebsafe"},
                                       {IDC_cmdFailsafe, "frmFailsafe"},
                                       {IDC_cmdJavaScript, "frmJavaScript"}}) {
        const HWND picker = open(button, name);
        const Area place = PlaceOf(picker);
        MINMAXINFO limits{};
        limits.ptMinTrackSize = {::GetSystemMetrics(SM_CXMINTRACK), ::GetSystemMetrics(SM_CYMINTRACK)};
        ::SendMessageA(picker, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
        EXPECT_EQ(limits.ptMinTrackSize.x, place.width()) << name;
        EXPECT_EQ(limits.ptMinTrackSize.y, place.height()) << name;
        // Windows asks for the limits here, as it does while the user drags.
        ::SetWindowPos(picker, nullptr, 10, 10, place.width(), place.height(), SWP_NOZORDER | SWP_NOACTIVATE);
        EXPECT_EQ(PlaceOf(picker).width(), place.width()) << name;
        EXPECT_EQ(PlaceOf(picker).height(), place.height()) << name;
    }
}

TEST_F(PickerForms, TheToolBarFitsAboveTheSwatches) {
    const HWND picker = openJavaScript(0);
    RECT button{};
    ::SendMessageA(::GetDlgItem(picker, IDC_tbrSortTools), TB_GETRECT, IDM_DotNet,
                   reinterpret_cast<LPARAM>(&button));
    ::MapWindowPoints(::GetDlgItem(picker, IDC_tbrSortTools), picker, reinterpret_cast<POINT*>(&button), 2);
    EXPECT_LE(button.right, pixels(1'750));
    EXPECT_LE(button.bottom, pixels(420));
    EXPECT_GT(button.right, button.left);
}

TEST_F(PickerForms, ASortIndexOfNeitherOrderFillsNothingAndPressesNoButton) {
    for (const int sortIndex : {-1, 2}) {
        const HWND picker = openJavaScript(sortIndex);
        EXPECT_FALSE(IsPressed(picker, IDM_Alphabetically));
        EXPECT_FALSE(IsPressed(picker, IDM_DotNet));
        EXPECT_EQ(PixelOf(picker, 1, pixels(420) + 1), white);
        EXPECT_EQ(PixelOf(picker, pixels(1'750) - 2, pixels(5'420) - 2), white);
        // While the first button is not pressed, a press takes the second order.
        Press(picker, IDC_lblJavaScriptColor);
        EXPECT_EQ(sliders(), ColorOf(0, 0, 0));
        ::SendMessageA(picker, WM_CLOSE, 0, 0);
    }
}

TEST_F(PickerForms, ASwatchIsTakenFromTheOrderOfTheToolBarNotOfTheLastFill) {
    const HWND picker = openJavaScript(0);
    ::SendMessageA(picker, WM_COMMAND, IDM_DotNet, 0);
    EXPECT_EQ(PixelOf(picker, 1, pixels(420) + 1), black);
    EXPECT_TRUE(IsPressed(picker, IDM_Alphabetically));
    Press(picker, IDC_lblJavaScriptColor);
    EXPECT_EQ(sliders(), ColorOf(0xF0, 0xF8, 0xFF));
}

TEST_F(PickerForms, AnyOtherCommandChangesNothing) {
    const HWND picker = openJavaScript(1);
    ::SendMessageA(picker, WM_COMMAND, IDM_mnuEditCopyColor, 0);
    ::SendMessageA(picker, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(PixelOf(picker, 1, pixels(420) + 1), black);
    EXPECT_TRUE(IsPressed(picker, IDM_DotNet));
}

TEST_F(PickerForms, OneThatIsOpenedWhileAMessageWaitsTakesInputAfterwards) {
    ::EnableWindow(window.handle(), FALSE);
    const HWND picker = open(IDC_cmdFailsafe, "frmFailsafe");
    EXPECT_FALSE(::IsWindowEnabled(picker));
    const Color before = sliders();
    Press(picker, IDC_lblFailsafeColor);
    EXPECT_EQ(sliders(), before);
    ::EnableWindow(window.handle(), TRUE);
    Press(picker, IDC_lblFailsafeColor);
    EXPECT_EQ(sliders(), ColorOf(0, 0, 0));
}

TEST_F(PickerForms, GoWithEveryOtherWindowAtAnError) {
    open(IDC_cmdWebsafe, "frmWebsafe");
    openJavaScript(0);
    state.settings.promptToSave = 0;
    Form::unloadAll();
    EXPECT_FALSE(::FindWindowA("frmWebsafe", nullptr));
    EXPECT_FALSE(::FindWindowA("frmJavaScript", nullptr));
    EXPECT_FALSE(window.handle());
}
