// Where does each swatch of the palette windows stand?
#pragma once

#include <vector>

#include "toolkit/platform/Twips.h"

// Each in the order of its reference table, in twips from the left and top of the first swatch.

/// Six columns per green level, from left to right; within them red grows to the right and blue upwards.
std::vector<Area> WebsafePlaces();

/// One row, in which each swatch lies a little over its left neighbour.
std::vector<Area> FailsafePlaces();

/// Rows of seven from the top.
std::vector<Area> JavaScriptPlaces();
