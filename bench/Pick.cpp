// How long does one movement of a screen pick take?
#include <vector>

#include "bench/Benches.h"
#include "bench/RunningProgram.h"
#include "mainwindow/panels/ScreenPixels.h"
#include "resources/resource.h"

namespace {

struct Drag {
    HWND sample;
    HWND preview;
};

/// The pointer moves along the marks, so that the colour changes now and then.
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

/// What Windows alone takes to tell where the pointer is and what colour is there.
void MoveThroughPlatform(const Drag& /*drag*/) {
    static ScreenPixels pixels;
    POINT place{};
    ::GetCursorPos(&place);
    static_cast<void>(pixels.around(place));
}

std::vector<double> Measure(void (*move)(const Drag&), const Drag& drag, int movements) {
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

void BenchPick(const Effort& effort) {
    const int movements = effort.of(2000);
    const RunningProgram running;
    const HWND form = running.form();
    const HWND container = ::GetDlgItem(form, IDC_picSampleContainer);
    const Drag drag = {::GetDlgItem(container, IDC_picSample), ::GetDlgItem(form, IDC_picPick)};
    ::SendMessageA(::GetDlgItem(form, IDC_chkColorPick), BM_CLICK, 0, 0);
    ::SendMessageA(drag.sample, WM_LBUTTONDOWN, MK_LBUTTON, 0);
    Measure(MoveThroughProgram, drag, movements);
    const double program = Median(Measure(MoveThroughProgram, drag, movements));
    const double platform = Median(Measure(MoveThroughPlatform, drag, movements));
    ::SendMessageA(drag.sample, WM_CANCELMODE, 0, 0);
    Tell("pick.count", movements);
    Tell("pick.program.ms", program);
    Tell("pick.platform.ms", platform);
    Tell("pick.own.ms", program - platform);
}
