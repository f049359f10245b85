#include "core/Contrast.h"

#include <algorithm>
#include <cmath>

namespace {

/// A channel as a part of the light that a screen emits.
double Linear(int channel) {
    const double part = channel / 255.0;
    return part < 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

}  // namespace

double RelativeLuminance(const Color& color) {
    return 0.2126 * Linear(color.red) + 0.7152 * Linear(color.green) + 0.0722 * Linear(color.blue);
}

double ContrastRatio(const Color& one, const Color& other) {
    const auto [dark, light] = std::minmax({RelativeLuminance(one), RelativeLuminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

std::string RatioText(double ratio) {
    const int hundredths = static_cast<int>(ratio * 100);
    const std::string decimals = std::to_string(hundredths % 100);
    return std::to_string(hundredths / 100) + (decimals.size() == 1 ? ".0" : ".") + decimals;
}

std::string_view ContrastGrade(double ratio) {
    if (ratio >= 7) return "AAA";
    if (ratio >= 4.5) return "AA";
    return ratio >= 3 ? "AA 18 pt" : "-";
}
