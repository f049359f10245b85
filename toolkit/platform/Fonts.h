// Which fonts does the program use?
#pragma once

#include <string_view>

#include "toolkit/platform/Handles.h"
#include "toolkit/platform/Platform.h"

/// Segoe UI in 9 points where it is installed, else the font of Windows' messages. It lives as long as the
/// program.
HFONT MessageFont(int dpi);

/// A font with characters of that height in pixels. Without such a face Windows picks another.
OwnedFont FontOfHeight(std::string_view face, int pixels);

/// The same font, underlined.
OwnedFont Underlined(HFONT plain);
