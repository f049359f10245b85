// Who applies a colour to the selected mark?
#pragma once

#include "core/Color.h"

/// Applies a colour, each channel 0 to 255, to the selected mark and brings every view up to date.
class ColorTarget {
public:
    virtual void SetSelectedColor(int red, int green, int blue) = 0;
    void SetSelectedColor(const Color& color) { SetSelectedColor(color.red, color.green, color.blue); }

protected:
    ~ColorTarget() = default;
};
