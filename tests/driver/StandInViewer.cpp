// Stands in for the help viewer of Windows: writes what it is asked for into a file beside the palettes.
#include <fstream>

#include "toolkit/platform/Platform.h"
#include "toolkit/platform/Text.h"

namespace {

std::ofstream Calls() {
    return std::ofstream("C:\\Huevox Palettes\\viewer.txt", std::ios::binary | std::ios::app);
}

}  // namespace

// NOLINTNEXTLINE(misc-use-internal-linkage): Windows calls it.
BOOL WINAPI DllMain(HINSTANCE /*library*/, DWORD reason, LPVOID /*reserved*/) {
    if (reason == DLL_PROCESS_ATTACH) Calls() << "loaded\n";
    return TRUE;
}

extern "C" __declspec(dllexport) HWND WINAPI HtmlHelpW(HWND owner, LPCWSTR file, UINT call, DWORD_PTR data) {
    Calls() << owner << '|' << Utf8(file) << '|' << call << '|' << Utf8(reinterpret_cast<LPCWSTR>(data))
            << '\n';
    return nullptr;
}
