// What does a palette look like as a file?
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/Color.h"

struct SixMarks {
    std::array<std::string, 6> names = {};
    std::array<Color, 6> colors = {};

    friend bool operator==(const SixMarks&, const SixMarks&) = default;
};

/// All 100 lines.
std::string PaletteText(const SixMarks& marks, std::string_view customFormat);
/// A palette of the oldest generation.
std::string OldPaletteText(const SixMarks& marks);
