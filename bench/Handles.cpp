// Does the program release what its windows have taken?
#include <string>

#include "bench/Benches.h"
#include "bench/Openings.h"
#include "bench/RunningProgram.h"

namespace {

void OpenPaletteWindow(HWND form, int number) {
    OpenAndCloseWindow(form, paletteWindows[number % paletteWindows.size()]);
}

void OpenDialog(HWND form, int number) { OpenAndCloseDialog(form, dialogs[number % dialogs.size()]); }

/// What many openings leave behind, after each window has been open a few times.
void TellLosses(const std::string& name, void (*openAndClose)(HWND, int), const RunningProgram& running,
                int count) {
    for (int i = 0; i < 10; ++i) openAndClose(running.form(), i);
    const Usage before = running.usage();
    for (int i = 0; i < count; ++i) openAndClose(running.form(), i);
    const Usage after = running.usage();
    Tell(name + ".count", count);
    Tell(name + ".gdi", after.gdi - before.gdi);
    Tell(name + ".windows", after.windows - before.windows);
    Tell(name + ".other", after.handles - before.handles);
    Tell(name + ".kb", Kilobytes(after) - Kilobytes(before));
}

}  // namespace

void BenchHandles(const Effort& effort) {
    const RunningProgram running;
    TellLosses("handles.pickers", OpenPaletteWindow, running, effort.of(1000));
    TellLosses("handles.dialogs", OpenDialog, running, effort.of(200));
}
