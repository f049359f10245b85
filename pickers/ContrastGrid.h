// How does a form show the contrast of the six marks?
#pragma once

#include <string>
#include <vector>

#include "pickers/ContrastText.h"
#include "toolkit/controls/CellMove.h"
#include "toolkit/controls/Control.h"
#include "toolkit/forms/Event.h"

/// A window of class "ContrastGrid": a cell for each pair of marks, the row's colour as text on the column's
/// colour, and the marks' names and samples before rows and columns. By the keyboard as a strip of cells.
class ContrastGrid : public Control {
public:
    ContrastGrid(Form& form, int id);

    Event<int> Choose;  ///< a cell of that mark's row was pressed

    static void registerClass() { registerOwnClass("ContrastGrid"); }

    /// Paints what is not shown already.
    void show(const LabelledMarkSet& newMarks);

private:
    void attached() override;
    void rescaled() override { repaint(); }
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void showTips(ToolTips& toolTips) const override;
    void paint() const;
    void press(POINT point);
    LRESULT onKey(WPARAM key, LPARAM lParam);
    void choose() const { Choose.raise(framedCell / markCount); }
    void focus(bool isHere);
    void moveFrame(int cell);
    /// Tells screen readers what is under the frame.
    void tellCell() const;
    std::string textOf(int cell) const;
    RECT placeOf(int cell) const;
    void repaintPlace(const Area& place) const;

    std::vector<Area> cells;
    LabelledMarkSet marks;
    int framedCell = 0;
    bool isFocused = false;
};
