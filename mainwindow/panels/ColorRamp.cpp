#include "mainwindow/panels/ColorRamp.h"

#include <algorithm>

int BarStepOf(const Color& color) { return std::min({color.red, color.green, color.blue}); }

std::array<Color, barSteps> ColorRamp(const Color& color) {
    const int own = BarStepOf(color);
    std::array<Color, barSteps> ramp;
    for (int step = 0; step < barSteps; ++step) {
        const auto shifted = [&](int channel) { return std::clamp(channel + step - own, 0, 255); };
        ramp[step] = ColorOf(shifted(color.red), shifted(color.green), shifted(color.blue));
    }
    return ramp;
}
