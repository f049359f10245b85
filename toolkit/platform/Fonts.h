// Which fonts does the program use?
#pragma once

#include <string_view>

#include "toolkit/platform/Handles.h"
#include "toolkit/platform/Platform.h"

/// Segoe UI in 9 points where there is one, else the font that Windows shows messages in. It stays as long as
/// the program runs.
HFONT MessageFont(int dpi);

/// The face in that height of its characters, in pixels; where there is no such face, what Windows takes for
/// it.
OwnedFont FontOfHeight(std::string_view face, int pixels);

/// The same font with a line below its text.
OwnedFont Underlined(HFONT plain);
