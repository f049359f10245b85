// How does the text of a one-line box come to stand in the middle of its height?
#pragma once

#include "toolkit/platform/Platform.h"

/// Windows writes at the top of a box's client area. So that area becomes as high as a line, and the program
/// paints what is above and below it. client is the area that WM_NCCALCSIZE asks for.
void KeepMiddleLine(HWND box, RECT& client);

/// Whether a point on the screen is inside the box's edge: on the line, above or below it.
bool IsInsideOfEdge(HWND box, POINT screen);

/// Paints what is above and below the line, after Windows has painted the edge.
void PaintAroundLine(HWND box, COLORREF ground);
