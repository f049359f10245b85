#include "tests/driver/Usage.h"

#include <psapi.h>
#include <winternl.h>

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

/// The table of the graphics objects is in the process's own memory; nothing else tells of it.
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

/// A routine of Windows that its import library does not offer.
template <class Routine>
Routine* NativeRoutine(const char* name) {
    return reinterpret_cast<Routine*>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleA("ntdll.dll"), name)));
}

int GdiObjects(HANDLE process) {
    using Query = NTSTATUS NTAPI(HANDLE, PROCESSINFOCLASS, PVOID, ULONG, PULONG);
    PROCESS_BASIC_INFORMATION information{};
    NativeRoutine<Query>("NtQueryInformationProcess")(process, ProcessBasicInformation, &information,
                                                      sizeof information, nullptr);
    const auto* block = reinterpret_cast<const char*>(information.PebBaseAddress);
    const void* table = nullptr;
    ::ReadProcessMemory(process, block + tableOffset, static_cast<void*>(&table), sizeof table, nullptr);
    std::vector<GdiEntry> entries(tableEntries);
    if (!::ReadProcessMemory(process, table, entries.data(), entries.size() * sizeof(GdiEntry), nullptr))
        return 0;
    return static_cast<int>(
        std::ranges::count_if(entries, [](const GdiEntry& entry) { return entry.type != 0; }));
}

/// The list of all handles of all processes; Wine does not tell the count of one.
struct HandleEntry {
    void* object;
    ULONG_PTR process;
    ULONG_PTR value;
    ULONG access;
    USHORT trace;
    USHORT type;
    ULONG attributes;
    ULONG reserved;
};

int Handles(HANDLE process) {
    using Query = NTSTATUS NTAPI(int, PVOID, ULONG, PULONG);
    constexpr int extendedHandleInformation = 64;
    constexpr std::size_t most = 100'000;
    constexpr std::size_t head = 2 * sizeof(ULONG_PTR);
    std::vector<char> answer(head + most * sizeof(HandleEntry));
    const NTSTATUS status = NativeRoutine<Query>("NtQuerySystemInformation")(
        extendedHandleInformation, answer.data(), static_cast<ULONG>(answer.size()), nullptr);
    if (status != 0) return 0;
    ULONG_PTR count = 0;
    std::memcpy(&count, answer.data(), sizeof count);
    std::vector<HandleEntry> entries(count);
    std::memcpy(entries.data(), answer.data() + head, count * sizeof(HandleEntry));
    const DWORD id = ::GetProcessId(process);
    return static_cast<int>(
        std::ranges::count_if(entries, [id](const HandleEntry& entry) { return entry.process == id; }));
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
    PROCESS_MEMORY_COUNTERS counters{};
    ::GetProcessMemoryInfo(process, &counters, sizeof counters);
    usage.bytes = static_cast<long long>(counters.PagefileUsage);
    usage.gdi = GdiObjects(process);
    ::EnumThreadWindows(::GetWindowThreadProcessId(window, nullptr), CountWindows,
                        reinterpret_cast<LPARAM>(&usage.windows));
    usage.handles = Handles(process);
    return usage;
}

int BitsOf(HANDLE process) {
    // 64-bit Windows runs 32-bit programs apart from its own.
    BOOL runsApart = FALSE;
    ::IsWow64Process(process, &runsApart);
    return runsApart ? 32 : 64;
}

std::string Grown(const Growth& growth) {
    constexpr long long bytesAllowed = 2 << 20;
    constexpr int allowed = 50;
    constexpr int objectsOfContext = 4;
    // Each thread that hands the program a list of dropped files leaves 4 KB behind. They lie among the
    // program's buffers, so that the next file is read at another place.
    constexpr long long bytesOfDrop = 80 << 10;
    const int contexts = std::min(growth.pickMovements, 1000);
    const Usage& first = growth.first;
    const Usage& last = growth.last;
    if (last.bytes > first.bytes + bytesAllowed + bytesOfDrop * growth.drops) return "memory: it grows";
    if (last.gdi > first.gdi + allowed + objectsOfContext * contexts) return "graphics objects: they grow";
    if (last.windows > first.windows + allowed) return "windows: they grow";
    if (last.handles > first.handles + allowed) return "handles: they grow";
    return "";
}
