#include "toolkit/controls/CellMove.h"

#include <cstddef>

namespace {

struct Middle {
    int x;
    int y;
};

Middle MiddleOf(const Area& area) { return {(area.left + area.right) / 2, (area.top + area.bottom) / 2}; }

/// How far other lies from start in the direction of step; less than 1 when it lies elsewhere.
int Distance(const Middle& start, const Middle& other, CellStep step) {
    switch (step) {
        case CellStep::left:
        case CellStep::first: return start.x - other.x;
        case CellStep::right:
        case CellStep::last: return other.x - start.x;
        case CellStep::up: return start.y - other.y;
        case CellStep::down: return other.y - start.y;
    }
    return 0;
}

bool IsInLine(const Area& start, const Middle& other, CellStep step) {
    const bool isColumn = step == CellStep::up || step == CellStep::down;
    return isColumn ? other.x >= start.left && other.x < start.right
                    : other.y >= start.top && other.y < start.bottom;
}

}  // namespace

int NextCell(std::span<const Area> cells, int from, CellStep step) {
    const bool isToEnd = step == CellStep::first || step == CellStep::last;
    const Area& start = cells[static_cast<std::size_t>(from)];
    int next = from;
    int best = 0;
    for (std::size_t cell = 0; cell < cells.size(); ++cell) {
        const Middle middle = MiddleOf(cells[cell]);
        const int distance = Distance(MiddleOf(start), middle, step);
        if (distance < 1 || !IsInLine(start, middle, step)) continue;
        const bool isBetter = best == 0 || (isToEnd ? distance > best : distance < best);
        if (!isBetter) continue;
        best = distance;
        next = static_cast<int>(cell);
    }
    return next;
}
