#include "mainwindow/ColorBar.h"

#include <algorithm>
#include <vector>

#include "resources/resource.h"

ColorBar::ColorBar(Form& form) : lblColorBar(form, IDC_lblColorBar) {
    std::vector<Area> steps;
    for (int step = 0; step < barSteps; ++step) {
        const int left = BarStepLeft(step) * twipsPerPixel;
        steps.push_back({left, 0, left + barStepWidth * twipsPerPixel, barStepHeight * twipsPerPixel});
    }
    lblColorBar.setPlaces(std::move(steps));
}

void ColorBar::Refill(int red, int green, int blue) {
    std::array<PackedColor, barSteps> colors;
    std::ranges::transform(ColorRamp(ColorOf(red, green, blue)), colors.begin(), Pack);
    lblColorBar.setColors(colors);
}
