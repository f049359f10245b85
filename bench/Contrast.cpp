// What does a change of colour cost while the contrast window is open, and while it is closed?
#include <vector>

#include "bench/Benches.h"
#include "bench/ColorChange.h"
#include "bench/RunningProgram.h"
#include "resources/resource.h"

namespace {

/// Median of one batch. contrast is nullptr while that window is closed.
double TimeOf(void (*change)(HWND, int), HWND window, HWND contrast, int batch) {
    std::vector<double> times;
    for (int i = 0; i < batch; ++i) {
        const double before = NowInMilliseconds();
        change(window, i % 256);
        if (contrast) PaintAll(contrast);
        times.push_back(NowInMilliseconds() - before);
    }
    PumpAll();
    return Median(times);
}

/// With its tool tips, as after the pointer has been over it.
HWND OpenContrast(HWND window) {
    ::SendMessageA(window, WM_COMMAND, IDM_mnuToolsContrast, 0);
    const HWND contrast = ::FindWindowA("frmContrast", nullptr);
    BringTips(contrast);
    PumpAll();
    return contrast;
}

}  // namespace

void BenchContrast(const Effort& effort) {
    constexpr int rounds = 20;
    const int batch = effort.of(200);
    const RunningProgram running;
    const HWND window = running.form();
    TimeOf(ChangeThroughProgram, window, nullptr, batch);
    std::vector<double> closed;
    std::vector<double> open;
    std::vector<double> closedOwn;
    std::vector<double> openOwn;
    for (int round = 0; round < rounds; ++round) {
        const double platform = TimeOf(ChangeThroughPlatform, window, nullptr, batch);
        closed.push_back(TimeOf(ChangeThroughProgram, window, nullptr, batch));
        const HWND contrast = OpenContrast(window);
        open.push_back(TimeOf(ChangeThroughProgram, window, contrast, batch));
        ::SendMessageA(contrast, WM_CLOSE, 0, 0);
        PumpAll();
        closedOwn.push_back(closed.back() - platform);
        openOwn.push_back(open.back() - platform);
    }
    Tell("contrast.count", rounds * batch);
    Tell("contrast.closed.ms", Median(closed));
    Tell("contrast.closed.own.ms", Median(closedOwn));
    Tell("contrast.open.ms", Median(open));
    Tell("contrast.open.own.ms", Median(openOwn));
}
