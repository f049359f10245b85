// Which windows do pictures of the screen leave out?
#pragma once

#include "toolkit/platform/Platform.h"

/// Leaves the window out of pictures that are taken of the screen, so that they show what lies below it.
/// False where Windows cannot do that.
bool ExcludeFromCaptures(HWND window);
