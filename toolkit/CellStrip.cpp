#include "toolkit/CellStrip.h"

#include <algorithm>

#include "toolkit/Form.h"
#include "toolkit/Painting.h"

void CellStrip::setColors(std::span<const PackedColor> cellColors) {
    if (std::ranges::equal(colors, cellColors)) return;
    colors.assign(cellColors.begin(), cellColors.end());
    ::InvalidateRect(handle(), nullptr, FALSE);
}

LRESULT CellStrip::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND: return TRUE;
        case WM_PAINT: paint(); return 0;
        default: return Control::onMessage(message, wParam, lParam);
    }
}

void CellStrip::paint() {
    const Painting painting(handle());
    const std::size_t count = std::min(places.size(), colors.size());
    for (std::size_t cell = 0; cell < count; ++cell) {
        FillWithColor(painting.context(), scaledPlace(places[cell]), static_cast<COLORREF>(colors[cell]));
    }
}

RECT CellStrip::scaledPlace(const RECT& place) const {
    return {form.scaled(place.left), form.scaled(place.top), form.scaled(place.right),
            form.scaled(place.bottom)};
}
