// Over which works may the program grow? Each prints points of curves, for docs/GROWTH.md.
#pragma once

#include <cstdio>
#include <string>

#include "bench/RunningProgram.h"
#include "tests/driver/Figures.h"

void GrowOverChanges(const Effort& effort);
void GrowOverFiles(const Effort& effort);
void GrowOverOpenings(const Effort& effort);
void GrowOverUndos(const Effort& effort);

/// One point of a curve, whose name is words joined by dots.
inline void TellPoint(const std::string& curve, double across, double up) {
    std::printf("point %s %.9g %.9g\n", curve.c_str(), across, up);
}

/// What the process has taken by then.
inline void TellUsage(const std::string& subject, double across, const Usage& usage) {
    TellPoint(subject + ".kb", across, Kilobytes(usage));
    TellPoint(subject + ".gdi", across, usage.gdi);
    TellPoint(subject + ".other", across, usage.handles);
    TellPoint(subject + ".windows", across, usage.windows);
}

/// A window is hidden for as long as the value lives: Windows skips its painting, and the run ends in time.
class Hidden {
public:
    explicit Hidden(HWND window) : window(window) { ::ShowWindow(window, SW_HIDE); }
    Hidden(const Hidden&) = delete;
    Hidden& operator=(const Hidden&) = delete;
    ~Hidden() {
        ::ShowWindow(window, SW_SHOWNORMAL);
        ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        PumpAll();
    }

private:
    HWND window;
};

/// Median of so many runs of a work that takes its number.
template <class Work>
double MedianOf(int count, Work work) {
    std::vector<double> times;
    for (int i = 0; i < count; ++i) {
        const double start = NowInMilliseconds();
        work(i);
        times.push_back(NowInMilliseconds() - start);
    }
    PumpAll();
    return Median(times);
}
