// How does a form show many colours in one window?
#pragma once

#include <span>
#include <string>
#include <vector>

#include "core/Color.h"
#include "toolkit/controls/Control.h"
#include "toolkit/forms/Event.h"
#include "toolkit/platform/Twips.h"

class Painting;

/// A window of class "CellStrip": a few hundred coloured cells, painted at once. By the keyboard: arrows,
/// Home and End move a frame from cell to cell, Space and Enter press the one that has it.
class CellStrip : public Control {
public:
    using Control::Control;

    // Nothing is raised while the strip or its container is disabled.
    Event<int, int> MouseDown;  ///< the cell under the pointer and the button that was pressed
    Event<int> Click;           ///< the cell that was pressed, when the left button was released on the strip

    static void registerClass() { registerOwnClass("CellStrip"); }

    /// One colour for each place, shown at the next paint. A new window has neither colours nor tips.
    void setColors(std::span<const PackedColor> cellColors);

    /// The cells' places in twips from the left and top of the strip. Together they cover the strip; a later
    /// cell lies over an earlier one.
    void setPlaces(std::vector<Area> cellPlaces) { places = std::move(cellPlaces); }

    /// The cell that the keyboard begins with; it stays while the strip has the focus.
    void setFirstCell(int cell);

    /// One tool tip a cell.
    void setTips(std::vector<std::string> cellTips);

    /// Holds back painting for a scope, so that several changes of colours are shown together at its end.
    class Held {
    public:
        explicit Held(CellStrip& strip) : strip(strip) { strip.isHeld = true; }
        Held(const Held&) = delete;
        Held& operator=(const Held&) = delete;
        ~Held() { strip.release(); }

    private:
        CellStrip& strip;
    };

private:
    void attached() override;
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void paint();
    void paintCells(HDC context) const;
    /// The form's background, while there are no colours.
    void paintBackground(const Painting& painting) const;
    void raiseMouse(UINT message, LPARAM lParam);
    void release();
    void repaintCells() const;
    void focus(bool isHere);
    LRESULT onKey(WPARAM key, LPARAM lParam);
    void moveFrame(int cell);
    void paintFrame(HDC context) const;
    /// Tells screen readers what is under the frame.
    void tellCell() const;
    std::string textOf(std::size_t cell) const;
    /// -1 where there is none.
    int cellAt(POINT point) const;
    RECT placeOf(std::size_t cell) const;
    void showTips(ToolTips& toolTips) const override;

    std::vector<Area> places;
    std::vector<PackedColor> colors;
    std::vector<std::string> tips;
    int pressedCell = -1;
    int framedCell = 0;
    bool isHeld = false;
    bool isPainted = false;
    bool isFocused = false;  ///< kept, because asking Windows takes longer than painting
};
