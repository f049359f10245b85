// Drops files onto a window of another program of the same word length: Dropper WINDOW PATH... Ends with 0
// when they are on their way. The place of the files in this program's own folder is where the list's bearer
// lies, too.
#include <array>
#include <string>

#include "tests/driver/Dropped.h"
#include "toolkit/platform/Handles.h"

namespace {

std::wstring BearerPath() {
    std::array<wchar_t, MAX_PATH> path{};
    ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    const std::wstring program = path.data();
    return program.substr(0, program.rfind(L'\\') + 1) + L"Dropped.dll";
}

/// Makes the program that the window belongs to load a library. False when it cannot be entered.
bool LoadInto(HWND window, const std::wstring& library) {
    DWORD id = 0;
    ::GetWindowThreadProcessId(window, &id);
    const Owned<HANDLE, &::CloseHandle> process(::OpenProcess(PROCESS_ALL_ACCESS, FALSE, id));
    const std::size_t bytes = (library.size() + 1) * sizeof(wchar_t);
    void* placed = ::VirtualAllocEx(process.get(), nullptr, bytes, MEM_COMMIT, PAGE_READWRITE);
    if (!placed || !::WriteProcessMemory(process.get(), placed, library.c_str(), bytes, nullptr))
        return false;
    const FARPROC load = ::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "LoadLibraryW");
    const auto start = reinterpret_cast<LPTHREAD_START_ROUTINE>(reinterpret_cast<void*>(load));
    const Owned<HANDLE, &::CloseHandle> thread(
        ::CreateRemoteThread(process.get(), nullptr, 0, start, placed, 0, nullptr));
    const bool isLoaded = thread.get() && ::WaitForSingleObject(thread.get(), INFINITE) == WAIT_OBJECT_0;
    // The program that is acted on keeps nothing of it.
    ::VirtualFreeEx(process.get(), placed, 0, MEM_RELEASE);
    return isLoaded;
}

}  // namespace

// NOLINTNEXTLINE(readability-identifier-naming,misc-use-internal-linkage): its name is the compiler's.
int wmain(int count, wchar_t** arguments) {
    if (count < 3) return 2;
    const Owned<HANDLE, &::CloseHandle> mapping(::CreateFileMappingW(
        INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(DroppedFiles), droppedMapping));
    auto* dropped = static_cast<DroppedFiles*>(
        ::MapViewOfFile(mapping.get(), FILE_MAP_WRITE, 0, 0, sizeof(DroppedFiles)));
    if (!dropped) return 1;
    dropped->window = std::stoull(arguments[1]);
    dropped->header.pFiles = sizeof(DROPFILES);
    dropped->header.fWide = TRUE;
    std::wstring paths;
    for (int path = 2; path < count; ++path) paths += std::wstring(arguments[path]) + L'\0';
    if (paths.size() >= dropped->paths.size()) return 1;
    paths.copy(dropped->paths.data(), paths.size());
    const auto window = reinterpret_cast<HWND>(static_cast<UINT_PTR>(dropped->window));
    return LoadInto(window, BearerPath()) ? 0 : 1;
}
