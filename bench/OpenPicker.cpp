// How long does a palette window take to open beside an empty window of its size?
#include <array>
#include <cstdio>
#include <vector>

#include "bench/Benches.h"
#include "bench/Figures.h"
#include "bench/Pump.h"
#include "mainwindow/frmMain.h"
#include "resources/resource.h"
#include "support/AppState.h"
#include "support/FatalError.h"
#include "toolkit/Pump.h"

namespace {

constexpr const char* emptyClass = "EmptyWindow";

struct Picker {
    const char* name;
    int button;
};
constexpr std::array<Picker, 3> pickers = {
    {{"frmWebsafe", IDC_cmdWebsafe}, {"frmFailsafe", IDC_cmdFailsafe}, {"frmJavaScript", IDC_cmdJavaScript}}};

void RegisterEmptyClass() {
    WNDCLASSA empty{};
    empty.lpfnWndProc = ::DefWindowProcA;
    empty.hInstance = ::GetModuleHandleA(nullptr);
    empty.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    empty.lpszClassName = emptyClass;
    ::RegisterClassA(&empty);
}

double TimeOfPicker(HWND form, const Picker& picker, RECT& place) {
    const double before = NowInMilliseconds();
    ::SendMessageA(::GetDlgItem(form, picker.button), BM_CLICK, 0, 0);
    const HWND window = ::FindWindowA(picker.name, nullptr);
    ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    const double time = NowInMilliseconds() - before;
    ::GetWindowRect(window, &place);
    PumpAll();
    ::SendMessageA(window, WM_CLOSE, 0, 0);
    PumpAll();
    return time;
}

double TimeOfEmptyWindow(const RECT& place) {
    const double before = NowInMilliseconds();
    const HWND window = ::CreateWindowExA(WS_EX_TOOLWINDOW, emptyClass, "Empty", WS_CAPTION | WS_SYSMENU,
                                          place.left, place.top, place.right - place.left,
                                          place.bottom - place.top, nullptr, nullptr, nullptr, nullptr);
    ::ShowWindow(window, SW_SHOWNORMAL);
    ::SetForegroundWindow(window);
    ::UpdateWindow(window);
    const double time = NowInMilliseconds() - before;
    PumpAll();
    ::DestroyWindow(window);
    PumpAll();
    return time;
}

void PrintRow(HWND form, const Picker& picker) {
    constexpr int rounds = 20;
    std::vector<double> opened;
    std::vector<double> empty;
    std::vector<double> ratios;
    for (int round = 0; round < rounds; ++round) {
        RECT place{};
        opened.push_back(TimeOfPicker(form, picker, place));
        empty.push_back(TimeOfEmptyWindow(place));
        ratios.push_back(opened.back() / empty.back());
    }
    std::printf("| %s | %.1f | %.1f | %.2f |\n", picker.name, Median(opened), Median(empty), Median(ratios));
}

}  // namespace

void BenchOpenPicker() {
    PrepareControls();
    RegisterEmptyClass();
    errorTrap = HandleFatalError;
    AppState state;
    frmMain window(state);
    window.load();
    window.show(SW_SHOWNORMAL);
    window.activate();
    PumpAll();
    std::puts(
        "| a palette window until it is painted | median ms | empty window of its size | median ratio |");
    std::puts("|---|---|---|---|");
    for (const Picker& picker : pickers) PrintRow(window.handle(), picker);
    std::puts("");
    CloseUnasked(window, state);
}
