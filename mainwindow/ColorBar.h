// What does the bar under the marks show?
#pragma once

#include <array>

#include "mainwindow/ColorRamp.h"
#include "toolkit/CellStrip.h"

/// The current colour in 256 steps of brightness.
class ColorBar {
public:
    explicit ColorBar(Form& form);

    void Refill(int red, int green, int blue);

private:
    CellStrip lblColorBar;
};
