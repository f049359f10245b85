#include "mainwindow/panels/ColorRamp.h"

#include <algorithm>

std::array<Color, barSteps> ColorRamp(const Color& color) {
    const int smallest = std::min({color.red, color.green, color.blue});
    std::array<Color, barSteps> ramp;
    for (int step = 0; step < barSteps; ++step) {
        const auto shifted = [&](int channel) { return std::clamp(channel + step - smallest, 0, 255); };
        ramp[step] = ColorOf(shifted(color.red), shifted(color.green), shifted(color.blue));
    }
    return ramp;
}
