// Where do Windows' own declarations come from? From here and nowhere else.
#pragma once

#include <windows.h>
// and what builds on them:
#include <commctrl.h>

#undef Yield  // an empty macro, left over from the days of 16 bits
