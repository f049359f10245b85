// What does the bar under the marks show?
#pragma once

#include <array>

#include "mainwindow/panels/ChannelEditors.h"
#include "mainwindow/panels/ColorRamp.h"
#include "toolkit/controls/CellStrip.h"
#include "toolkit/controls/Edge.h"

/// The current colour in 256 steps of brightness, each of which the user can make the current one.
class ColorBar {
public:
    ColorBar(Form& form, ChannelEditors& channels);

    void Refill(const Color& color);

private:
    void lblColorBar_Click(int step);

    ChannelEditors& channels;
    std::array<Color, barSteps> barColor;
    CellStrip lblColorBar;
    Edge edgColorBar;
};
