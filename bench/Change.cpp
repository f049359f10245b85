// What does one change of colour cost, from the slider's event until everything is painted?
#include <array>
#include <cstdio>
#include <string>
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

void PaintAll(HWND window) { ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN); }

/// The slider's event, through the program.
void ChangeThroughProgram(HWND window, int value) {
    const HWND slider = ::GetDlgItem(window, IDC_hsbGreen);
    ::SendMessageA(window, WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, value), reinterpret_cast<LPARAM>(slider));
    PaintAll(window);
}

/// The same five controls told directly: what the platform asks for however a program is written.
void ChangeThroughPlatform(HWND window, int value) {
    const std::string text = std::to_string(value);
    const HWND container = ::GetDlgItem(window, IDC_picSampleContainer);
    ::SetScrollPos(::GetDlgItem(window, IDC_hsbBlue), SB_CTL, value, TRUE);
    ::SetWindowTextA(::GetDlgItem(window, IDC_txtName + 5), text.c_str());
    ::SetWindowTextA(::GetDlgItem(window, IDC_lblClipboard), text.c_str());
    ::InvalidateRect(::GetDlgItem(container, IDC_picSample), nullptr, FALSE);
    ::InvalidateRect(::GetDlgItem(window, IDC_lblColorBar), nullptr, FALSE);
    PaintAll(window);
}

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

struct Cost {
    std::vector<double> wall;
    double processor = 0;
};

Cost Measure(void (*change)(HWND, int), HWND window, int first) {
    constexpr int batch = 250;
    Cost cost;
    const double before = ProcessorTime();
    for (int i = 0; i < batch; ++i) {
        const double start = NowInMilliseconds();
        change(window, (first + i) % 256);
        cost.wall.push_back(NowInMilliseconds() - start);
    }
    cost.processor = (ProcessorTime() - before) / batch;
    PumpAll();
    return cost;
}

int FreeHandles() {
    std::vector<HBRUSH> brushes;
    while (HBRUSH brush = ::CreateSolidBrush(0)) brushes.push_back(brush);
    for (const HBRUSH brush : brushes) ::DeleteObject(brush);
    return static_cast<int>(brushes.size());
}

void PrintRow(const char* what, const std::vector<double>& wall, const std::vector<double>& processor) {
    std::printf("| %s | %.2f | %.2f |\n", what, Median(wall), Median(processor));
}

}  // namespace

void BenchChange() {
    constexpr int rounds = 40;  // of a batch each: 10,000 changes
    PrepareControls();
    errorTrap = HandleFatalError;
    AppState state;
    frmMain window(state);
    window.load();
    window.show(SW_SHOWNORMAL);
    window.activate();
    PumpAll();
    Measure(ChangeThroughProgram, window.handle(), 0);
    const int handles = FreeHandles();

    std::array<std::vector<double>, 3> wall;
    std::array<std::vector<double>, 3> processor;
    for (int round = 0; round < rounds; ++round) {
        const Cost program = Measure(ChangeThroughProgram, window.handle(), round);
        const Cost platform = Measure(ChangeThroughPlatform, window.handle(), round);
        wall[0].push_back(Median(program.wall));
        wall[1].push_back(Median(platform.wall));
        wall[2].push_back(wall[0].back() - wall[1].back());
        processor[0].push_back(program.processor);
        processor[1].push_back(platform.processor);
        processor[2].push_back(program.processor - platform.processor);
    }
    std::puts("| one change of colour, until everything is painted | median ms | median processor ms |");
    std::puts("|---|---|---|");
    PrintRow("through the program", wall[0], processor[0]);
    PrintRow("the same five controls told directly", wall[1], processor[1]);
    PrintRow("the program's own part", wall[2], processor[2]);
    std::printf("\nGDI handles lost in %d changes: %d\n\n", rounds * 250, handles - FreeHandles());
    CloseUnasked(window, state);
}
