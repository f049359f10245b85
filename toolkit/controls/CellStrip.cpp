#include "toolkit/controls/CellStrip.h"

#include <windowsx.h>

#include <algorithm>
#include <optional>

#include "core/ChannelText.h"
#include "toolkit/controls/Keys.h"
#include "toolkit/forms/Form.h"
#include "toolkit/forms/ToolTips.h"
#include "toolkit/platform/Mouse.h"
#include "toolkit/platform/Painting.h"
#include "toolkit/platform/WindowText.h"

namespace {

constexpr int narrowestFrame = 7;

}  // namespace

void CellStrip::setColors(std::span<const PackedColor> cellColors) {
    if (std::ranges::equal(colors, cellColors)) return;
    colors.assign(cellColors.begin(), cellColors.end());
    if (isFocused) tellCell();
    if (!isHeld) repaintCells();
}

void CellStrip::release() {
    isHeld = false;
    repaintCells();
}

/// A window that has never been painted will be anyway.
void CellStrip::repaintCells() const {
    if (isPainted) repaint();
}

void CellStrip::focus(bool isHere) {
    isFocused = isHere;
    if (isFocused) tellCell();
    if (ShowsFocus(handle())) repaintCells();
}

void CellStrip::setTips(std::vector<std::string> cellTips) {
    tips = std::move(cellTips);
    form.tipChanged(*this);
}

void CellStrip::showTips(ToolTips& toolTips) const {
    const std::size_t count = std::min(places.size(), tips.size());
    // The first tip under the pointer is shown, and of overlapping cells the later one lies on top.
    for (std::size_t cell = count; cell-- > 0;)
        toolTips.set(handle(), static_cast<int>(cell), placeOf(cell), tips[cell]);
}

void CellStrip::attached() {
    colors.clear();
    tips.clear();
    framedCell = 0;
    isPainted = false;
    isFocused = false;
    receive();
}

LRESULT CellStrip::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND: return TRUE;
        case WM_PAINT: paint(); return 0;
        case WM_CAPTURECHANGED: pressedCell = -1; return 0;
        case WM_GETDLGCODE: return DLGC_WANTARROWS | (IsEnter(lParam) ? DLGC_WANTMESSAGE : 0);
        case WM_SETFOCUS: focus(true); return 0;
        case WM_KILLFOCUS: focus(false); return 0;
        case WM_KEYDOWN: return onKey(wParam, lParam);
        case WM_UPDATEUISTATE: repaintCells(); break;
        default: break;
    }
    if (isUsable()) raiseMouse(message, lParam);
    return Control::onMessage(message, wParam, lParam);
}

void CellStrip::raiseMouse(UINT message, LPARAM lParam) {
    const int cell = cellAt({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
    if (message == WM_LBUTTONUP) {
        // The end of the capture forgets the pressed cell.
        const int clicked = cell >= 0 ? pressedCell : -1;
        ::ReleaseCapture();
        if (clicked >= 0) Click.raise(clicked);
    }
    const int button = PressedButton(message);
    if (button == 0 || cell < 0) return;
    if (button == leftButton) {
        pressedCell = cell;
        moveFrame(cell);
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
    isPainted = true;
    if (colors.empty()) {
        paintBackground(painting);
    } else {
        paintCells(painting.context());
    }
    if (isFocused && !colors.empty()) paintFrame(painting.context());
}

void CellStrip::paintCells(HDC context) const {
    const std::size_t count = std::min(places.size(), colors.size());
    for (std::size_t cell = 0; cell < count; ++cell)
        FillWithColor(context, placeOf(cell), static_cast<COLORREF>(colors[cell]));
}

/// Wide enough to show around the narrowest cell.
void CellStrip::paintFrame(HDC context) const {
    RECT frame = placeOf(framedCell);
    const int narrow = form.scaled(narrowestFrame) - static_cast<int>(frame.right - frame.left);
    if (narrow > 0) ::InflateRect(&frame, narrow / 2, 0);
    PaintFocusFrame(handle(), context, frame, form.scaled(1));
}

void CellStrip::setFirstCell(int cell) {
    if (!isFocused) framedCell = cell;
}

void CellStrip::moveFrame(int cell) {
    if (framedCell == cell) return;
    framedCell = cell;
    if (!isFocused) return;
    tellCell();
    repaintCells();
}

LRESULT CellStrip::onKey(WPARAM key, LPARAM lParam) {
    if (const std::optional<CellStep> step = StepOf(key)) {
        moveFrame(NextCell(places, framedCell, *step));
    } else if ((key == VK_SPACE || key == VK_RETURN) && isUsable()) {
        const int cell = framedCell;
        MouseDown.raise(cell, leftButton);
        Click.raise(cell);
    } else {
        return Control::onMessage(WM_KEYDOWN, key, lParam);
    }
    return 0;
}

void CellStrip::tellCell() const {
    if (static_cast<std::size_t>(framedCell) < colors.size()) SetTextOf(handle(), textOf(framedCell));
}

std::string CellStrip::textOf(std::size_t cell) const {
    return cell < tips.size() ? tips[cell] : HexText(Unpack(colors[cell]));
}

void CellStrip::paintBackground(const Painting& painting) const {
    const LRESULT brush =
        ::SendMessageW(form.handle(), WM_CTLCOLORDLG, reinterpret_cast<WPARAM>(painting.context()),
                       reinterpret_cast<LPARAM>(form.handle()));
    ::FillRect(painting.context(), &painting.area(), reinterpret_cast<HBRUSH>(brush));
}

RECT CellStrip::placeOf(std::size_t cell) const {
    const Area place = form.scaled(places[cell]);
    return {place.left, place.top, place.right, place.bottom};
}
