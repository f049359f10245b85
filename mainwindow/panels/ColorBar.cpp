#include "mainwindow/panels/ColorBar.h"

#include <algorithm>
#include <vector>

#include "resources/resource.h"

ColorBar::ColorBar(Form& form, ChannelEditors& channels)
    : channels(channels),
      lblColorBar(form, IDC_lblColorBar),
      edgColorBar(form, IDC_edgColorBar, lblColorBar) {
    lblColorBar.Click.bind(this, &ColorBar::lblColorBar_Click);
    std::vector<Area> steps;
    for (int step = 0; step < barSteps; ++step) {
        const int left = BarStepLeft(step) * twipsPerPixel;
        steps.push_back({left, 0, left + barStepWidth * twipsPerPixel, barStepHeight * twipsPerPixel});
    }
    lblColorBar.setPlaces(std::move(steps));
}

void ColorBar::Refill(const Color& color) {
    std::array<PackedColor, barSteps> colors;
    barColor = ColorRamp(color);
    std::ranges::transform(barColor, colors.begin(), Pack);
    lblColorBar.setColors(colors);
    lblColorBar.setFirstCell(BarStepOf(color));
}

void ColorBar::lblColorBar_Click(int step) {
    // Each slider that changes refills the bar; only the last fill is painted.
    const CellStrip::Held held(lblColorBar);
    channels.SetSliders(barColor[step]);
}
