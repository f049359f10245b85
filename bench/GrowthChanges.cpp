// What do a change of colour and an undo cost after many others, and what has the process taken by then?
#include <cstdlib>

#include "bench/ColorChange.h"
#include "bench/Growth.h"
#include "resources/resource.h"

namespace {

constexpr int points = 50;

void ChangeUnseen(HWND window, int changes) {
    const Hidden hidden(window);
    for (int i = 0; i < changes; ++i) {
        ChangeThroughProgram(window, i % 256);
        if (i % 256 == 0) PumpAll();
    }
}

double TimeOfPlatform(HWND window, int count) {
    return MedianOf(count, [window](int i) { ChangeThroughPlatform(window, i % 256); });
}

bool CanUndo(HWND window) {
    return (::GetMenuState(::GetMenu(window), IDM_mnuEditUndo, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED)) ==
           0;
}

void Undo(HWND window) {
    if (!CanUndo(window)) std::abort();
    ::SendMessageA(window, WM_COMMAND, IDM_mnuEditUndo, 0);
    PaintAll(window);
}

/// A colour and a name in turn, so that each is a step of its own.
void MakeSteps(HWND window, int steps) {
    for (int step = 0; step < steps; step += 2) {
        ChangeThroughProgram(window, (step + 1) % 256);
        ::SetWindowTextA(::GetDlgItem(window, IDC_txtName), std::to_string(step).c_str());
    }
    PumpAll();
}

}  // namespace

void GrowOverChanges(const Effort& effort) {
    const int step = effort.of(100'000) / points;
    const int measured = std::max(10, effort.of(40));
    const RunningProgram running;
    const HWND window = running.form();
    ChangeUnseen(window, step);
    for (int point = 1; point <= points; ++point) {
        ChangeUnseen(window, step - measured);
        const double time = MedianOf(measured, [window](int i) { ChangeThroughProgram(window, i % 256); });
        const int changes = point * step;
        TellPoint("changes.program.ms", changes, time);
        TellPoint("changes.platform.ms", changes, TimeOfPlatform(window, measured));
        TellUsage("changes", changes, running.usage());
    }
}

void GrowOverUndos(const Effort& effort) {
    constexpr int stepsKept = 200;
    constexpr int measured = 20;
    const int rounds = std::max(5, effort.of(points));
    const RunningProgram running;
    const HWND window = running.form();
    for (int round = 0; round <= rounds; ++round) {
        {
            const Hidden hidden(window);
            MakeSteps(window, stepsKept);
            for (int undo = measured; undo < stepsKept; ++undo) Undo(window);
        }
        const double time = MedianOf(measured, [window](int /*undo*/) { Undo(window); });
        if (CanUndo(window)) std::abort();
        if (round == 0) continue;  // what only the first steps take
        const int undos = round * stepsKept;
        TellPoint("undos.program.ms", undos, time);
        TellPoint("undos.platform.ms", undos, TimeOfPlatform(window, measured));
        TellUsage("undos", undos, running.usage());
    }
}
