#include "pickers/ContrastGrid.h"

#include <windowsx.h>

#include <algorithm>
#include <optional>

#include "pickers/ContrastPainter.h"
#include "pickers/ContrastPlaces.h"
#include "toolkit/controls/Keys.h"
#include "toolkit/forms/Form.h"
#include "toolkit/forms/ToolTips.h"
#include "toolkit/platform/Mouse.h"
#include "toolkit/platform/Painting.h"
#include "toolkit/platform/WindowText.h"

ContrastGrid::ContrastGrid(Form& form, int id) : Control(form, id), cells(ContrastCells()) {}

void ContrastGrid::attached() {
    framedCell = 1;  // the first with a text
    isFocused = false;
    marks = {};
    receive();
}

void ContrastGrid::show(const LabelledMarkSet& newMarks) {
    if (marks == newMarks) return;
    const std::string told = textOf(framedCell);
    for (int mark = 0; mark < markCount; ++mark) {
        if (marks[mark] == newMarks[mark]) continue;
        marks[mark] = newMarks[mark];
        repaintPlace(ContrastRow(mark));
        repaintPlace(ContrastColumn(mark));
    }
    if (textOf(framedCell) != told) tellCell();
    form.tipChanged(*this);
}

LRESULT ContrastGrid::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND: return TRUE;
        case WM_PAINT: paint(); return 0;
        case WM_GETDLGCODE: return DLGC_WANTARROWS | (IsEnter(lParam) ? DLGC_WANTMESSAGE : 0);
        case WM_SETFOCUS: focus(true); return 0;
        case WM_KILLFOCUS: focus(false); return 0;
        case WM_KEYDOWN: return onKey(wParam, lParam);
        case WM_LBUTTONDOWN: press({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}); return 0;
        case WM_UPDATEUISTATE:
        case WM_SYSCOLORCHANGE: repaint(); break;
        default: break;
    }
    return Control::onMessage(message, wParam, lParam);
}

void ContrastGrid::press(POINT point) {
    if (!isUsable()) return;
    for (int cell = 0; cell < static_cast<int>(cells.size()); ++cell) {
        const RECT place = placeOf(cell);
        if (!::PtInRect(&place, point)) continue;
        moveFrame(cell);
        choose();
        return;
    }
}

LRESULT ContrastGrid::onKey(WPARAM key, LPARAM lParam) {
    if (const std::optional<CellStep> step = StepOf(key)) {
        moveFrame(NextCell(cells, framedCell, *step));
    } else if ((key == VK_SPACE || key == VK_RETURN) && isUsable()) {
        choose();
    } else {
        return Control::onMessage(WM_KEYDOWN, key, lParam);
    }
    return 0;
}

void ContrastGrid::focus(bool isHere) {
    isFocused = isHere;
    if (ShowsFocus(handle())) repaintPlace(cells[framedCell]);
}

void ContrastGrid::moveFrame(int cell) {
    if (framedCell == cell) return;
    repaintPlace(cells[framedCell]);
    repaintPlace(cells[cell]);
    framedCell = cell;
    tellCell();
}

void ContrastGrid::tellCell() const {
    SetTextOf(handle(), textOf(framedCell));
    repaintPlace(ContrastStatus());
}

std::string ContrastGrid::textOf(int cell) const {
    const LabelledMark& row = marks[cell / markCount];
    const LabelledMark& column = marks[cell % markCount];
    return &row == &column ? MarkText(row) : PairText(row, column);
}

void ContrastGrid::showTips(ToolTips& toolTips) const {
    for (int cell = 0; cell < static_cast<int>(cells.size()); ++cell)
        toolTips.set(handle(), cell, placeOf(cell), textOf(cell));
}

void ContrastGrid::paint() const {
    const Painting painting(handle());
    ::FillRect(painting.context(), &painting.area(), ::GetSysColorBrush(COLOR_BTNFACE));
    {
        const ContrastPainter painter(painting.context(), form, marks);
        painter.paintHeadings();
        painter.paintCells(cells);
        painter.paintStatus(textOf(framedCell));
    }
    if (isFocused) PaintFocusFrame(handle(), painting.context(), placeOf(framedCell), form.scaled(1));
}

RECT ContrastGrid::placeOf(int cell) const {
    const Area place = form.scaled(cells[cell]);
    return {place.left, place.top, place.right, place.bottom};
}

void ContrastGrid::repaintPlace(const Area& place) const {
    const Area scaled = form.scaled(place);
    const RECT area = {scaled.left, scaled.top, scaled.right, scaled.bottom};
    if (handle()) ::InvalidateRect(handle(), &area, FALSE);
}
