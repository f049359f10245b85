// Which cell does a key lead to from another?
#pragma once

#include <span>

#include "toolkit/platform/Twips.h"

enum class CellStep { left, right, up, down, first, last };

/// The nearest cell in that direction in the same row or column; first and last are those of the row. Where
/// there is none, from itself. Cells may stand in any order and overlap.
int NextCell(std::span<const Area> cells, int from, CellStep step);
