#include "pickers/Beside.h"

#include <algorithm>
#include <array>

namespace {

bool IsInside(const Area& inner, const Area& outer) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

bool IsCovering(const Area& one, const Area& other) {
    return one.left < other.right && other.left < one.right && one.top < other.bottom &&
           other.top < one.bottom;
}

}  // namespace

Area Beside(std::span<const Area> others, int width, int height, const Area& work) {
    const auto at = [&](int left, int top) { return Area{left, top, left + width, top + height}; };
    const int lastLeft = std::max(work.left, work.right - width);
    const int lastTop = std::max(work.top, work.bottom - height);
    const auto isFree = [&](const Area& place) {
        return IsInside(place, work) &&
               std::ranges::none_of(others, [&](const Area& other) { return IsCovering(place, other); });
    };
    for (const Area& other : others) {
        const int left = std::clamp(other.left, work.left, lastLeft);
        const int top = std::clamp(other.top, work.top, lastTop);
        const std::array<Area, 4> places = {at(other.right, top), at(other.left - width, top),
                                            at(left, other.bottom), at(left, other.top - height)};
        const auto* const free = std::ranges::find_if(places, isFree);
        if (free != places.end()) return *free;
    }
    return at(lastLeft, lastTop);
}
