// A library that nobody should load.
#include "toolkit/Platform.h"

BOOL WINAPI DllMain(HINSTANCE /*library*/, DWORD /*reason*/, LPVOID /*reserved*/) { return TRUE; }
