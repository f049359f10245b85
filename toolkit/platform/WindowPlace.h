// Where on the monitors does a window stand?
#pragma once

#include "toolkit/platform/Platform.h"
#include "toolkit/platform/Twips.h"

/// The whole window with its frame, in pixels.
Area PlaceOf(HWND window);

/// Gives the window its place and size.
void PlaceAt(HWND window, const Area& place);

/// Moves the window to the left and top of place; its size stays.
void MoveTo(HWND window, const Area& place);

/// What the monitor that the window is on, or is nearest to, has free for windows; without a window, the
/// first one.
Area WorkAreaAt(HWND window);

/// Whether a window at place has its caption, by which the user moves it, on a monitor.
bool IsReachable(const Area& place);
