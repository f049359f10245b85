// Does the program release what its windows have taken?
#include <array>
#include <cstdlib>

#include "bench/Benches.h"
#include "bench/RunningProgram.h"
#include "resources/resource.h"

namespace {

struct Opened {
    const char* name;
    int id;
};
constexpr std::array<Opened, 3> paletteWindows = {
    {{"frmWebsafe", IDC_cmdWebsafe}, {"frmFailsafe", IDC_cmdFailsafe}, {"frmJavaScript", IDC_cmdJavaScript}}};
constexpr std::array<Opened, 3> dialogs = {{{"frmOptions", IDM_mnuToolsOptions},
                                            {"frmCustomFormat", IDM_mnuToolsCustomFormat},
                                            {"frmAbout", IDM_mnuHelpAboutHuevox}}};

void OpenAndClosePaletteWindow(HWND form, int number) {
    const Opened& palette = paletteWindows[number % paletteWindows.size()];
    ::SendMessageA(::GetDlgItem(form, palette.id), BM_CLICK, 0, 0);
    PumpAll();
    const HWND window = ::FindWindowA(palette.name, nullptr);
    if (!window) std::abort();
    BringTips(window);
    ::SendMessageA(window, WM_CLOSE, 0, 0);
    PumpAll();
}

struct Closing {
    const char* name;
    bool wasOpen;
};

/// Closes the dialog as soon as it is open.
void CALLBACK CloseDialog(HWND /*form*/, UINT /*message*/, UINT_PTR parameter, DWORD /*time*/) {
    auto& closing = *reinterpret_cast<Closing*>(parameter);
    const HWND dialog = ::FindWindowA(closing.name, nullptr);
    if (!dialog || !::IsWindowVisible(dialog)) return;
    closing.wasOpen = true;
    ::PostMessageA(dialog, WM_CLOSE, 0, 0);
}

void OpenAndCloseDialog(HWND form, int number) {
    const Opened& dialog = dialogs[number % dialogs.size()];
    Closing closing = {dialog.name, false};
    const auto timer = reinterpret_cast<UINT_PTR>(&closing);
    ::SetTimer(form, timer, USER_TIMER_MINIMUM, CloseDialog);
    ::SendMessageA(form, WM_COMMAND, static_cast<WPARAM>(dialog.id), 0);
    ::KillTimer(form, timer);
    PumpAll();
    if (!closing.wasOpen || ::FindWindowA(dialog.name, nullptr)) std::abort();
}

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
    TellLosses("handles.pickers", OpenAndClosePaletteWindow, running, effort.of(1000));
    TellLosses("handles.dialogs", OpenAndCloseDialog, running, effort.of(200));
}
