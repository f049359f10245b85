// What does one change of colour cost, from the slider's event until everything is painted?
#include <string>
#include <vector>

#include "bench/Benches.h"
#include "bench/ColorChange.h"
#include "bench/RunningProgram.h"

namespace {

double ProcessorTime() {
    FILETIME created{};
    FILETIME ended{};
    FILETIME kernel{};
    FILETIME user{};
    ::GetProcessTimes(::GetCurrentProcess(), &created, &ended, &kernel, &user);
    const auto milliseconds = [](const FILETIME& time) {
        return static_cast<double>(static_cast<ULONGLONG>(time.dwHighDateTime) << 32 | time.dwLowDateTime) /
               10'000;
    };
    return milliseconds(kernel) + milliseconds(user);
}

/// One median per batch.
struct Costs {
    std::vector<double> wall;
    std::vector<double> processor;
};

struct Compared {
    Costs program;
    Costs platform;
    Costs own;  ///< what the program takes on top of Windows
};

void MeasureBatch(void (*change)(HWND, int), HWND window, int batch, Costs& costs) {
    std::vector<double> wall;
    const double before = ProcessorTime();
    for (int i = 0; i < batch; ++i) {
        const double start = NowInMilliseconds();
        change(window, i % 256);
        wall.push_back(NowInMilliseconds() - start);
    }
    costs.processor.push_back((ProcessorTime() - before) / batch);
    costs.wall.push_back(Median(wall));
    PumpAll();
}

/// Changes through the program, in turn with as many set directly, so that both meet the same noise.
Compared Measure(HWND window, int changes, int batch) {
    Compared costs;
    for (int done = 0; done < changes; done += batch) {
        MeasureBatch(ChangeThroughProgram, window, batch, costs.program);
        MeasureBatch(ChangeThroughPlatform, window, batch, costs.platform);
        costs.own.wall.push_back(costs.program.wall.back() - costs.platform.wall.back());
        costs.own.processor.push_back(costs.program.processor.back() - costs.platform.processor.back());
    }
    return costs;
}

/// Changes whose painting Windows skips, because the window is hidden.
void ChangeUnseen(HWND window, int changes) {
    ::ShowWindow(window, SW_HIDE);
    for (int i = 0; i < changes; ++i) {
        ChangeThroughProgram(window, i % 256);
        if (i % 256 == 0) PumpAll();
    }
    ::ShowWindow(window, SW_SHOWNORMAL);
    PaintAll(window);
    PumpAll();
}

void TellCosts(const std::string& name, const Costs& costs) {
    Tell(name + ".ms", Median(costs.wall));
    Tell(name + ".processor", Median(costs.processor));
}

/// What changes cost after that many, and what the process has taken by then.
void TellUpTo(const std::string& name, int changes, const Compared& costs, const Usage& usage) {
    Tell(name + ".changes", changes);
    Tell(name + ".ms", Median(costs.program.wall));
    Tell(name + ".platform.ms", Median(costs.platform.wall));
    Tell(name + ".kb", Kilobytes(usage));
    Tell(name + ".gdi", usage.gdi);
    Tell(name + ".other", usage.handles);
}

void Append(Costs& all, const Costs& more) {
    all.wall.insert(all.wall.end(), more.wall.begin(), more.wall.end());
    all.processor.insert(all.processor.end(), more.processor.begin(), more.processor.end());
}

}  // namespace

void BenchChange(const Effort& effort) {
    const int batch = effort.of(250);
    const int measured = effort.of(1000);
    const RunningProgram running;
    const HWND window = running.form();
    Measure(window, batch, batch);
    const Usage before = running.usage();

    Compared all;
    for (int thousand = 1; thousand <= 10; ++thousand) {
        const Compared costs = Measure(window, measured, batch);
        if (thousand == 1) TellUpTo("growth.first", measured, costs, running.usage());
        if (thousand == 10) TellUpTo("growth.tenth", 10 * measured, costs, running.usage());
        Append(all.program, costs.program);
        Append(all.platform, costs.platform);
        Append(all.own, costs.own);
    }
    Tell("change.count", 10 * measured);
    Tell("change.measured", measured);
    TellCosts("change.program", all.program);
    TellCosts("change.platform", all.platform);
    TellCosts("change.own", all.own);
    Tell("change.gdi", running.usage().gdi - before.gdi);

    ChangeUnseen(window, 89 * measured);
    const Compared last = Measure(window, measured, batch);
    TellUpTo("growth.hundredth", 100 * measured, last, running.usage());
}
