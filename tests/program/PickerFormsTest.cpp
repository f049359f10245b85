// The palette windows looked at from inside: at any scaling, and with a sort index that no setting can have.
#include <gtest/gtest.h>

#include "core/Color.h"
#include "mainwindow/frmMain.h"
#include "resources/resource.h"
#include "support/AppState.h"
#include "support/FatalError.h"
#include "tests/toolkit/TestForm.h"
#include "toolkit/controls/ControlClasses.h"
#include "toolkit/forms/MessageLoop.h"

namespace {

constexpr COLORREF white = 0xFFFFFF;
constexpr COLORREF black = 0;
constexpr COLORREF yellowgreen = RGB(0x9A, 0xCD, 0x32);

class PickerForms : public testing::Test {
protected:
    void SetUp() override {
        ForgetQuit();
        RegisterControlClasses();
        errorTrap = HandleFatalError;
        main.load();
    }
    void TearDown() override {
        state.settings.promptToSave = 0;
        main.unload();
    }

    HWND open(int button, const char* name) const {
        ::SendMessageA(::GetDlgItem(main.handle(), button), BM_CLICK, 0, 0);
        const HWND window = ::FindWindowA(name, nullptr);
        PumpUntil([&] { return ::IsWindowVisible(window); });
        return window;
    }
    HWND openJavaScript(int sortIndex) {
        state.settings.sortIndex = sortIndex;
        return open(IDC_cmdJavaScript, "frmJavaScript");
    }

    int pixels(int twips) const {
        return PixelsFromTwips(twips, static_cast<int>(::GetDpiForWindow(main.handle())));
    }

    Color sliders() const {
        const auto value = [&](int id) {
            return static_cast<int>(::SendMessageA(::GetDlgItem(main.handle(), id), SBM_GETPOS, 0, 0));
        };
        return ColorOf(value(IDC_hsbRed), value(IDC_hsbGreen), value(IDC_hsbBlue));
    }

