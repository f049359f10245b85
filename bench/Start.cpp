// How long does a program take from its start until its window is visible and idle?
#include <array>
#include <string>
#include <vector>

#include "bench/Benches.h"

namespace {

struct Search {
    DWORD process;
    HWND found;
};

BOOL CALLBACK FindMainWindow(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    DWORD owner = 0;
    ::GetWindowThreadProcessId(window, &owner);
    if (owner != search.process || !::IsWindowVisible(window) || ::GetWindow(window, GW_OWNER)) return TRUE;
    search.found = window;
    return FALSE;
}

/// Starts the program, waits until its window is there and answers, and ends it. Returns milliseconds, or -1.
double TimeOfStart(const char* program) {
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    std::string command = program;
    const double before = NowInMilliseconds();
    if (!::CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                          &process)) {
        return -1;
    }
    ::WaitForInputIdle(process.hProcess, 10'000);
    Search search{process.dwProcessId, nullptr};
    while (!search.found && NowInMilliseconds() < before + 10'000) {
        ::EnumWindows(FindMainWindow, reinterpret_cast<LPARAM>(&search));
    }
    ::SendMessageA(search.found, WM_NULL, 0, 0);
    const double time = NowInMilliseconds() - before;
    ::PostMessageA(search.found, WM_CLOSE, 0, 0);
    if (::WaitForSingleObject(process.hProcess, 5000) != WAIT_OBJECT_0)
        ::TerminateProcess(process.hProcess, 1);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return time;
}

}  // namespace

void BenchStart(const Effort& effort) {
    const int rounds = effort.of(30);
    constexpr std::array<const char*, 3> programs = {"BareWindow.exe", "StockWindow.exe", "Huevox.exe"};
    constexpr std::array<const char*, 3> names = {"start.bare.", "start.stock.", "start.huevox."};
    std::array<std::vector<double>, 3> times;
    std::array<std::vector<double>, 3> ratios;
    std::vector<double> ownRatios;
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < programs.size(); ++i) {
            times[i].push_back(TimeOfStart(programs[i]));
            ratios[i].push_back(times[i].back() / times[0].back());
        }
        ownRatios.push_back(ratios[2].back() - ratios[1].back());
    }
    Tell("start.rounds", rounds);
    for (std::size_t i = 0; i < programs.size(); ++i) {
        Tell(std::string(names[i]) + "ms", Median(times[i]));
        Tell(std::string(names[i]) + "ratio", Median(ratios[i]));
    }
    Tell("start.own.ratio", Median(ownRatios));
}
