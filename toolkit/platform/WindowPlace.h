// Where on the monitors does a window stand?
#pragma once

#include "toolkit/platform/Platform.h"
#include "toolkit/platform/Twips.h"

/// Windows' rectangle as the program's.
Area AreaOf(const RECT& area);

/// The whole window with its frame, in pixels.
Area PlaceOf(HWND window);

/// Gives the window its place and size.
void PlaceAt(HWND window, const Area& place);

/// Moves the window to the left and top of place; its size stays.
void MoveTo(HWND window, const Area& place);

/// The work area of the monitor that the window is on or nearest to; without a window, of the primary one.
Area WorkAreaAt(HWND window);

/// Whether the caption of a window at place is on a monitor, so that the user can move it.
bool IsReachable(const Area& place);
