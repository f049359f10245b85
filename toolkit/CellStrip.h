// How does a form show many colours in one window?
#pragma once

#include <span>
#include <vector>

#include "core/Color.h"
#include "toolkit/Control.h"

/// A window of class "CellStrip": a few hundred coloured cells, painted at once.
class CellStrip : public Control {
public:
    using Control::Control;

    static void registerClass() { registerOwnClass("CellStrip"); }

    /// One colour a cell for as many cells as there are places; shows them at the next paint.
    void setColors(std::span<const PackedColor> cellColors);

    /// Places in pixels at 96 DPI from the left and top of the strip; a later cell lies over an earlier one.
    void setPlaces(std::vector<RECT> cellPlaces) { places = std::move(cellPlaces); }

private:
    void attached() override { receive(); }
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void paint();
    RECT scaledPlace(const RECT& place) const;

    std::vector<RECT> places;
    std::vector<PackedColor> colors;
};
