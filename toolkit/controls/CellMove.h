// Which cell does a key lead to from another?
#pragma once

#include <span>

#include "toolkit/platform/Twips.h"

enum class CellStep { left, right, up, down, first, last };

/// The nearest cell in that direction in the same row or column; first and last are those of the row. Returns
/// from where there is none. Cells may overlap and come in any order.
int NextCell(std::span<const Area> cells, int from, CellStep step);
