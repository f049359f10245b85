// How long does one movement of a screen pick take?
#include <cstdio>
#include <vector>

#include "bench/Benches.h"
#include "bench/Figures.h"
#include "bench/Pump.h"
#include "mainwindow/ScreenPixels.h"
#include "mainwindow/frmMain.h"
#include "resources/resource.h"
#include "support/AppState.h"
#include "support/FatalError.h"
#include "toolkit/Pump.h"

namespace {

constexpr int movements = 2000;

struct Drag {
    HWND sample;
    HWND preview;
};

/// The pointer runs along the marks, so that the colour changes now and then.
POINT Place(const Drag& drag, int movement) {
    RECT area{};
    ::GetWindowRect(drag.sample, &area);
    const LONG width = area.right - area.left;
    return {area.left + movement % (6 * width), (area.top + area.bottom) / 2};
}

void MoveThroughProgram(const Drag& drag) {
    ::SendMessageA(drag.sample, WM_MOUSEMOVE, MK_LBUTTON, 0);
    ::UpdateWindow(drag.preview);
}

/// What the platform alone takes to say where the pointer is and what is there.
void MoveThroughPlatform(const Drag& /*drag*/) {
    static ScreenPixels pixels;
    POINT place{};
    ::GetCursorPos(&place);
    static_cast<void>(pixels.at(place));
}

std::vector<double> Measure(void (*move)(const Drag&), const Drag& drag) {
    std::vector<double> times;
    for (int movement = 0; movement < movements; ++movement) {
        const POINT place = Place(drag, movement);
        ::SetCursorPos(place.x, place.y);
        const double before = NowInMilliseconds();
        move(drag);
        times.push_back(NowInMilliseconds() - before);
    }
    PumpAll();
    return times;
}

}  // namespace

void BenchPick() {
    PrepareControls();
    errorTrap = HandleFatalError;
    AppState state;
    frmMain window(state);
    window.load();
    window.show(SW_SHOWNORMAL);
    window.activate();
    PumpAll();
    const HWND form = window.handle();
    const HWND container = ::GetDlgItem(form, IDC_picSampleContainer);
    const Drag drag = {::GetDlgItem(container, IDC_picSample), ::GetDlgItem(form, IDC_picPick)};
    ::SendMessageA(::GetDlgItem(form, IDC_chkColorPick), BM_CLICK, 0, 0);
    ::SendMessageA(drag.sample, WM_LBUTTONDOWN, MK_LBUTTON, 0);
    Measure(MoveThroughProgram, drag);
    const double program = Median(Measure(MoveThroughProgram, drag));
    const double platform = Median(Measure(MoveThroughPlatform, drag));
    std::puts("| one movement of a screen pick, until its colour is shown | median ms |");
    std::puts("|---|---|");
    std::printf("| through the program | %.3f |\n", program);
    std::printf("| reading the pointer and the pixel alone | %.3f |\n", platform);
    std::printf("| the program's own part | %.3f |\n\n", program - platform);
    ::SendMessageA(drag.sample, WM_CANCELMODE, 0, 0);
    CloseUnasked(window, state);
}
