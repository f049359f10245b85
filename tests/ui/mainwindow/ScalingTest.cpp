// Is the program as aware of the display's scaling as it says, and does all of it follow? Run at several
// scalings.
#include <cstdlib>
#include <string>
#include <tuple>

#include "tests/driver/AboutBox.h"
#include "tests/driver/FormatDialog.h"
#include "tests/driver/OptionsDialog.h"
#include "tests/driver/PickerWindow.h"
#include "tests/driver/RemoteCall.h"
#include "tests/driver/Tips.h"
#include "tests/driver/UiTest.h"
#include "tests/ui/mainwindow/Scaled.h"

namespace {

class Scaling : public UiTest {};

/// What the desktop was asked to have, or what the user's own has.
UINT DesktopsDpi() {
    const char* dpi = std::getenv("HUEVOX_DPI");
    return dpi ? std::stoul(dpi) : ::GetDpiForSystem();
}

/// The awareness of a window's process. Not every system that knows per-monitor awareness in its second
/// version tells it by the window; a thread of that process always does.
DPI_AWARENESS_CONTEXT AwarenessOfProcess(HWND window) {
    const DWORD answer = ProcessOf(window).call("user32", "GetThreadDpiAwarenessContext");
    return reinterpret_cast<DPI_AWARENESS_CONTEXT>(static_cast<LONG_PTR>(static_cast<LONG>(answer)));
}

struct WholeWindow {
    RECT parent;
    UINT dpi;
    int count;
};

bool IsLine(HWND control) {
    return ClassOf(control) == "Static" &&
           (::GetWindowLongA(control, GWL_STYLE) & SS_TYPEMASK) == SS_ETCHEDHORZ;
}

BOOL CALLBACK ExpectInside(HWND control, LPARAM parameter) {
    if (IsLine(control)) return TRUE;  // the system makes it two pixels longer than it was asked to
    auto& inside = *reinterpret_cast<WholeWindow*>(parameter);
    RECT place{};
    ::GetWindowRect(control, &place);
    // Not by intersection: some that are only read aloud have no size.
    EXPECT_TRUE(place.left >= inside.parent.left && place.right <= inside.parent.right &&
                place.top >= inside.parent.top && place.bottom <= inside.parent.bottom)
        << ClassOf(control) << ' ' << ::GetDlgCtrlID(control) << " at " << place.left << ' ' << place.top
        << ' ' << place.right << ' ' << place.bottom;
    EXPECT_EQ(::GetDpiForWindow(control), inside.dpi);
    ++inside.count;
    return TRUE;
}

/// The window is on the screen, and all that stands in it is inside.
void ExpectWhole(HWND window, int fewestControls) {
    RECT place{};
    ::GetWindowRect(window, &place);
    EXPECT_GE(place.left, 0);
    EXPECT_GE(place.top, 0);
    EXPECT_LE(place.right, ::GetSystemMetrics(SM_CXSCREEN));
    EXPECT_LE(place.bottom, ::GetSystemMetrics(SM_CYSCREEN));
    WholeWindow inside{{}, DesktopsDpi(), 0};
    ::GetClientRect(window, &inside.parent);
    ::MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&inside.parent), 2);
    ::EnumChildWindows(window, ExpectInside, reinterpret_cast<LPARAM>(&inside));
    EXPECT_GE(inside.count, fewestControls);
}

/// The size of a control, given in pixels at 96 DPI: one more or less comes from rounding its edges.
void ExpectSize(HWND control, int width, int height) {
    RECT area{};
    ::GetWindowRect(control, &area);
    EXPECT_NEAR(area.right - area.left, Scaled(control, width), 1) << ::GetDlgCtrlID(control);
    EXPECT_NEAR(area.bottom - area.top, Scaled(control, height), 1) << ::GetDlgCtrlID(control);
}

}  // namespace

TEST_F(Scaling, IsThatOfTheDesktop) {
    const Huevox huevox;
    EXPECT_EQ(::GetDpiForWindow(huevox.window()), DesktopsDpi());
    EXPECT_EQ(::GetDpiForSystem(), DesktopsDpi());
}

TEST_F(Scaling, TheProgramIsAwareOfEveryMonitorsInTheSecondWayWhereTheSystemKnowsIt) {
    const Huevox huevox;
    const DPI_AWARENESS_CONTEXT window = ::GetWindowDpiAwarenessContext(huevox.window());
    EXPECT_EQ(::GetAwarenessFromDpiAwarenessContext(window), DPI_AWARENESS_PER_MONITOR_AWARE);
    const bool isSecondKnown =
        ::IsValidDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2) != FALSE;
    const DPI_AWARENESS_CONTEXT best =
        isSecondKnown ? DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2 : DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE;
    const DPI_AWARENESS_CONTEXT process = AwarenessOfProcess(huevox.window());
    EXPECT_TRUE(::AreDpiAwarenessContextsEqual(process, best)) << process << ", wanted " << best;
}

TEST_F(Scaling, TheTestsAreAsAwareAsTheProgram) {
    const Huevox huevox;
    EXPECT_TRUE(::AreDpiAwarenessContextsEqual(::GetThreadDpiAwarenessContext(),
                                               AwarenessOfProcess(huevox.window())));
}

TEST_F(Scaling, TheMainWindowFollows) {
    const Huevox huevox;
    ExpectWhole(huevox.window(), 40);
    ExpectSize(huevox.control(IDC_cmdWebsafe), 119, 25);
    ExpectSize(huevox.control(IDC_hsbRed), 299, 18);
    Click(huevox.thumb(IDC_hsbGreen, 0));
    ASSERT_BECOMES(huevox.focused(), IDC_hsbGreen);
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
    ExpectTip(huevox, huevox.control(IDC_cmdFailsafe), "Click here to open the Failsafe Palette");
}

TEST_F(Scaling, TheOptionsFollow) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    ExpectWhole(options.window(), 12);
    ExpectSize(options.control(IDC_cmdOK), 75, 25);
    options.choose(9);
    options.turnOn(IDC_optDotNet);
    options.close(IDC_cmdOK);
    EXPECT_EQ(StoredText("FormatIndex"), "9");
    EXPECT_EQ(StoredText("SortIndex"), "1");
}

TEST_F(Scaling, TheEditorOfTheCustomNotationFollows) {
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    ExpectWhole(dialog.window(), 13);
    ExpectSize(dialog.control(IDC_cmdOK), 75, 25);
    ExpectTip(huevox, dialog.control(IDC_cmdLD), "Insert the code for Long Decimal");
    dialog.insert(IDC_cmdLD, "%LD%");
    dialog.insert(IDC_cmdUR, "%LD%%UR%");
    dialog.click(IDC_cmdCancel);
}

TEST_F(Scaling, TheAboutBoxFollows) {
    const Huevox huevox;
    const AboutBox about(huevox);
    ExpectWhole(about.window(), 11);
    ExpectSize(about.control(IDC_cmdOK), 80, 25);
    Click(about.control(IDC_cmdOK));
    about.expectClosed();
}

TEST_F(Scaling, ThePaletteWindowsFollow) {
    const Huevox huevox;
    for (const auto& [grid, width, height] :
         {std::tuple{websafeGrid, 756, 126}, {failsafeGrid, 756, 47}, {javaScriptGrid, 117, 333}}) {
        const PickerWindow picker(huevox, grid);
        ExpectWhole(picker.window(), 1);
        ExpectSize(picker.swatches(), width, height);
        picker.close();
    }
}
