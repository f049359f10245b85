#include "mainwindow/panels/LoupePlace.h"

#include <algorithm>
#include <optional>

namespace {

/// Along one axis: where the loupe begins on either side, how long it is, and between which edges.
struct Choice {
    int wanted;
    int otherwise;
    int length;
    int low;
    int high;

    std::optional<int> fitting() const {
        for (const int start : {wanted, otherwise}) {
            if (start >= low && start + length <= high) return start;
        }
        return {};
    }
    int squeezed() const { return std::max(low, std::min(wanted, high - length)); }
};

}  // namespace

Area LoupePlace(const Area& block, const LoupeSize& size, int distance, const Area& monitor) {
    const Choice across = {block.right + distance, block.left - distance - size.width, size.width,
                           monitor.left, monitor.right};
    const Choice down = {block.top - distance - size.height, block.bottom + distance, size.height,
                         monitor.top, monitor.bottom};
    const std::optional<int> left = across.fitting();
    const std::optional<int> top = down.fitting();
    // Beside the block along one axis is enough; then the other may be squeezed into the monitor.
    const int x = left.value_or(top ? across.squeezed() : across.wanted);
    const int y = top.value_or(left ? down.squeezed() : down.wanted);
    return {x, y, x + size.width, y + size.height};
}
