#include "randomuser/Usage.h"

#include <psapi.h>
#include <winternl.h>

#include <vector>

namespace {

/// The table of the graphics objects stands in the process's own memory; it is told of nowhere else.
struct GdiEntry {
    unsigned long long object;
    unsigned long owner;
    unsigned short unique;
    unsigned char type;
    unsigned char flags;
    unsigned long long user;
};
constexpr std::size_t tableOffset = 0xF8;
constexpr std::size_t tableEntries = 0x10000;

int GdiObjects(HANDLE process) {
    PROCESS_BASIC_INFORMATION information{};
    using Query = NTSTATUS(NTAPI*)(HANDLE, PROCESSINFOCLASS, PVOID, ULONG, PULONG);
    const auto query = reinterpret_cast<Query>(reinterpret_cast<void*>(
        ::GetProcAddress(::GetModuleHandleA("ntdll.dll"), "NtQueryInformationProcess")));
    query(process, ProcessBasicInformation, &information, sizeof information, nullptr);
    const auto* block = reinterpret_cast<const char*>(information.PebBaseAddress);
    const void* table = nullptr;
    ::ReadProcessMemory(process, block + tableOffset, &table, sizeof table, nullptr);
    std::vector<GdiEntry> entries(tableEntries);
    if (!::ReadProcessMemory(process, table, entries.data(), entries.size() * sizeof(GdiEntry), nullptr))
        return 0;
    return static_cast<int>(
        std::ranges::count_if(entries, [](const GdiEntry& entry) { return entry.type != 0; }));
}

BOOL CALLBACK CountWindow(HWND /*window*/, LPARAM parameter) {
    ++*reinterpret_cast<int*>(parameter);
    return TRUE;
}

BOOL CALLBACK CountWindows(HWND window, LPARAM parameter) {
    ::EnumChildWindows(window, CountWindow, parameter);
    return CountWindow(window, parameter);
}

}  // namespace

Usage UsageOf(HANDLE process, HWND window) {
    Usage usage;
    PROCESS_MEMORY_COUNTERS_EX counters{};
    counters.cb = sizeof counters;
    ::GetProcessMemoryInfo(process, reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters), sizeof counters);
    usage.bytes = static_cast<long long>(counters.PrivateUsage);
    usage.gdi = GdiObjects(process);
    ::EnumThreadWindows(::GetWindowThreadProcessId(window, nullptr), CountWindows,
                        reinterpret_cast<LPARAM>(&usage.windows));
    DWORD handles = 0;
    ::GetProcessHandleCount(process, &handles);
    usage.handles = static_cast<int>(handles);
    return usage;
}
