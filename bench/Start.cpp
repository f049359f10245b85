// How long does a program take from its start until its window is visible, and until it is painted and idle?
#include <array>
#include <string>
#include <vector>

#include "bench/Benches.h"
#include "toolkit/platform/Handles.h"
#include "toolkit/platform/Text.h"

namespace {

struct Program {
    const char* name;  ///< of its figures
    const wchar_t* command;
    const wchar_t* windowClass;
};
/// The second is what the others are compared with. The last is a program that people find quick.
constexpr std::array<Program, 4> programs = {{{"bare", L"BareWindow.exe", L"BareWindow"},
                                              {"stock", L"StockWindow.exe", L"StockWindow"},
                                              {"huevox", L"Huevox.exe", L"frmMain"},
                                              {"notepad", L"notepad.exe", L"Notepad"}}};
constexpr std::size_t stock = 1;

using OwnedHandle = Owned<HANDLE, &::CloseHandle>;

/// Milliseconds since the start of the process.
struct Times {
    double shown = 0;
    double idle = 0;
};

OwnedHandle StartProcess(const wchar_t* command) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    std::wstring line = command;
    ::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process);
    const OwnedHandle thread(process.hThread);
    return OwnedHandle(process.hProcess);
}

/// Asks once a millisecond: each question costs Wine's server two requests.
HWND WaitForWindow(const wchar_t* windowClass, double deadline) {
    while (NowInMilliseconds() < deadline) {
        const HWND window = ::FindWindowW(windowClass, nullptr);
        if (window && ::IsWindowVisible(window)) return window;
        ::Sleep(1);
    }
    return nullptr;
}

bool IsWaiting(HWND window) { return ::IsWindowVisible(window) && ::GetUpdateRect(window, nullptr, FALSE); }

BOOL CALLBACK Look(HWND control, LPARAM parameter) {
    auto& isPainted = *reinterpret_cast<bool*>(parameter);
    isPainted = isPainted && !IsWaiting(control);
    return isPainted;
}

bool IsPainted(HWND window) {
    bool isPainted = !IsWaiting(window);
    ::EnumChildWindows(window, Look, reinterpret_cast<LPARAM>(&isPainted));
    return isPainted;
}

Times TimeOfStart(const Program& program) {
    constexpr double patience = 10'000;
    const double before = NowInMilliseconds();
    const OwnedHandle process = StartProcess(program.command);
    const HWND window = WaitForWindow(program.windowClass, before + patience);
    Times times;
    times.shown = NowInMilliseconds() - before;
    ::WaitForInputIdle(process.get(), static_cast<DWORD>(patience));
    do {
        ::SendMessageW(window, WM_NULL, 0, 0);
        times.idle = NowInMilliseconds() - before;
    } while (times.idle < patience && !IsPainted(window));
    ::PostMessageW(window, WM_CLOSE, 0, 0);
    if (::WaitForSingleObject(process.get(), 5000) != WAIT_OBJECT_0) ::TerminateProcess(process.get(), 1);
    return times;
}

/// One value for each round.
struct Measured {
    std::vector<double> ms;
    std::vector<double> ratio;
};

void TellMeasured(const std::string& name, const Measured& measured) {
    Tell(name + ".ms", Median(measured.ms));
    Tell(name + ".ratio", Median(measured.ratio));
}

}  // namespace

void BenchStart(const Effort& effort) {
    const int rounds = effort.of(40);
    std::array<Measured, programs.size()> shown;
    std::array<Measured, programs.size()> idle;
    for (int round = 0; round < rounds; ++round) {
        std::array<Times, programs.size()> times{};
        for (std::size_t i = 0; i < programs.size(); ++i) times[i] = TimeOfStart(programs[i]);
        for (std::size_t i = 0; i < programs.size(); ++i) {
            shown[i].ms.push_back(times[i].shown);
            shown[i].ratio.push_back(times[i].shown / times[stock].shown);
            idle[i].ms.push_back(times[i].idle);
            idle[i].ratio.push_back(times[i].idle / times[stock].idle);
        }
    }
    Tell("start.rounds", rounds);
    for (std::size_t i = 0; i < programs.size(); ++i) {
        const std::string name = std::string("start.") + programs[i].name;
        TellMeasured(name + ".shown", shown[i]);
        TellMeasured(name + ".idle", idle[i]);
    }
}
