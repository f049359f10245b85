#include "toolkit/CellStrip.h"

#include <windowsx.h>

#include <algorithm>

#include "toolkit/Form.h"
#include "toolkit/Mouse.h"
#include "toolkit/Painting.h"
#include "toolkit/ToolTips.h"

void CellStrip::setColors(std::span<const PackedColor> cellColors) {
    if (std::ranges::equal(colors, cellColors)) return;
    colors.assign(cellColors.begin(), cellColors.end());
    if (!isHeld) ::InvalidateRect(handle(), nullptr, FALSE);
}

void CellStrip::release() {
    isHeld = false;
    ::InvalidateRect(handle(), nullptr, FALSE);
}

void CellStrip::setTips(std::vector<std::string> cellTips) {
    tips = std::move(cellTips);
    form.tipChanged(*this);
}

void CellStrip::showTips(ToolTips& toolTips) const {
    const std::size_t count = std::min(places.size(), tips.size());
    // The first tip that has the pointer is shown, and of cells that overlap the later lies on top.
    for (std::size_t cell = count; cell-- > 0;)
        toolTips.set(handle(), static_cast<int>(cell), placeOf(cell), tips[cell]);
}

void CellStrip::attached() {
    colors.clear();
    tips.clear();
    receive();
}

LRESULT CellStrip::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND: return TRUE;
        case WM_PAINT: paint(); return 0;
        case WM_CAPTURECHANGED: pressedCell = -1; return 0;
        default: break;
    }
    if (isUsable()) raiseMouse(message, lParam);
    return Control::onMessage(message, wParam, lParam);
}

void CellStrip::raiseMouse(UINT message, LPARAM lParam) {
    const int cell = cellAt({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
    if (message == WM_LBUTTONUP) {
        // Forgets the pressed cell by way of the capture that it ends.
        const int clicked = cell >= 0 ? pressedCell : -1;
        ::ReleaseCapture();
        if (clicked >= 0) Click.raise(clicked);
    }
    const int button = PressedButton(message);
    if (button == 0 || cell < 0) return;
    if (button == leftButton) {
        pressedCell = cell;
        ::SetCapture(handle());
    }
    MouseDown.raise(cell, button);
}

int CellStrip::cellAt(POINT point) const {
    for (std::size_t cell = places.size(); cell-- > 0;) {
        const RECT place = placeOf(cell);
        if (::PtInRect(&place, point)) return static_cast<int>(cell);
    }
    return -1;
}

void CellStrip::paint() {
    const Painting painting(handle());
    if (colors.empty()) paintBackground(painting);
    const std::size_t count = std::min(places.size(), colors.size());
    for (std::size_t cell = 0; cell < count; ++cell) {
        FillWithColor(painting.context(), placeOf(cell), static_cast<COLORREF>(colors[cell]));
    }
}

void CellStrip::paintBackground(const Painting& painting) const {
    const LRESULT brush =
        ::SendMessageA(form.handle(), WM_CTLCOLORDLG, reinterpret_cast<WPARAM>(painting.context()),
                       reinterpret_cast<LPARAM>(form.handle()));
    ::FillRect(painting.context(), &painting.area(), reinterpret_cast<HBRUSH>(brush));
}

RECT CellStrip::placeOf(std::size_t cell) const {
    const Area place = form.scaled(places[cell]);
    return {place.left, place.top, place.right, place.bottom};
}
