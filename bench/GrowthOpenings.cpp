// What does opening each window cost after many openings, and what have they taken by then?
#include <map>

#include "bench/Growth.h"
#include "bench/Openings.h"

namespace {

using Times = std::map<std::string, std::vector<double>>;

/// Each window once, and how long that took.
void OpenAll(HWND form, Times& times) {
    for (const OpenedForm& opened : paletteWindows)
        times[opened.curve].push_back(OpenAndCloseWindow(form, opened));
    times[contrastWindow.curve].push_back(OpenAndCloseWindow(form, contrastWindow));
    for (const OpenedForm& opened : dialogs) times[opened.curve].push_back(OpenAndCloseDialog(form, opened));
}

}  // namespace

void GrowOverOpenings(const Effort& effort) {
    constexpr int points = 25;
    const int step = effort.of(1000) / points;
    const RunningProgram running;
    Times unmeasured;
    for (int i = 0; i < 10; ++i) OpenAll(running.form(), unmeasured);
    for (int point = 1; point <= points; ++point) {
        Times times;
        for (int i = 0; i < step; ++i) OpenAll(running.form(), times);
        const int openings = point * step;
        for (const auto& [curve, values] : times)
            TellPoint("openings." + curve + ".ms", openings, Median(values));
        TellUsage("openings", openings, running.usage());
    }
}
