// What does opening each window cost after many openings, and what has the process taken by then?
#include <array>

#include "bench/Growth.h"
#include "bench/Openings.h"

namespace {

struct Window {
    const OpenedForm* opened;
    double (*openAndClose)(HWND form, const OpenedForm& opened);
    double kilobytes = 0;  ///< that have come to the process while it was opened and closed
};

using Windows = std::array<Window, 7>;

Windows AllWindows() {
    Windows windows;
    std::size_t count = 0;
    for (const OpenedForm& opened : paletteWindows) windows[count++] = {&opened, OpenAndCloseWindow};
    windows[count++] = {&contrastWindow, OpenAndCloseWindow};
    for (const OpenedForm& opened : dialogs) windows[count++] = {&opened, OpenAndCloseDialog};
    return windows;
}

/// Median of the times of so many openings.
double TimeOf(const RunningProgram& running, Window& window, int count) {
    const double before = Kilobytes(running.usage());
    std::vector<double> times;
    times.reserve(count);
    for (int i = 0; i < count; ++i) times.push_back(window.openAndClose(running.form(), *window.opened));
    window.kilobytes += Kilobytes(running.usage()) - before;
    return Median(times);
}

}  // namespace

void GrowOverOpenings(const Effort& effort) {
    constexpr int points = 25;
    const int step = effort.of(1000) / points;
    const RunningProgram running;
    Windows unmeasured = AllWindows();
    for (Window& window : unmeasured) TimeOf(running, window, 10);
    Windows windows = AllWindows();
    for (int point = 1; point <= points; ++point) {
        const int openings = point * step;
        for (Window& window : windows) {
            const std::string curve = std::string("openings.") + window.opened->curve;
            TellPoint(curve + ".ms", openings, TimeOf(running, window, step));
            TellPoint(curve + ".kb", openings, window.kilobytes);
        }
        TellUsage("openings", openings, running.usage());
    }
}
