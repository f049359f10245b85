// A library that nobody should load.
#include "toolkit/platform/Platform.h"

// NOLINTNEXTLINE(misc-use-internal-linkage): Windows calls it.
BOOL WINAPI DllMain(HINSTANCE /*library*/, DWORD /*reason*/, LPVOID /*reserved*/) { return TRUE; }
