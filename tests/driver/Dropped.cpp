// Hands the program that loads it a list of files as Windows does when they are dropped: Wine carries such a
// list from one program to another only where it has no desktop of its own.
#include "tests/driver/Dropped.h"

#include <cstring>

#include "toolkit/platform/Handles.h"

namespace {

void Hand(const DroppedFiles& dropped) {
    constexpr SIZE_T bytes = sizeof(DROPFILES) + sizeof dropped.paths;
    const HGLOBAL list = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
    std::memcpy(::GlobalLock(list), &dropped.header, bytes);
    ::GlobalUnlock(list);
    const auto window = reinterpret_cast<HWND>(static_cast<UINT_PTR>(dropped.window));
    ::PostMessageW(window, WM_DROPFILES, reinterpret_cast<WPARAM>(list), 0);
}

}  // namespace

/// Does its work at once and is not needed any longer.
// NOLINTNEXTLINE(misc-use-internal-linkage): Windows calls it.
BOOL WINAPI DllMain(HINSTANCE /*library*/, DWORD reason, LPVOID /*reserved*/) {
    if (reason != DLL_PROCESS_ATTACH) return TRUE;
    const Owned<HANDLE, &::CloseHandle> mapping(::OpenFileMappingW(FILE_MAP_READ, FALSE, droppedMapping));
    const void* view = ::MapViewOfFile(mapping.get(), FILE_MAP_READ, 0, 0, 0);
    if (!view) return FALSE;
    Hand(*static_cast<const DroppedFiles*>(view));
    ::UnmapViewOfFile(view);
    return FALSE;
}