    AppState state;
    frmMain main{state};
};

/// The colour of a pixel of the client area, after moving the window so that the pixel is on the screen. A
/// window that is activated for the first time moves itself once more.
COLORREF PixelOf(HWND window, int x, int y) {
    COLORREF color = CLR_INVALID;
    PumpUntil([&] {
        ::SetWindowPos(window, HWND_TOP, 100 - x, 100 - y, 0, 0, SWP_NOSIZE);
        PumpAll();
        ::SetFocus(nullptr);  // no frame around the cell that has it
        ::RedrawWindow(window, nullptr, nullptr,
                       RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        const HDC context = ::GetDC(window);
        color = ::GetPixel(context, x, y);
        ::ReleaseDC(window, context);
        return color != CLR_INVALID;
    });
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
    const HWND window = open(IDC_cmdWebsafe, "frmWebsafe");
    const int right = pixels(11'340) - 1;
    const int bottom = pixels(1'890) - 1;
    ExpectSize(window, right + 1, bottom + 1);
    EXPECT_EQ(PixelOf(window, 0, bottom), black);
    EXPECT_EQ(PixelOf(window, 0, 0), RGB(0, 0, 255));
    EXPECT_EQ(PixelOf(window, right, 0), white);
    EXPECT_EQ(PixelOf(window, right, bottom), RGB(255, 255, 0));
}

TEST_F(PickerForms, FailsafeIsFilledToItsEdges) {
    const HWND window = open(IDC_cmdFailsafe, "frmFailsafe");
    const int right = pixels(11'340) - 1;
    const int bottom = pixels(705) - 1;
    ExpectSize(window, right + 1, bottom + 1);
    EXPECT_EQ(PixelOf(window, 0, bottom), black);
    EXPECT_EQ(PixelOf(window, pixels(708) - 1, 0), black);
    EXPECT_EQ(PixelOf(window, pixels(708), 0), RGB(128, 0, 128));
    EXPECT_EQ(PixelOf(window, right, bottom), white);
}

TEST_F(PickerForms, JavaScriptIsFilledToItsEdgesBelowTheToolBar) {
    const HWND window = openJavaScript(0);
    const int right = pixels(1'750) - 1;
    const int bottom = pixels(5'420) - 1;
    ExpectSize(window, right + 1, bottom + 1);
    EXPECT_EQ(PixelOf(window, 0, pixels(420) - 1), white);
    EXPECT_EQ(PixelOf(window, 0, pixels(420)), RGB(0xF0, 0xF8, 0xFF));
    EXPECT_EQ(PixelOf(window, right, bottom), yellowgreen);
    EXPECT_EQ(PixelOf(window, 0, bottom), RGB(0x40, 0xE0, 0xD0));
    EXPECT_EQ(PixelOf(window, right, pixels(420)), RGB(0xFF, 0xE4, 0xC4));
}

TEST_F(PickerForms, TheToolBarFitsAboveTheSwatches) {
    const HWND window = openJavaScript(0);
    RECT button{};
    ::SendMessageA(::GetDlgItem(window, IDC_tbrSortTools), TB_GETRECT, IDM_DotNet,
                   reinterpret_cast<LPARAM>(&button));
    ::MapWindowPoints(::GetDlgItem(window, IDC_tbrSortTools), window, reinterpret_cast<POINT*>(&button), 2);
    EXPECT_LE(button.right, pixels(1'750));
    EXPECT_LE(button.bottom, pixels(420));
    EXPECT_GT(button.right, button.left);
}

TEST_F(PickerForms, ASortIndexOfNeitherOrderFillsNothingAndPressesNoButton) {
    for (const int sortIndex : {-1, 2}) {
        const HWND window = openJavaScript(sortIndex);
        EXPECT_FALSE(IsPressed(window, IDM_Alphabetically));
        EXPECT_FALSE(IsPressed(window, IDM_DotNet));
        EXPECT_EQ(PixelOf(window, 1, pixels(420) + 1), white);
        EXPECT_EQ(PixelOf(window, pixels(1'750) - 2, pixels(5'420) - 2), white);
        // While the first button is not pressed, a press takes the second order.
        Press(window, IDC_lblJavaScriptColor);
        EXPECT_EQ(sliders(), ColorOf(0, 0, 0));
        ::SendMessageA(window, WM_CLOSE, 0, 0);
    }
}

TEST_F(PickerForms, ASwatchIsTakenFromTheOrderOfTheToolBarNotOfTheLastFill) {
    const HWND window = openJavaScript(0);
    ::SendMessageA(window, WM_COMMAND, IDM_DotNet, 0);
    EXPECT_EQ(PixelOf(window, 1, pixels(420) + 1), black);
    EXPECT_TRUE(IsPressed(window, IDM_Alphabetically));
    Press(window, IDC_lblJavaScriptColor);
    EXPECT_EQ(sliders(), ColorOf(0xF0, 0xF8, 0xFF));
}

TEST_F(PickerForms, AnyOtherCommandChangesNothing) {
    const HWND window = openJavaScript(1);
    ::SendMessageA(window, WM_COMMAND, IDM_mnuEditCopyColor, 0);
    ::SendMessageA(window, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(PixelOf(window, 1, pixels(420) + 1), black);
    EXPECT_TRUE(IsPressed(window, IDM_DotNet));
}

TEST_F(PickerForms, OneThatIsOpenedWhileAMessageWaitsTakesInputAfterwards) {
    ::EnableWindow(main.handle(), FALSE);
    const HWND window = open(IDC_cmdFailsafe, "frmFailsafe");
    EXPECT_FALSE(::IsWindowEnabled(window));
    const Color before = sliders();
    Press(window, IDC_lblFailsafeColor);
    EXPECT_EQ(sliders(), before);
    ::EnableWindow(main.handle(), TRUE);
    Press(window, IDC_lblFailsafeColor);
    EXPECT_EQ(sliders(), ColorOf(0, 0, 0));
}

TEST_F(PickerForms, GoWithEveryOtherWindowAtAnError) {
    open(IDC_cmdWebsafe, "frmWebsafe");
    openJavaScript(0);
    state.settings.promptToSave = 0;
    Form::unloadAll();
    EXPECT_FALSE(::FindWindowA("frmWebsafe", nullptr));
    EXPECT_FALSE(::FindWindowA("frmJavaScript", nullptr));
    EXPECT_FALSE(main.handle());
}
